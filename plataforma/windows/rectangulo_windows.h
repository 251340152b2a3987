// Windowless rectangle.
#pragma once

#include "plataforma/windows/nucleo.h"

namespace pincela::windows {

class RectanguloWindows final : public Rectangulo, public ElementoVisual {
  public:
    explicit RectanguloWindows(Nucleo& nucleo);
    ~RectanguloWindows();

    void Move(float izquierda, float arriba, float ancho, float alto) override;
    bool Visible() const override { return visible_; }
    void PonVisible(bool valor) override { Cambiar(visible_, valor); }
    void PonBorde(Borde borde) override { Cambiar(borde_, borde); }
    void PonBorderColor(Color color) override { Cambiar(colorBorde_, color); }
    void PonFillColor(Color color) override { Cambiar(colorRelleno_, color); }
    void PonElipse(std::int32_t ancho, std::int32_t alto) override;

    void Dibujar(const Destino& destino) const override;

  private:
    template <class T>
    void Cambiar(T& campo, const T& valor) {
        if (campo == valor)
            return;
        campo = valor;
        nucleo_.VistaCambiada();
    }

    Nucleo& nucleo_;
    Zona lugar_;
    bool visible_ = true;
    Borde borde_ = Borde::Continuo;
    Color colorBorde_ = TextoDeVentana;
    Color colorRelleno_ = SinColor;
    std::int32_t anchoElipse_ = 0, altoElipse_ = 0;
};

} // namespace pincela::windows
