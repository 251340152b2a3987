// Choosing one of three positions by the row or column of a nine-place alignment.
#pragma once

#include "common/enumeraciones.h"

namespace pincela {

/// The value of the column of `lugar`; 0 for what is none of the nine places.
constexpr double PorColumna(Alineaciones lugar, double izquierda, double centro, double derecha) {
    if (!EsLugar(lugar))
        return 0;
    switch (ClaseHorizontal(lugar)) {
    case Horizontal::Izquierda:
        return izquierda;
    case Horizontal::Centro:
        return centro;
    default:
        return derecha;
    }
}

/// The value of the row of `lugar`; 0 for what is none of the nine places.
constexpr double PorFila(Alineaciones lugar, double arriba, double centro, double abajo) {
    if (!EsLugar(lugar))
        return 0;
    switch (ClaseVertical(lugar)) {
    case Vertical::Arriba:
        return arriba;
    case Vertical::Centro:
        return centro;
    default:
        return abajo;
    }
}

} // namespace pincela
