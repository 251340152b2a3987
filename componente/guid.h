// Identifiers written as they are printed: "{43ABF82C-...}"_guid.
#pragma once

#include <windows.h>

#include <cstddef>

namespace pincela::componente {

namespace detalle {
consteval unsigned Cifra(char c) {
    if (c >= '0' && c <= '9')
        return static_cast<unsigned>(c - '0');
    if (c >= 'A' && c <= 'F')
        return static_cast<unsigned>(c - 'A' + 10);
    throw "not an upper-case hexadecimal digit";
}
consteval unsigned long Cifras(const char* texto, int cuantas) {
    unsigned long valor = 0;
    for (int i = 0; i < cuantas; ++i)
        valor = valor * 16 + Cifra(texto[i]);
    return valor;
}
} // namespace detalle

consteval GUID operator""_guid(const char* t, std::size_t largo) {
    if (largo != 38 || t[0] != '{' || t[37] != '}' || t[9] != '-' || t[14] != '-' || t[19] != '-' ||
        t[24] != '-')
        throw "not an identifier";
    using detalle::Cifras;
    GUID guid{};
    guid.Data1 = Cifras(t + 1, 8);
    guid.Data2 = static_cast<unsigned short>(Cifras(t + 10, 4));
    guid.Data3 = static_cast<unsigned short>(Cifras(t + 15, 4));
    for (int i = 0; i < 2; ++i)
        guid.Data4[i] = static_cast<unsigned char>(Cifras(t + 20 + 2 * i, 2));
    for (int i = 0; i < 6; ++i)
        guid.Data4[2 + i] = static_cast<unsigned char>(Cifras(t + 25 + 2 * i, 2));
    return guid;
}

} // namespace pincela::componente
