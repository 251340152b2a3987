#include "pruebas/componente/registro/claves.h"

#include <algorithm>

namespace publicado {

namespace {

void VolcarValores(const Clave& clave, const std::wstring& ruta, std::vector<std::wstring>& a) {
    wchar_t nombre[512];
    std::vector<BYTE> datos(64 * 1024);
    for (DWORD i = 0;; ++i) {
        DWORD largoNombre = 512, largo = static_cast<DWORD>(datos.size()), tipo = 0;
        const LSTATUS error = RegEnumValueW(clave.get(), i, nombre, &largoNombre, nullptr, &tipo,
                                            datos.data(), &largo);
        if (error == ERROR_NO_MORE_ITEMS)
            return;
        std::wstring valor = L"(type " + std::to_wstring(tipo) + L")";
        if (error == ERROR_SUCCESS && tipo == REG_SZ) {
            valor.assign(reinterpret_cast<const wchar_t*>(datos.data()), largo / sizeof(wchar_t));
            while (!valor.empty() && valor.back() == L'\0')
                valor.pop_back();
        }
        a.push_back(ruta + L" [" + nombre + L"] = " + valor);
    }
}

void VolcarClave(HKEY raiz, const std::wstring& absoluta, const std::wstring& ruta,
                 std::vector<std::wstring>& a) {
    const Clave clave(raiz, absoluta);
    if (!clave)
        return;
    VolcarValores(clave, ruta, a);
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
        a.push_back(hija);
        VolcarClave(clave.get(), nombre, hija, a);
    }
}

} // namespace

std::wstring EnMinusculas(std::wstring texto) {
    CharLowerBuffW(texto.data(), static_cast<DWORD>(texto.size()));
    return texto;
}

std::vector<std::wstring> Volcar(HKEY raiz, const std::wstring& ruta) {
    std::vector<std::wstring> lineas;
    VolcarClave(raiz, ruta, L"", lineas);
    std::sort(lineas.begin(), lineas.end());
    return lineas;
}

} // namespace publicado
