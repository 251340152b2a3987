// Everything a canvas does, on a persistent image.
#pragma once

#include "plataforma/lienzo.h"
#include "plataforma/windows/imagen_dib.h"

namespace pincela::windows {

class LienzoDib {
  public:
    /// `ppp` is read whenever a size in HIMETRIC is converted.
    explicit LienzoDib(const int& ppp) : ppp_(ppp) {}

    void PonTamano(SIZE tamano);
    SIZE Tamano() const { return tamano_; }
    ImagenDib& imagen() { return imagen_; }

    Color fondo = CaraDeBoton;
    std::int32_t anchoDeLinea = 1;

    void Cls() { imagen_.Limpiar(fondo); }
    void Line(float x1, float y1, float x2, float y2, Color color);
    void Contorno(const ContornoRedondo& contorno);
    void PaintPicture(const Imagen& imagen, float izquierda, float arriba, float ancho, float alto);
    void Desvanecer();
    float Escala(std::int32_t himetric) const;

  private:
    const int& ppp_;
    SIZE tamano_{0, 0};
    ImagenDib imagen_{CaraDeBoton};
};

/// The canvas operations of a surface or picture box; `Cambiado` runs after each one that draws.
template <class Interfaz>
class LienzoConImagen : public Interfaz {
  public:
    explicit LienzoConImagen(const int& ppp) : lienzo_(ppp) {}

    Manejador hDC() override {
        const auto dc = reinterpret_cast<Manejador>(lienzo_.imagen().Dc());
        Cambiado();
        return dc;
    }
    float ScaleWidth() const override { return static_cast<float>(lienzo_.Tamano().cx); }
    float ScaleHeight() const override { return static_cast<float>(lienzo_.Tamano().cy); }
    Color BackColor() const override { return lienzo_.fondo; }
    void PonBackColor(Color color) override { lienzo_.fondo = color; }
    std::int32_t DrawWidth() const override { return lienzo_.anchoDeLinea; }
    void PonDrawWidth(std::int32_t ancho) override { lienzo_.anchoDeLinea = ancho < 1 ? 1 : ancho; }
    void Cls() override {
        lienzo_.Cls();
        Cambiado();
    }
    void Line(float x1, float y1, float x2, float y2, Color color) override {
        lienzo_.Line(x1, y1, x2, y2, color);
        Cambiado();
    }
    void Contorno(const ContornoRedondo& contorno) override {
        lienzo_.Contorno(contorno);
        Cambiado();
    }
    void PaintPicture(const Imagen& imagen, float izquierda, float arriba, float ancho,
                      float alto) override {
        if (!imagen)
            return;
        lienzo_.PaintPicture(imagen, izquierda, arriba, ancho, alto);
        Cambiado();
    }
    float EscalaX(std::int32_t himetric) const override { return lienzo_.Escala(himetric); }
    float EscalaY(std::int32_t himetric) const override { return lienzo_.Escala(himetric); }
    void Desvanecer() override {
        lienzo_.Desvanecer();
        Cambiado();
    }

  protected:
    virtual void Cambiado() {}
    LienzoDib lienzo_;
};

} // namespace pincela::windows
