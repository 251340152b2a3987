// Conversions between pixels and the hundredths of a millimetre that OLE measures in.
#pragma once

#include <windows.h>

namespace anfitrion {

constexpr int HimetricPorPulgada = 2540;

inline LONG AHimetric(LONG pixeles, int puntosPorPulgada) {
    return MulDiv(pixeles, HimetricPorPulgada, puntosPorPulgada);
}

inline LONG APixeles(LONG himetric, int puntosPorPulgada) {
    return MulDiv(himetric, puntosPorPulgada, HimetricPorPulgada);
}

/// Dots per inch of the screen as this process sees it.
inline int PuntosPorPulgada() {
    const HDC hdc = GetDC(nullptr);
    const int puntos = GetDeviceCaps(hdc, LOGPIXELSX);
    ReleaseDC(nullptr, hdc);
    return puntos;
}

inline LONG Ancho(const RECT& r) {
    return r.right - r.left;
}

inline LONG Alto(const RECT& r) {
    return r.bottom - r.top;
}

} // namespace anfitrion
