// Colours as the device takes them.
#pragma once

#include "common/color.h"
#include "plataforma/windows/manijas.h"

namespace pincela::windows {

/// A system colour is looked up now, so what is drawn later follows a change of theme.
inline COLORREF Resolver(Color color) {
    return color.EsDeSistema() ? ::GetSysColor(color.valor & 0xFF)
                               : static_cast<COLORREF>(color.valor) & 0xFFFFFF;
}

/// Colour as a pixel of a 32-bit image.
constexpr std::uint32_t APixel(COLORREF color) {
    return ((color & 0xFF) << 16) | (color & 0xFF00) | ((color >> 16) & 0xFF);
}

/// Solid fill without a brush of its own; leaves another colour in the context's brush.
inline void Llenar(HDC dc, const RECT& lugar, COLORREF color) {
    if (lugar.right <= lugar.left || lugar.bottom <= lugar.top)
        return;
    ::SetDCBrushColor(dc, color);
    ::FillRect(dc, &lugar, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
}

} // namespace pincela::windows
