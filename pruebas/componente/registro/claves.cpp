#include "pruebas/componente/registro/claves.h"

#include <algorithm>
#include <utility>

#include <sddl.h>

namespace publicado {

namespace {

/// Reads a hive; most of its time would go into buffers if each key had its own.
class Volcador {
  public:
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
            if (RegEnumKeyExW(clave.get(), i, nombre, &largo, nullptr, nullptr, nullptr, nullptr) !=
                ERROR_SUCCESS)
                return;
            const std::wstring minusculas = EnMinusculas(nombre);
            if (minusculas == L"wow6432node")
                continue;
            const std::wstring hija = ruta.empty() ? minusculas : ruta + L"\\" + minusculas;
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

std::vector<std::wstring> Volcar(HKEY raiz, const std::wstring& ruta, REGSAM ancho) {
    Volcador volcador;
    volcador.VolcarClave(raiz, ruta, L"", ancho);
    std::sort(volcador.lineas.begin(), volcador.lineas.end());
    return std::move(volcador.lineas);
}

} // namespace publicado
