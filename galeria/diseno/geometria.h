// Points and boxes in whole pixels, y growing downwards.
#pragma once

#include <algorithm>

namespace diseno {

struct Punto {
    int x = 0, y = 0;
    friend bool operator==(const Punto&, const Punto&) = default;
};

/// Right and bottom edges are outside.
struct Caja {
    int izquierda = 0, arriba = 0, derecha = 0, abajo = 0;

    int Ancho() const { return derecha - izquierda; }
    int Alto() const { return abajo - arriba; }
    bool Contiene(Punto p) const {
        return p.x >= izquierda && p.x < derecha && p.y >= arriba && p.y < abajo;
    }
    bool Toca(const Caja& otra) const {
        return izquierda < otra.derecha && otra.izquierda < derecha && arriba < otra.abajo &&
               otra.arriba < abajo;
    }
    Caja Movida(int dx, int dy) const {
        return {izquierda + dx, arriba + dy, derecha + dx, abajo + dy};
    }
    friend bool operator==(const Caja&, const Caja&) = default;
};

/// The box between two corners, whichever they are.
inline Caja Entre(Punto a, Punto b) {
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
}

} // namespace diseno
