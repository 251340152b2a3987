// The persistent image of a canvas: 32 bits a pixel, rows from the top.
//
// Until something is drawn the image is only a colour and costs no memory; of a size that no screen
// has it stays one, whatever is drawn. A pixel that nothing
// was drawn on since the last clearing keeps a mark in its unused byte, so that a transparent
// surface knows where the container shows through.
#pragma once

#include "common/color.h"
#include "plataforma/windows/manijas.h"

#include <cstddef>
#include <cstdint>

namespace pincela::windows {

class ImagenDib {
  public:
    explicit ImagenDib(Color fondo) : fondo_(fondo) {}

    /// Keeps what the image shows; the new area takes `fondoNuevo`.
    void PonTamano(int ancho, int alto, Color fondoNuevo);
    int Ancho() const { return ancho_; }
    int Alto() const { return alto_; }

    /// Whole image to one colour.
    void Limpiar(Color fondo);

    /// Made on the first call; null when the platform has no memory left or no screen is that
    /// large.
    HDC Dc();
    /// Rows of Ancho() pixels, valid until the size changes; pending drawing is finished first.
    std::uint32_t* Pixeles();

    /// False while the image is one colour.
    bool Existe() const { return static_cast<bool>(mapa_); }
    /// The colour of a not yet existing image.
    Color Fondo() const { return fondo_; }
    /// Value of the pixels nothing was drawn on.
    std::uint32_t PixelSinDibujar() const { return pixelFondo_; }

  private:
    void Crear();
    void Llenar(std::uint32_t pixel);

    int ancho_ = 1, alto_ = 1;
    Color fondo_;
    std::uint32_t pixelFondo_ = 0;
    DcConMapa mapa_;
    std::uint32_t* pixeles_ = nullptr;
};

} // namespace pincela::windows
