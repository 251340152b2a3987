// Where and how large a surface is being drawn: one pixel of the surface to units of a context.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace pincela::windows {

/// What lies beyond the range of a whole number is at its end.
inline int Redondo(double valor) {
    constexpr double tope = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::floor(valor + 0.5), -tope, tope));
}

/// Pixels to hundredths of a millimetre and back.
inline double DeHimetric(double himetric, int ppp) {
    return himetric * ppp / 2540.0;
}

struct Destino {
    HDC dc = nullptr;
    double x0 = 0, y0 = 0; // where the surface's corner goes
    double sx = 1, sy = 1; // units of the context for one pixel
    /// True when the surface's own window is being painted, so that its child windows show
    /// themselves.
    bool enVentana = false;

    int X(double x) const { return Redondo(x0 + x * sx); }
    int Y(double y) const { return Redondo(y0 + y * sy); }
    bool TamanoNatural() const { return sx == 1 && sy == 1; }

    RECT Rectangulo(double izquierda, double arriba, double derecha, double abajo) const {
        return RECT{X(izquierda), Y(arriba), X(derecha), Y(abajo)};
    }
    /// The same for a rectangle that must not vanish however small the scale.
    RECT RectanguloVisible(double izquierda, double arriba, double derecha, double abajo) const {
        RECT r = Rectangulo(izquierda, arriba, derecha, abajo);
        if (r.right <= r.left && derecha > izquierda)
            r.right = r.left + 1;
        if (r.bottom <= r.top && abajo > arriba)
            r.bottom = r.top + 1;
        return r;
    }
};

} // namespace pincela::windows
