// A sheet in memory to draw on, and its handle as automation takes it.
#pragma once

#include <windows.h>

namespace publicado {

class Lamina {
  public:
    Lamina(int ancho, int alto) : hdc_(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = ancho;
        info.bmiHeader.biHeight = -alto;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        mapa_ = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        anterior_ = SelectObject(hdc_, mapa_);
        Llenar({0, 0, ancho, alto}, Limpia);
    }
    Lamina(const Lamina&) = delete;
    Lamina& operator=(const Lamina&) = delete;
    ~Lamina() {
        SelectObject(hdc_, anterior_);
        DeleteObject(mapa_);
        DeleteDC(hdc_);
    }

    /// Colour of a sheet that nobody drew on.
    static constexpr COLORREF Limpia = RGB(1, 2, 3);

    void Llenar(const RECT& r, COLORREF color) {
        const HBRUSH brocha = CreateSolidBrush(color);
        FillRect(hdc_, &r, brocha);
        DeleteObject(brocha);
    }
    COLORREF Pixel(int x, int y) const { return GetPixel(hdc_, x, y); }
    HDC Hdc() const { return hdc_; }
    long Numero() const { return static_cast<long>(HandleToLong(hdc_)); }

  private:
    HDC hdc_;
    HBITMAP mapa_;
    HGDIOBJ anterior_;
};

} // namespace publicado
