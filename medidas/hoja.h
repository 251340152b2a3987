// A 32-bit image of our own with its device context.
#pragma once

#include <windows.h>

namespace medidas {

class Hoja {
  public:
    Hoja(LONG ancho, LONG alto) : dc_(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, ancho, -alto, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        mapa_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        anterior_ = SelectObject(dc_, mapa_);
    }
    Hoja(const Hoja&) = delete;
    Hoja& operator=(const Hoja&) = delete;
    ~Hoja() {
        SelectObject(dc_, anterior_);
        DeleteObject(mapa_);
        DeleteDC(dc_);
    }
    HDC dc() const { return dc_; }

  private:
    HDC dc_;
    HBITMAP mapa_;
    HGDIOBJ anterior_;
};

} // namespace medidas
