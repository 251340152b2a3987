#include "pruebas/componente/registro/claves.h"

#include "pruebas/componente/comun/publicado.h"

#include <algorithm>
#include <set>
#include <utility>

#include <sddl.h>

namespace publicado {

namespace {

/// Whether a key may hold something of ours, by its path in small letters.
bool PuedeSerNuestra(const std::wstring& ruta) {
    static const std::set<std::wstring> nuestras = [] {
        std::set<std::wstring> todas{L"clsid", L"interface", L"typelib"};
        todas.insert(EnMinusculas(std::wstring(L"typelib\\") + Biblioteca));
        for (const Clase& una : Clases) {
            todas.insert(EnMinusculas(std::wstring(L"clsid\\") + una.clase));
            todas.insert(EnMinusculas(std::wstring(L"interface\\") + una.interfaz));
            if (una.eventos)
                todas.insert(EnMinusculas(std::wstring(L"interface\\") + una.eventos));
        }
        return todas;
    }();
    const std::size_t primera = ruta.find(L'\\');
    const std::size_t segunda =
        primera == std::wstring::npos ? primera : ruta.find(L'\\', primera + 1);
    return ruta.starts_with(L"pincela") || nuestras.contains(ruta.substr(0, segunda));
}

/// Reads a hive; most of its time would go into buffers if each key had its own.
class Volcador {
  public:
    /// Without `entero`, of the keys of others only their names and when each was last changed.
    explicit Volcador(bool entero) : entero_(entero) {}

    std::vector<std::wstring> lineas;

    void VolcarClave(HKEY raiz, const std::wstring& absoluta, const std::wstring& ruta,
                     REGSAM ancho = 0) {
        const Clave clave(raiz, absoluta, false, 0, ancho);
        if (!clave)
            return;
        VolcarValores(clave, ruta);
        wchar_t nombre[512];
        for (DWORD i = 0;; ++i) {
            DWORD largo = 512;
            FILETIME cambiada{};
            if (RegEnumKeyExW(clave.get(), i, nombre, &largo, nullptr, nullptr, nullptr,
                              &cambiada) != ERROR_SUCCESS)
                return;
            const std::wstring minusculas = EnMinusculas(nombre);
            if (minusculas == L"wow6432node")
                continue;
            const std::wstring hija = ruta.empty() ? minusculas : ruta + L"\\" + minusculas;
            if (!entero_ && !PuedeSerNuestra(hija)) {
                lineas.push_back(hija + L" @" + std::to_wstring(cambiada.dwHighDateTime) + L'.' +
                                 std::to_wstring(cambiada.dwLowDateTime));
                continue;
            }
            lineas.push_back(hija);
            VolcarClave(clave.get(), nombre, hija);
        }
    }

  private:
    void VolcarValores(const Clave& clave, const std::wstring& ruta) {
        wchar_t nombre[512];
        for (DWORD i = 0;; ++i) {
            DWORD largoNombre = 512, largo = static_cast<DWORD>(datos_.size()), tipo = 0;
            const LSTATUS error = RegEnumValueW(clave.get(), i, nombre, &largoNombre, nullptr,
                                                &tipo, datos_.data(), &largo);
            if (error == ERROR_NO_MORE_ITEMS)
                return;
            std::wstring valor = L"(type " + std::to_wstring(tipo) + L")";
            for (DWORD b = 0; error == ERROR_SUCCESS && tipo != REG_SZ && b < largo; ++b)
                valor += L' ' + std::to_wstring(datos_[b]);
            if (error == ERROR_SUCCESS && tipo == REG_SZ) {
                valor.assign(reinterpret_cast<const wchar_t*>(datos_.data()),
                             largo / sizeof(wchar_t));
                while (!valor.empty() && valor.back() == L'\0')
                    valor.pop_back();
            }
            lineas.push_back(ruta + L" [" + nombre + L"] = " + valor);
        }
    }

    bool entero_;
    std::vector<BYTE> datos_ = std::vector<BYTE>(64 * 1024);
};

} // namespace

std::wstring EnMinusculas(std::wstring texto) {
    CharLowerBuffW(texto.data(), static_cast<DWORD>(texto.size()));
    return texto;
}

SoloLectura::SoloLectura(HKEY raiz, const std::wstring& ruta) {
    DWORD largo = 0;
    if (RegOpenKeyExW(raiz, ruta.c_str(), 0, KEY_READ | WRITE_DAC, &h_) != ERROR_SUCCESS)
        return;
    RegGetKeySecurity(h_, DACL_SECURITY_INFORMATION, nullptr, &largo);
    antes_.resize(largo);
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    vale_ =
        RegGetKeySecurity(h_, DACL_SECURITY_INFORMATION, antes_.data(), &largo) == ERROR_SUCCESS &&
        ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P(A;;KR;;;WD)", SDDL_REVISION_1,
                                                             &descriptor, nullptr) &&
        RegSetKeySecurity(h_, DACL_SECURITY_INFORMATION, descriptor) == ERROR_SUCCESS;
    LocalFree(descriptor);
}

SoloLectura::~SoloLectura() {
    if (vale_)
        RegSetKeySecurity(h_, DACL_SECURITY_INFORMATION, antes_.data());
    if (h_)
        RegCloseKey(h_);
}

std::vector<std::wstring> Volcar(HKEY raiz, const std::wstring& ruta, REGSAM ancho, bool entero) {
    Volcador volcador(entero);
    volcador.VolcarClave(raiz, ruta, L"", ancho);
    std::sort(volcador.lineas.begin(), volcador.lineas.end());
    return std::move(volcador.lineas);
}

} // namespace publicado
