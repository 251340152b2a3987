// The lit outline of a round-cornered shape, drawn into the pixels of an image.
#pragma once

#include "plataforma/lienzo.h"

#include <windows.h>

#include <cstdint>

namespace pincela::windows {

/// Smooth along the curves, exact along the straight sides, nothing outside the given edges.
void DibujarContorno(std::uint32_t* pixeles, SIZE tamano, const ContornoRedondo& contorno);

} // namespace pincela::windows
