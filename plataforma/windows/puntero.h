// The pointer over a surface.
#pragma once

#include "plataforma/imagen.h"

#include <windows.h>

namespace pincela::windows {

/// The platform's pointer for a pointer constant of form designers; null for the default one and
/// for a constant that means nothing.
HCURSOR PunteroDe(std::int16_t constante, const Imagen& icono);

} // namespace pincela::windows
