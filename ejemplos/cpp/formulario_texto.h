// A form as text: controls with their place and the keys of their property bag.
//
//   Begin Pincela.Botonazo Aceptar
//      Left = 20
//      Top = 20
//      Width = 140
//      Height = 40
//      Caption = "&Aceptar"
//      RelY = 0.5
//   End
//
// A value is a text in quotes (one inside is doubled), True, False, a whole number, also as &H and
// hexadecimal digits, or a number with a decimal point. Lines that start with ' are comments.
#pragma once

#include "anfitrion/formulario.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace ejemplo {

/// A text that is no form; the message, in UTF-8, tells the line.
struct TextoErroneo : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Places the controls of a text on a form. Throws TextoErroneo, or FalloCom when one of them can't
/// be made; those before it stay.
void Cargar(anfitrion::Formulario& forma, const anfitrion::Componente& componente,
            std::wstring_view texto);

/// The form as text again. Only keys whose values can be written are: fonts and pictures are not.
std::wstring Guardar(const anfitrion::Formulario& forma);

} // namespace ejemplo
