// Numbers as the user types them on a page. The keyboard gives a decimal comma whatever the locale
// (see FiltrarNumero), so the comma is understood in every locale.
#pragma once

#include "common/texto.h"

#include <cstdint>

namespace pincela {

/// A number with the decimal separator of the locale in force or a comma. Raises
/// TiposNoCoinciden for what is no number.
double LeerNumero(VistaTexto texto);

/// The number a text begins with, 0 for none, with point or comma.
double NumeroInicial(VistaTexto texto);

} // namespace pincela
