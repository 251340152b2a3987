// The button that the measurements share: 100 x 30 pixels, a gradient, a border and a caption.
#pragma once

#include "anfitrion/formulario.h"

namespace medidas {

constexpr int AnchoDeBoton = 100, AltoDeBoton = 30;
constexpr wchar_t TituloDeBoton[] = L"&Aceptar";
constexpr LONG PrimerColor = 0xF0E0D0, UltimoColor = 0x806040; // of the gradient

/// Loads it from a property bag onto a form, active at a place.
std::shared_ptr<anfitrion::ControlAlojado>
AgregarBoton(anfitrion::Formulario& forma, const anfitrion::Componente& componente, int x, int y);

} // namespace medidas
