// The everyday number in a text: a few decimal digits.
#pragma once

#include "common/texto.h"

#include <cstdint>

namespace pincela {

/// Reads a whole number of at most nine digits, with or without a minus sign before them, from the
/// start of a text. Answers how many characters it takes; 0 when there is no such number there, or
/// a longer one.
inline std::size_t LeerEnteroCorto(VistaTexto texto, std::int32_t& valor) {
    const char16_t* const inicio = texto.data();
    const char16_t* const fin = inicio + texto.size();
    const char16_t* p = inicio;
    const bool negativo = p != fin && *p == u'-';
    p += negativo;
    const char16_t* const primero = p;
    std::uint32_t suma = 0;
    for (; p != fin && static_cast<std::uint32_t>(*p - u'0') < 10; ++p)
        suma = suma * 10 + (*p - u'0'); // wraps only where it is thrown away
    if (p == primero || p - primero > 9)
        return 0;
    valor = static_cast<std::int32_t>(negativo ? 0 - suma : suma);
    return static_cast<std::size_t>(p - inicio);
}

} // namespace pincela
