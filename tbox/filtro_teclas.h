// Which typed characters a field lets through. A code of 0 is a dropped character.
#pragma once

#include "common/enumeraciones.h"
#include "common/texto.h"

#include <cstdint>

namespace pincela {

/// Leaves the characters a number is typed with: digits, control characters, space and "!", and
/// with `decimales` one comma, for which a full stop may be typed. No sign passes.
/// `texto` is what the field holds.
void FiltrarNumero(std::int16_t& tecla, bool decimales, VistaTexto texto);

/// The filter of a text box of type `tipo`: numbers without spaces, capitals, or anything; then
/// the characters of `excluidos` are dropped. Raises Desbordamiento when there are more than 255.
void FiltrarTecla(std::int16_t& tecla, TText tipo, VistaTexto texto, VistaTexto excluidos = {});

} // namespace pincela
