// Where a colour is in a picture.
#pragma once

#include "anfitrion/captura.h"

namespace publicado {

using anfitrion::Captura;

/// Smallest rectangle with every pixel of the colour; empty when there is none.
inline RECT Caja(const Captura& c, COLORREF color) {
    RECT r{c.Ancho(), c.Alto(), 0, 0};
    for (int y = 0; y < c.Alto(); ++y)
        for (int x = 0; x < c.Ancho(); ++x)
            if (c.Pixel(x, y) == color) {
                r.left = x < r.left ? x : r.left;
                r.top = y < r.top ? y : r.top;
                r.right = x >= r.right ? x + 1 : r.right;
                r.bottom = y >= r.bottom ? y + 1 : r.bottom;
            }
    return r.left < r.right ? r : RECT{};
}

} // namespace publicado
