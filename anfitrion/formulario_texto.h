// A form as readable text: its size, and each control with its place and what it saves of itself.
// What stands on a control is written inside it.
//
//   ' comment
//   Formulario 640 400 96
//   Pincela.Area Panel 20 20 300 120
//     Caption = "Datos"
//     Pincela.Botonazo Aceptar 10 40 80 25
//       Caption = "&Aceptar"
//     Fin
//   Fin
//
// After class and name come left, top, width and height in pixels of a screen with the dots per
// inch that the first line tells; without that line, of this one. valor_texto.h tells how values
// are written.
#pragma once

#include "anfitrion/formulario.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace anfitrion {

/// A text that is no form, with the line where that shows.
class ErrorDeFormulario : public std::runtime_error {
  public:
    ErrorDeFormulario(int enLinea, std::wstring que);
    int linea;
    std::wstring texto; ///< for the user
};

/// Library and name of an object's class ("Pincela.Botonazo"), as its type library has them.
std::wstring ClaseDe(IUnknown* objeto);

/// Controls that can't save themselves and values without a written form are left out.
std::wstring EscribirFormulario(const Formulario& forma);

/// Some controls of a form, with what stands on each.
std::wstring EscribirControles(const std::vector<std::shared_ptr<ControlAlojado>>& controles);

/// Makes the form what the text says. A control that it has already, of the same name, class and
/// place in the others, is kept: it is moved and loaded where the text differs. Those that the text
/// doesn't name go. Throws ErrorDeFormulario, with nothing changed, and FalloCom when a control
/// can't be made or loaded; the form is then as it was.
void LeerFormulario(Formulario& forma, const Componente& componente, std::wstring_view texto);

/// Adds the controls of a text to the form, or to one of its controls; a name that is taken already
/// gets another number. Answers those that don't stand on another one of the text. Throws as
/// LeerFormulario does, with nothing added.
std::vector<std::shared_ptr<ControlAlojado>> AgregarControles(Formulario& forma,
                                                              const Componente& componente,
                                                              std::wstring_view texto,
                                                              ControlAlojado* dentro = nullptr);

} // namespace anfitrion
