// A form as text that a person can read, compare and edit.
//
//   Botonazo Guardar 24 40 120 32
//     Caption = "&Guardar"
//     ColorFondo = 14737632&
//   Fin
//
// One block per control: class, name, place (left, top, width, height in pixels of what it stands on)
// and the keys of its property bag. Numbers carry their type behind them: % 16 bits, & 32 bits, ! and
// # floating point, @ a byte. In texts a double quote and a backslash follow a backslash, and line ends
// are \r and \n. Fonts and pictures are the bytes that they save of
// themselves, icons their pixels and their mask.
#pragma once

#include "anfitrion/formulario.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace anfitrion {

/// A text that is not a form, or not of this one. In Spanish, with the number of the line.
struct ErrorDeFormulario : std::runtime_error {
    ErrorDeFormulario(int linea, std::wstring que);
    int linea;
    std::wstring texto;
};

/// Every control of the form that can be saved in a property bag.
std::wstring EscribirFormulario(const Formulario& forma);

/// Gives the controls the places and properties of the text, by name; those that it does not name
/// stay as they are. Throws ErrorDeFormulario before anything is changed, and FalloCom when a control
/// refuses its properties: the ones before it are then changed.
void LeerFormulario(Formulario& forma, std::wstring_view texto);

} // namespace anfitrion
