// Fonts and pictures of the container as shared references of the core, and back.
#pragma once

#include "plataforma/fuente.h"
#include "plataforma/imagen.h"

#include <ocidl.h>
#include <windows.h>

namespace pincela::windows {

/// Wraps any font object (IFont, IFontDisp); null gives an empty reference. An object that is no
/// font raises TiposNoCoinciden. The wrapper holds the container's own object.
Fuente EnvolverFuente(IUnknown* objeto);
Imagen EnvolverImagen(IUnknown* objeto);

/// The container's own object with a reference for the caller; null for an empty reference.
IFontDisp* DesenvolverFuente(const Fuente& fuente);
IPictureDisp* DesenvolverImagen(const Imagen& imagen);

/// A new standard font object with these attributes.
Fuente CrearFuente(const AtributosFuente& atributos);

} // namespace pincela::windows
