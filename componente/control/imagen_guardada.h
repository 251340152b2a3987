// Pictures as bytes, inside a saved control.
#pragma once

#include "common/guardado.h"
#include "plataforma/imagen.h"

namespace pincela::componente {

/// Throws FalloCom with the status of the picture that can't be saved.
Bytes GuardarImagen(const Imagen& imagen);

/// Bytes that are no picture raise TiposNoCoinciden or the status of the platform's loader.
Imagen RestaurarImagen(const Bytes& bytes);

} // namespace pincela::componente
