// Fonts and pictures as controls receive them.
#pragma once

#include "anfitrion/com.h"

#include <olectl.h>

#include <string>

namespace anfitrion {

/// Standard font object; size in points.
Puntero<IFontDisp> CrearFuente(const std::wstring& nombre, double puntos, bool negrita = false,
                               bool cursiva = false);

/// Standard picture objects; the picture owns the handle from now on.
Puntero<IPictureDisp> CrearImagen(HBITMAP mapa);
Puntero<IPictureDisp> CrearImagen(HICON icono);
/// A placeable metafile; sizes in hundredths of a millimetre.
Puntero<IPictureDisp> CrearImagen(HMETAFILE metaarchivo, SIZE tamano);

} // namespace anfitrion
