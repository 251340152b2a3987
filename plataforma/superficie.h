// The surface of a control: its canvas and its window.
#pragma once

#include "common/texto.h"
#include "plataforma/lienzo.h"

namespace pincela {

class Superficie : public Lienzo {
  public:
    /// 0 until the control is active in a window.
    virtual Manejador hWnd() = 0;

    /// 1 opaque, 0 transparent: the container shows wherever nothing is drawn.
    virtual std::int16_t BackStyle() const = 0;
    virtual void PonBackStyle(std::int16_t estilo) = 0;

    /// Pointer constants of form designers: 0 default, 1 arrow, 2 cross, 3 text, ... 99 custom.
    virtual std::int16_t MousePointer() const = 0;
    virtual void PonMousePointer(std::int16_t puntero) = 0;
    virtual Imagen MouseIcon() const = 0;
    virtual void PonMouseIcon(const Imagen& icono) = 0;

    /// Characters that activate the control together with ALT; the container is told of a change.
    virtual Texto AccessKeys() const = 0;
    virtual void PonAccessKeys(const Texto& teclas) = 0;

    /// Shows the image and the widgets on screen at once.
    virtual void Refresh() = 0;
    virtual void SetFocus() = 0;
};

} // namespace pincela
