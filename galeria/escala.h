// The page is laid out at 96 dots per inch and drawn at the screen's.
#pragma once

#include "anfitrion/unidades.h"

namespace galeria {

inline int Escala(int pixeles) {
    static const int puntos = anfitrion::PuntosPorPulgada();
    return MulDiv(pixeles, puntos, 96);
}

inline RECT Escalar(const RECT& r) {
    return {Escala(r.left), Escala(r.top), Escala(r.right), Escala(r.bottom)};
}

} // namespace galeria
