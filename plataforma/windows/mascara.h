// Where something was drawn on a transparent surface.
#pragma once

#include "plataforma/windows/escala.h"
#include "plataforma/windows/imagen_dib.h"

namespace pincela::windows {

/// Clips the context to the pixels that were drawn on, wherever they fall at its scale. False when
/// there are none.
bool RecortarALoDibujado(ImagenDib& imagen, SIZE tamano, const Destino& destino);

} // namespace pincela::windows
