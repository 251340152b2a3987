// Windowless line segment.
#pragma once

#include "plataforma/windows/colores.h"
#include "plataforma/windows/nucleo.h"
#include "plataforma/windows/trazo.h"

namespace pincela::windows {

class LineaWindows final : public Linea, public ElementoVisual {
  public:
    explicit LineaWindows(Nucleo& nucleo) : nucleo_(nucleo) { nucleo_.escena.Agregar(*this); }
    ~LineaWindows() {
        nucleo_.escena.Quitar(*this);
        if (visible_)
            nucleo_.VistaCambiada();
    }

    void Move(float x1, float y1, float x2, float y2) override {
        x1_ = x1, y1_ = y1, x2_ = x2, y2_ = y2;
        nucleo_.VistaCambiada();
    }
    bool Visible() const override { return visible_; }
    void PonVisible(bool valor) override {
        if (valor != visible_) {
            visible_ = valor;
            nucleo_.VistaCambiada();
        }
    }
    Color BorderColor() const override { return color_; }
    void PonBorderColor(Color color) override {
        if (color != color_) {
            color_ = color;
            nucleo_.VistaCambiada();
        }
    }
    void PonBorderWidth(std::int32_t ancho) override {
        ancho_ = ancho;
        nucleo_.VistaCambiada();
    }

    void Dibujar(const Destino& destino) const override {
        if (visible_)
            TrazarLinea(destino, x1_, y1_, x2_, y2_, ancho_, Resolver(color_));
    }

  private:
    Nucleo& nucleo_;
    float x1_ = 0, y1_ = 0, x2_ = 0, y2_ = 0;
    bool visible_ = true;
    Color color_ = TextoDeVentana;
    std::int32_t ancho_ = 1;
};

} // namespace pincela::windows
