// Text of the system: UTF-16, as the automation environment carries it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace pincela {

using Texto = std::u16string;
using VistaTexto = std::u16string_view;

/// 1-based position of the first `aguja` in `pajar`, compared binary; 0 when absent (InStr).
/// An empty needle is found at position 1 of a non-empty text and nowhere in an empty one.
std::size_t Posicion(VistaTexto pajar, VistaTexto aguja);

/// Pieces between separators; always at least one piece, an empty text gives one empty piece.
std::vector<Texto> Partir(VistaTexto texto, char16_t separador);

/// Upper-case and lower-case forms, one character for one character (UCase, LCase).
/// Covers Latin, Greek and Cyrillic letters; every other character is returned as it is.
char16_t Mayuscula(char16_t letra);
char16_t Minuscula(char16_t letra);
Texto Mayusculas(VistaTexto texto);
Texto Minusculas(VistaTexto texto);

} // namespace pincela
