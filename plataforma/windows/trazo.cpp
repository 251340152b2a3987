#include "plataforma/windows/trazo.h"

#include "plataforma/windows/colores.h"

#include <algorithm>

namespace pincela::windows {

namespace {

void TrazarOblicua(const Destino& destino, int x1, int y1, int x2, int y2, int ancho,
                   COLORREF color) {
    const int grueso = std::max(1, Redondo(ancho * std::min(destino.sx, destino.sy)));
    const LOGBRUSH pincel{BS_SOLID, color, 0};
    DuenoPluma pluma(
        grueso == 1 ? ::CreatePen(PS_SOLID, 1, color)
                    : ::ExtCreatePen(PS_GEOMETRIC | PS_SOLID | PS_ENDCAP_SQUARE | PS_JOIN_MITER,
                                     static_cast<DWORD>(grueso), &pincel, 0, nullptr));
    Seleccion seleccion(destino.dc, pluma.get());
    POINT anterior;
    ::MoveToEx(destino.dc, destino.X(x1), destino.Y(y1), &anterior);
    ::LineTo(destino.dc, destino.X(x2), destino.Y(y2));
    ::MoveToEx(destino.dc, anterior.x, anterior.y, nullptr);
    if (grueso == 1) // a thin pen leaves the end out
        ::SetPixelV(destino.dc, destino.X(x2), destino.Y(y2), color);
}

} // namespace

void TrazarLinea(const Destino& destino, double x1, double y1, double x2, double y2, int ancho,
                 COLORREF color) {
    ancho = std::max(1, ancho);
    const int xa = Redondo(x1), ya = Redondo(y1), xb = Redondo(x2), yb = Redondo(y2);
    if (xa != xb && ya != yb)
        return TrazarOblicua(destino, xa, ya, xb, yb, ancho, color);
    const int antes = ancho / 2, despues = (ancho - 1) / 2 + 1;
    const RECT r =
        destino.RectanguloVisible(std::min(xa, xb) - antes, std::min(ya, yb) - antes,
                                  std::max(xa, xb) + despues, std::max(ya, yb) + despues);
    Llenar(destino.dc, r, color);
}

} // namespace pincela::windows
