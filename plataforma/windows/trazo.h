// Straight lines, the same for the image of a surface and for the line widget.
#pragma once

#include "plataforma/windows/escala.h"

namespace pincela::windows {

/// Both ends included, `ancho` pixels wide, centred on the ends with square ends; an even width
/// has its extra pixel toward the lower coordinates. Axis-aligned lines cover whole pixels.
void TrazarLinea(const Destino& destino, double x1, double y1, double x2, double y2, int ancho,
                 COLORREF color);

} // namespace pincela::windows
