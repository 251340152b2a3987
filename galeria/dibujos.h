// Small pictures drawn in code.
#pragma once

#include "anfitrion/imagenes.h"
#include "galeria/muestras.h"

namespace galeria {

/// A picture of its own for each call. Glyphs are icons with a soft edge and transparency, `lado`
/// pixels square; landscapes are opaque bitmaps of `ancho` by `alto` pixels.
anfitrion::Puntero<IPictureDisp> Dibujar(Dibujo cual, int lado, int ancho, int alto);

} // namespace galeria
