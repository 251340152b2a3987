// What the gallery draws its own windows with: fine lines, filled rectangles, and their colours.
#pragma once

#include "galeria/escala.h"

#include <algorithm>

namespace galeria {

constexpr COLORREF ColorLamina = RGB(243, 245, 249);
constexpr COLORREF ColorTarjeta = RGB(255, 255, 255);
constexpr COLORREF ColorBorde = RGB(203, 213, 225);
constexpr COLORREF ColorLetra = RGB(31, 41, 55);
constexpr COLORREF ColorLetraFloja = RGB(95, 107, 124);
constexpr COLORREF ColorAcento = RGB(37, 99, 235);
constexpr COLORREF ColorAviso = RGB(185, 28, 28);
constexpr COLORREF ColorElegido = RGB(219, 234, 254);

/// Of a fine line, in pixels.
inline int Grueso() {
    return std::max(1, Escala(1));
}

inline void Llenar(HDC hdc, const RECT& r, COLORREF color) {
    SetDCBrushColor(hdc, color);
    FillRect(hdc, &r, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

/// A rectangle with a line inside of its edge.
inline void Enmarcar(HDC hdc, RECT r, COLORREF borde, COLORREF cara, int grueso = Grueso()) {
    Llenar(hdc, r, borde);
    InflateRect(&r, -grueso, -grueso);
    Llenar(hdc, r, cara);
}

} // namespace galeria
