#include "componente/registro/archivos.h"

#include <windows.h>

namespace pincela::componente {

namespace {

constexpr wchar_t PrefijoLargo[] = L"\\\\?\\";

bool Empieza(const std::wstring& texto, const wchar_t* por) {
    return texto.rfind(por, 0) == 0;
}

std::wstring Pelado(std::wstring nombre) {
    if (nombre.size() >= 2 && nombre.front() == L'"' && nombre.back() == L'"')
        nombre = nombre.substr(1, nombre.size() - 2);
    if (Empieza(nombre, L"\\\\?\\UNC\\"))
        return L"\\" + nombre.substr(7);
    return Empieza(nombre, PrefijoLargo) ? nombre.substr(4) : nombre;
}

bool Iguales(const std::wstring& uno, const std::wstring& otro) {
    return CompareStringOrdinal(uno.data(), static_cast<int>(uno.size()), otro.data(),
                                static_cast<int>(otro.size()), TRUE) == CSTR_EQUAL;
}

/// What the system makes of the name of a file that is there; empty for any other.
std::wstring Traducido(const std::wstring& nombre,
                       DWORD(WINAPI* traducir)(LPCWSTR, LPWSTR, DWORD)) {
    const bool prefijar = nombre.size() >= MAX_PATH && !Empieza(nombre, L"\\\\");
    const std::wstring pedido = prefijar ? PrefijoLargo + nombre : nombre;
    std::wstring salida(MAX_PATH, L'\0');
    for (;;) {
        const DWORD largo =
            traducir(pedido.c_str(), salida.data(), static_cast<DWORD>(salida.size()));
        const bool cupo = largo < salida.size();
        salida.resize(largo);
        if (cupo)
            return Pelado(std::move(salida));
    }
}

} // namespace

bool MismoArchivo(const std::wstring& uno, const std::wstring& otro) {
    const std::wstring a = Pelado(uno), b = Pelado(otro);
    if (Iguales(a, b))
        return true;
    for (const auto traducir : {&GetLongPathNameW, &GetShortPathNameW}) {
        const std::wstring traducido = Traducido(a, traducir);
        if (!traducido.empty() && Iguales(traducido, Traducido(b, traducir)))
            return true;
    }
    return false;
}

std::wstring NombreCorto(const std::wstring& archivo) {
    return Traducido(Pelado(archivo), &GetShortPathNameW);
}

std::wstring CarpetaDe(const std::wstring& archivo) {
    return archivo.substr(0, archivo.rfind(L'\\'));
}

} // namespace pincela::componente
