// Pixels of a window: for screenshots and for tests that look at what was painted.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace anfitrion {

/// A 32-bit picture, rows from the top down.
class Captura {
  public:
    Captura(int ancho, int alto);

    /// What the window and its children show, client area or whole window. The window has to be
    /// visible; pending paints are done first.
    static Captura DeVentana(HWND ventana, bool conMarco = false);
    /// The same through WM_PRINT, for windows that are not visible and know that message.
    static Captura Impresa(HWND ventana);
    /// What `dibujar(HDC)` paints on a white sheet.
    template <class Dibujar>
    static Captura DeDibujo(int ancho, int alto, Dibujar dibujar) {
        Lienzo lienzo(ancho, alto);
        dibujar(lienzo.hdc);
        return lienzo.Copiar();
    }

    int Ancho() const { return ancho_; }
    int Alto() const { return alto_; }
    /// Colour of one pixel; CLR_INVALID outside.
    COLORREF Pixel(int x, int y) const;
    /// How many pixels of the rectangle have the colour.
    int Contar(const RECT& r, COLORREF color) const;
    /// How many different colours the picture shows.
    int Colores() const;
    friend bool operator==(const Captura&, const Captura&) = default;

    /// Writes a PNG file; throws FalloCom. COM must be initialised.
    void GuardarPng(const std::wstring& ruta) const;

  private:
    /// A memory device context with its bitmap.
    struct Lienzo {
        Lienzo(int ancho, int alto);
        Lienzo(const Lienzo&) = delete;
        Lienzo& operator=(const Lienzo&) = delete;
        ~Lienzo();
        Captura Copiar() const;

        int ancho, alto;
        HDC hdc;
        HBITMAP mapa;
        HGDIOBJ anterior;
        void* bits = nullptr;
    };

    int ancho_, alto_;
    std::vector<DWORD> pixeles_; ///< 0x00RRGGBB, as a 32-bit DIB keeps them
};

} // namespace anfitrion
