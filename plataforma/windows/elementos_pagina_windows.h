// The widgets of a property page on the platform's own controls.
//
// What a widget shows is kept here; its window is a view that comes and goes with the page's.
#pragma once

#include "plataforma/elementos_pagina.h"
#include "plataforma/windows/diseno_pagina.h"
#include "plataforma/windows/lienzo_dib.h"

#include <windows.h>

#include <functional>
#include <vector>

namespace pincela::windows {

/// Runs a handler of the page where nobody can be told of its error.
class Avisador {
  public:
    virtual void Avisar(const std::function<void()>& manejador) = 0;

  protected:
    ~Avisador() = default;
};

/// The part of a widget that is its window.
class VentanaDeElemento {
  public:
    /// `pieza` is null for what is not in the layout; `numero` identifies the window.
    VentanaDeElemento(Avisador& avisador, const Pieza* pieza, WORD numero)
        : avisador_(avisador), pieza_(pieza), numero_(numero) {}
    VentanaDeElemento(const VentanaDeElemento&) = delete;
    VentanaDeElemento& operator=(const VentanaDeElemento&) = delete;
    virtual ~VentanaDeElemento() = default;

    void PonMarco(VentanaDeElemento* marco);
    HWND Ventana() const { return ventana_; }
    /// The window that is typed or clicked into.
    virtual HWND VentanaDeFoco() const { return ventana_; }
    WORD Numero() const { return numero_; }

    void Atar(HWND ventana);
    void Soltar();

    // What the window tells.
    virtual void Mandato(WORD /*codigo*/) {}
    virtual void Desplazado() {}
    virtual void Pintar(const DRAWITEMSTRUCT& /*dibujo*/) {}

  protected:
    /// Gives a new window what the widget shows.
    virtual void Volcar() {}
    virtual void Soltada() {}
    /// In use or not, shown or not: its own state and that of the frames around it.
    void MostrarEstado();
    void OlvidarContenido(VentanaDeElemento* contenido) { std::erase(contenidos_, contenido); }
    bool EstaEnUso() const;
    bool EstaALaVista() const;

    Avisador& avisador_;
    const Pieza* const pieza_;
    const WORD numero_;
    HWND ventana_ = nullptr;
    bool activo_ = true, visible_ = true;

  private:
    VentanaDeElemento* marco_ = nullptr;
    std::vector<VentanaDeElemento*> contenidos_;
};

template <class Base>
class ElementoWindows : public Base, public VentanaDeElemento {
  public:
    using VentanaDeElemento::VentanaDeElemento;

    bool Enabled() const override { return activo_; }
    void PonEnabled(bool valor) override {
        activo_ = valor;
        MostrarEstado();
    }
    bool Visible() const override { return visible_; }
    void PonVisible(bool valor) override {
        visible_ = valor;
        MostrarEstado();
    }
};

using RotuloWindows = ElementoWindows<ElementoPagina>;

class CampoWindows final : public ElementoWindows<CampoTexto> {
  public:
    using ElementoWindows::ElementoWindows;

    Texto Text() const override { return texto_; }
    void PonText(const Texto& texto) override;
    void Mandato(WORD codigo) override;

  private:
    void Volcar() override;
    void Soltada() override;
    void Escribir();
    static LRESULT CALLBACK Procedimiento(HWND ventana, UINT mensaje, WPARAM w, LPARAM l, UINT_PTR,
                                          DWORD_PTR campo);

    Texto texto_;
    bool callado_ = false; // its own assignment is no edit
};

class CasillaWindows final : public ElementoWindows<Casilla> {
  public:
    using ElementoWindows::ElementoWindows;

    std::int32_t Value() const override { return valor_; }
    void PonValue(std::int32_t valor) override;
    void Mandato(WORD codigo) override;

  private:
    void Volcar() override;
    std::int32_t valor_ = 0;
};

class OpcionWindows final : public ElementoWindows<Opcion> {
  public:
    using ElementoWindows::ElementoWindows;

    /// The options of the page, this one included; not owned.
    const std::vector<OpcionWindows*>* grupo = nullptr;

    bool Value() const override { return elegida_; }
    void Elegir() override;
    void Mandato(WORD codigo) override;

  private:
    void Volcar() override;
    bool elegida_ = false;
};

class ListaWindows final : public ElementoWindows<ListaDesplegable> {
  public:
    using ElementoWindows::ElementoWindows;

    void Clear() override;
    void AddItem(VistaTexto item) override;
    std::int32_t ListIndex() const override { return indice_; }
    void PonListIndex(std::int32_t indice) override;
    void Mandato(WORD codigo) override;

  private:
    void Volcar() override;
    std::vector<Texto> items_;
    std::int32_t indice_ = -1;
};

/// From 0 to 1500.
class DeslizadorWindows final : public ElementoWindows<Deslizador> {
  public:
    using ElementoWindows::ElementoWindows;
    static constexpr std::int32_t Maximo = 1500;

    std::int32_t Value() const override { return valor_; }
    void PonValue(std::int32_t valor) override;
    void Desplazado() override;

  private:
    void Volcar() override;
    std::int32_t valor_ = 0;
};

class BotonWindows final : public ElementoWindows<BotonPagina> {
  public:
    using ElementoWindows::ElementoWindows;
    void Mandato(WORD codigo) override;
};

class BotonColorWindows : public ElementoWindows<BotonColor> {
  public:
    using ElementoWindows::ElementoWindows;

    Color BackColor() const override { return color_; }
    void PonBackColor(Color color) override;
    std::int32_t Left() const override { return izquierda_; }
    std::int32_t Width() const override { return ancho_; }
    void Move(std::int32_t izquierda, std::int32_t ancho) override;
    void Mandato(WORD codigo) override;
    void Pintar(const DRAWITEMSTRUCT& dibujo) override;

  protected:
    std::int32_t izquierda_ = 0, ancho_ = 0;

  private:
    Color color_ = CaraDeBoton;
};

class FilaDeTopesWindows;

/// A button that lives in a row, not in the layout.
class TopeWindows final : public BotonColorWindows {
  public:
    TopeWindows(Avisador& avisador, FilaDeTopesWindows& fila, WORD numero);
    ~TopeWindows() override;

    void Move(std::int32_t izquierda, std::int32_t ancho) override;
    void Crear();

  private:
    void Ubicar();
    FilaDeTopesWindows& fila_;
};

class FilaDeTopesWindows final : public ElementoWindows<MarcoPagina> {
  public:
    using ElementoWindows::ElementoWindows;

    std::int32_t Width() const override { return TwipsDe(pieza_->ancho); }
    HWND VentanaDeFoco() const override;
    std::unique_ptr<BotonColor> CrearBotonColor() override;

    /// Null when the row has no stop of that number.
    TopeWindows* Tope(WORD numero) const;
    /// Where the stops lie, in pixels of the page.
    RECT Interior() const;
    HWND UltimaVentana(const TopeWindows* antesDe) const;
    void Olvidar(TopeWindows* tope);

  private:
    void Volcar() override;
    void Soltada() override;
    std::vector<TopeWindows*> topes_; // in order of creation
};

class CuadroWindows final : public ElementoWindows<CuadroPagina> {
  public:
    CuadroWindows(Avisador& avisador, const Pieza* pieza, WORD numero);

    Manejador hWnd() override { return reinterpret_cast<Manejador>(ventana_); }
    Manejador hDC() override { return reinterpret_cast<Manejador>(lienzo_.imagen().Dc()); }
    float ScaleWidth() const override { return static_cast<float>(lienzo_.Tamano().cx); }
    float ScaleHeight() const override { return static_cast<float>(lienzo_.Tamano().cy); }
    void PonBackColor(Color color) override;
    void Refresh() override;
    void Pintar(const DRAWITEMSTRUCT& dibujo) override;

  private:
    void Volcar() override;
    int ppp_ = 96;
    LienzoDib lienzo_{ppp_};
};

} // namespace pincela::windows
