// Off-screen picture box.
#pragma once

#include "plataforma/windows/escala.h"
#include "plataforma/windows/lienzo_dib.h"
#include "plataforma/windows/nucleo.h"

namespace pincela::windows {

class CuadroImagenWindows final : public LienzoConImagen<CuadroImagen> {
  public:
    explicit CuadroImagenWindows(Nucleo& nucleo) : LienzoConImagen(nucleo.ppp) {}

    void Move(float, float, float ancho, float alto) override {
        lienzo_.PonTamano({Redondo(ancho), Redondo(alto)});
    }
    /// Shows the picture at its own size on a cleared image.
    void PonPicture(const Imagen& imagen) override {
        Cls();
        if (imagen)
            PaintPicture(imagen, 0, 0, EscalaX(imagen->Width()), EscalaY(imagen->Height()));
    }
};

} // namespace pincela::windows
