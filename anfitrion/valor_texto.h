// A value of a property bag as readable text.
//
//   True, False       a boolean
//   "text"            \" \\ \r \n stand for what can't be written as it is
//   12, &H000000C0    32 bits; 12% 16 bits, 12@ 8 bits
//   0.5               also 0.5# with 64 bits; 0.5! with 32
//   Nothing           no object
//   Fuente HEX, Imagen HEX, Icono WIDTH HEIGHT HEX
#pragma once

#include "anfitrion/variante.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace anfitrion {

/// A text that stands for no value.
struct ErrorDeValor : std::runtime_error {
    explicit ErrorDeValor(std::wstring que);
    std::wstring texto; ///< for the user
};

/// Empty when the value has no written form.
std::wstring EscribirValor(const VARIANT& valor);

/// Throws ErrorDeValor.
Variante LeerValor(std::wstring_view escrito);

/// A whole text as a number with a decimal point. Throws ErrorDeValor.
double LeerNumero(std::wstring_view escrito);

} // namespace anfitrion
