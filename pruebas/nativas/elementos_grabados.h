// Widgets and canvases that keep their state and note every change in the record. Reading is not
// noted. `nombre` starts each line.
#pragma once

#include "common/errores.h"
#include "plataforma/elementos.h"
#include "plataforma/superficie.h"
#include "pruebas/nativas/registro.h"

#include <algorithm>
#include <map>
#include <string>

namespace pincela::pruebas {

class EntornoGrabador;

class FuenteGrabada : public ObjetoFuente {
  public:
    explicit FuenteGrabada(AtributosFuente atributos = {}) : atributos_(std::move(atributos)) {}
    AtributosFuente Atributos() const override { return atributos_; }

  private:
    AtributosFuente atributos_;
};

class ImagenGrabada : public ObjetoImagen {
  public:
    /// Size in HIMETRIC.
    ImagenGrabada(std::string quien, std::int32_t ancho, std::int32_t alto)
        : nombre(std::move(quien)), ancho_(ancho), alto_(alto) {}
    std::int32_t Width() const override { return ancho_; }
    std::int32_t Height() const override { return alto_; }

    const std::string nombre;

  private:
    std::int32_t ancho_, alto_;
};

std::string NombreDe(const Imagen& imagen);

/// What every recorded thing has; known to its host by name while it lives.
class Grabado {
  public:
    Grabado(EntornoGrabador& entorno, std::string quien);
    Grabado(const Grabado&) = delete;
    Grabado& operator=(const Grabado&) = delete;
    virtual ~Grabado();

    const std::string nombre;

  protected:
    void Anotar(const std::string& que) const;
    EntornoGrabador& entorno_;
};

template <class Base>
class LienzoGrabado : public Base, public Grabado {
  public:
    LienzoGrabado(EntornoGrabador& entorno, std::string quien, Manejador hdc)
        : Grabado(entorno, std::move(quien)), hdc_(hdc) {}

    // Settable by the tests.
    float ancho = 0, alto = 0;
    float himetricPorPixel = 25;

    Manejador hDC() override { return hdc_; }
    float ScaleWidth() const override { return ancho; }
    float ScaleHeight() const override { return alto; }
    Color BackColor() const override { return fondo_; }
    void PonBackColor(Color color) override {
        fondo_ = color;
        Anotar("BackColor " + Describir(color));
    }
    std::int32_t DrawWidth() const override { return grosor_; }
    void PonDrawWidth(std::int32_t valor) override {
        grosor_ = std::max(valor, 1);
        Anotar("DrawWidth " + Numero(valor));
    }
    void Cls() override { Anotar("Cls " + Describir(fondo_)); }
    void Line(float x1, float y1, float x2, float y2, Color color) override {
        Anotar("Line " + Punto(x1, y1) + " " + Punto(x2, y2) + " " + Describir(color));
    }
    void Contorno(const ContornoRedondo& c) override {
        Anotar("Contorno " + Punto(c.izquierda, c.arriba) + " " + Punto(c.derecha, c.abajo) +
               " elipse " + Numero(c.anchoElipse) + "x" + Numero(c.altoElipse) + " grosor " +
               Numero(c.grosor) + " " + Describir(c.arribaIzquierda) + " " +
               Describir(c.abajoDerecha));
    }
    void PaintPicture(const Imagen& imagen, float izquierda, float arriba, float an,
                      float al) override {
        Anotar("PaintPicture " + NombreDe(imagen) + " " + Caja(izquierda, arriba, an, al));
    }
    float EscalaX(std::int32_t himetric) const override {
        return static_cast<float>(himetric) / himetricPorPixel;
    }
    float EscalaY(std::int32_t himetric) const override {
        return static_cast<float>(himetric) / himetricPorPixel;
    }
    void Desvanecer() override { Anotar("Desvanecer"); }

  private:
    Manejador hdc_;
    Color fondo_ = CaraDeBoton;
    std::int32_t grosor_ = 1;
};

class SuperficieGrabada : public LienzoGrabado<Superficie> {
  public:
    using LienzoGrabado::LienzoGrabado;

    Manejador ventana = 500; // settable; 0 before there is a window
    /// Called in the middle of a Refresh or SetFocus, as a host lets handlers run there.
    std::function<void()> alRefrescar, alEnfocar;

    Manejador hWnd() override { return ventana; }
    std::int16_t BackStyle() const override { return estilo_; }
    void PonBackStyle(std::int16_t estilo) override;
    std::int16_t MousePointer() const override { return puntero_; }
    void PonMousePointer(std::int16_t puntero) override;
    Imagen MouseIcon() const override { return icono_; }
    void PonMouseIcon(const Imagen& icono) override;
    Texto AccessKeys() const override { return teclas_; }
    void PonAccessKeys(const Texto& teclas) override;
    void Refresh() override;
    void SetFocus() override;

  private:
    std::int16_t estilo_ = 1, puntero_ = 0;
    Imagen icono_;
    Texto teclas_;
};

class CuadroGrabado : public LienzoGrabado<CuadroImagen> {
  public:
    using LienzoGrabado::LienzoGrabado;

    Imagen imagen;

    void Move(float izquierda, float arriba, float an, float al) override;
    void PonPicture(const Imagen& valor) override;
};

class EtiquetaGrabada : public Etiqueta, public Grabado {
  public:
    using Grabado::Grabado;

    Texto Caption() const override { return texto_; }
    void PonCaption(const Texto& texto) override;
    Fuente Font() const override { return fuente_; }
    void PonFont(const Fuente& fuente) override;
    Color ForeColor() const override { return color_; }
    void PonForeColor(Color color) override;
    bool Enabled() const override { return activa_; }
    void PonEnabled(bool valor) override;
    Texto ToolTipText() const override { return ayuda_; }
    void PonToolTipText(const Texto& texto) override;
    float Left() const override { return izquierda_; }
    float Top() const override { return arriba_; }
    float Width() const override;
    float Height() const override;
    void Move(float izquierda, float arriba) override;
    void PonOyente(OyenteRaton* valor) override { oyente = valor; }

    OyenteRaton* oyente = nullptr;

  private:
    Texto texto_, ayuda_;
    Fuente fuente_;
    Color color_ = TextoDeVentana;
    bool activa_ = true;
    float izquierda_ = 0, arriba_ = 0;
};

class TemporizadorGrabado : public Temporizador, public Grabado {
  public:
    using Grabado::Grabado;

    std::int32_t Interval() const override { return intervalo_; }
    void PonInterval(std::int32_t milisegundos) override;
    bool Enabled() const override { return activo_; }
    void PonEnabled(bool valor) override;
    void AlTic(std::function<void()> accion) override { accion_ = std::move(accion); }

    /// One tick, if it is running; whether it was.
    bool Tic();

  private:
    std::int32_t intervalo_ = 0;
    bool activo_ = false;
    std::function<void()> accion_;
};

class RectanguloGrabado : public Rectangulo, public Grabado {
  public:
    using Grabado::Grabado;

    void Move(float izquierda, float arriba, float ancho, float alto) override;
    bool Visible() const override { return visible_; }
    void PonVisible(bool valor) override;
    void PonBorde(Borde borde) override;
    void PonBorderColor(Color color) override;
    void PonFillColor(Color color) override;
    void PonElipse(std::int32_t ancho, std::int32_t alto) override;

  private:
    bool visible_ = true;
};

class LineaGrabada : public Linea, public Grabado {
  public:
    using Grabado::Grabado;

    void Move(float x1, float y1, float x2, float y2) override;
    bool Visible() const override { return visible_; }
    void PonVisible(bool valor) override;
    Color BorderColor() const override { return color_; }
    void PonBorderColor(Color color) override;
    void PonBorderWidth(std::int32_t ancho) override;

  private:
    bool visible_ = true;
    Color color_;
};

class CajaGrabada : public CajaTexto, public Grabado {
  public:
    CajaGrabada(EntornoGrabador& entorno, std::string quien, Manejador ventana, bool multilinea)
        : Grabado(entorno, std::move(quien)), multilinea(multilinea), ventana_(ventana) {}

    const bool multilinea;
    OyenteEdicion* oyente = nullptr;

    Texto Text() const override { return texto_; }
    void PonText(const Texto& texto) override;
    std::int32_t SelStart() const override { return Dentro(inicio_); }
    void PonSelStart(std::int32_t inicio) override;
    std::int32_t SelLength() const override { return Dentro(inicio_ + largo_) - SelStart(); }
    void PonSelLength(std::int32_t largo) override;
    Texto SelText() const override;
    std::int32_t MaxLength() const override { return maximo_; }
    void PonMaxLength(std::int32_t largo) override;
    std::int32_t Alignment() const override { return alineacion_; }
    void PonAlignment(std::int32_t alineacion) override;
    std::int32_t Appearance() const override { return apariencia_; }
    void PonAppearance(std::int32_t apariencia) override;
    bool Locked() const override { return trancada_; }
    void PonLocked(bool valor) override;
    bool Enabled() const override { return activa_; }
    void PonEnabled(bool valor) override;
    Fuente Font() const override { return fuente_; }
    void PonFont(const Fuente& fuente) override;
    Color ForeColor() const override { return letra_; }
    void PonForeColor(Color color) override;
    Color BackColor() const override { return fondo_; }
    void PonBackColor(Color color) override;
    Texto ToolTipText() const override { return ayuda_; }
    void PonToolTipText(const Texto& texto) override;
    void PonNombreAccesible(const Texto& texto) override;
    void Move(float izquierda, float arriba, float ancho, float alto) override;
    Manejador hWnd() override { return ventana_; }
    void SetFocus() override;
    bool EsActivo() const override;
    void PonOyente(OyenteEdicion* valor) override { oyente = valor; }

    /// A character typed by the user: asks the listener, then replaces the selection.
    void Teclear(std::int16_t caracter);

  private:
    std::int32_t Dentro(std::int64_t posicion) const;

    Manejador ventana_;
    Texto texto_, ayuda_;
    std::int32_t inicio_ = 0, largo_ = 0, maximo_ = 0, alineacion_ = 0, apariencia_ = 1;
    bool trancada_ = false, activa_ = true;
    Fuente fuente_;
    Color letra_ = TextoDeVentana, fondo_ = FondoDeVentana;
};

} // namespace pincela::pruebas
