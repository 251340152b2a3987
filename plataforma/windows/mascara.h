// Where something was drawn on a transparent surface.
#pragma once

#include "plataforma/windows/escala.h"
#include "plataforma/windows/imagen_dib.h"

namespace pincela::windows {

/// Clips the context to the pixels that were drawn on, wherever they fall at its scale. False when
/// there are none.
bool RecortarALoDibujado(ImagenDib& imagen, SIZE tamano, const Destino& destino);

/// The pixels that were drawn on, told from the same drawing on a black and on a white ground; null
/// without memory. `mezclada` tells whether the ground is seen through any of them.
DuenoRegion RegionDibujada(const std::uint32_t* sobreNegro, const std::uint32_t* sobreBlanco,
                           SIZE tamano, bool& mezclada);

} // namespace pincela::windows
