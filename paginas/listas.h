// Lists that two pages show alike. Their texts are the pages' own and differ on purpose from the
// names of some values.
#pragma once

#include "paginas/pagina.h"

namespace pincela {

/// Values of Tamanio, which count from 1.
inline void LlenarTamanios(ListaDesplegable& lista) {
    Llenar(lista, {u"Chico", u"Medio", u"Grande"});
}

inline void LlenarTiposDeLetra(ListaDesplegable& lista) {
    Llenar(lista, {u"Normal", u"Levantado", u"Undido", u"InvesoL", u"InvesoU"});
}

} // namespace pincela
