// The text form of a gradient: its colours in decimal, joined by "*" ("16777215*0").
#pragma once

#include "common/color.h"
#include "common/texto.h"
#include "efectos/lista_corta.h"

#include <span>
#include <vector>

namespace pincela {

inline constexpr char16_t kSeparadorColores = u'*';
/// White then black: what an empty list stands for.
inline constexpr VistaTexto kListaPredeterminada = u"16777215*0";

using ListaColores = ListaCorta<Color, 32>;

/// A gradient needs two colours, that is one separator.
bool EsListaUsable(VistaTexto lista);

/// The colours in order. Raises TiposNoCoinciden for a piece that is no number (an empty one
/// included) and Desbordamiento for one beyond 32 bits.
ListaColores LeerColores(VistaTexto lista);

/// The same for an editor of the list: an empty text gives white and black.
std::vector<Color> ColoresDeEdicion(VistaTexto lista);

/// Writes one more colour at the end of a list.
void AgregarColor(Texto& lista, Color color);
Texto UnirColores(std::span<const Color> colores);

/// The pieces from last to first. While nothing has been written no separator is, so empty pieces
/// at the end of the list are lost. Raises Desbordamiento beyond 32768 pieces.
Texto InvertirLista(VistaTexto lista);

} // namespace pincela
