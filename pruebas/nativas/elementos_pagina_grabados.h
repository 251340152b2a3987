// Widgets of a property page that keep their state, note every change in the record and let a test
// act as the user. Reading is not noted. `nombre` starts each line.
#pragma once

#include "common/errores.h"
#include "plataforma/elementos_pagina.h"
#include "pruebas/nativas/registro.h"

#include <string>
#include <vector>

namespace pincela::pruebas {

template <class Base>
class ElementoGrabado : public Base {
  public:
    ElementoGrabado(Registro& registro, std::string quien)
        : nombre(std::move(quien)), registro_(registro) {}

    const std::string nombre;

    bool Enabled() const override { return activo_; }
    void PonEnabled(bool valor) override {
        activo_ = valor;
        Anotar("Enabled " + Describir(valor));
    }
    bool Visible() const override { return visible_; }
    void PonVisible(bool valor) override {
        visible_ = valor;
        Anotar("Visible " + Describir(valor));
    }

  protected:
    void Anotar(const std::string& que) const { registro_.Anotar(nombre + "." + que); }
    Registro& registro_;

  private:
    bool activo_ = true, visible_ = true;
};

using RotuloGrabado = ElementoGrabado<ElementoPagina>;

class CampoGrabado : public ElementoGrabado<CampoTexto> {
  public:
    using ElementoGrabado::ElementoGrabado;

    Texto Text() const override { return texto_; }
    void PonText(const Texto& texto) override {
        texto_ = texto;
        Anotar("Text " + Describir(texto));
        Change();
    }

    /// The user replaces the whole text, as with the clipboard: no key is asked for.
    void Pegar(const Texto& texto) {
        texto_ = texto;
        Change();
    }
    /// A character typed at the end; the code that came through.
    std::int16_t Teclear(std::int16_t caracter) {
        KeyPress(caracter);
        if (caracter >= ' ')
            Pegar(texto_ + static_cast<char16_t>(caracter));
        return caracter;
    }

  private:
    Texto texto_;
};

class CasillaGrabada : public ElementoGrabado<Casilla> {
  public:
    using ElementoGrabado::ElementoGrabado;

    std::int32_t Value() const override { return valor_; }
    void PonValue(std::int32_t valor) override {
        const bool cambia = valor != valor_;
        valor_ = valor;
        Anotar("Value " + Numero(valor));
        if (cambia)
            Click();
    }
    void Pulsar() {
        valor_ = valor_ == 1 ? 0 : 1;
        Click();
    }

  private:
    std::int32_t valor_ = 0;
};

class OpcionGrabada : public ElementoGrabado<Opcion> {
  public:
    using ElementoGrabado::ElementoGrabado;

    /// The others of its group.
    std::vector<OpcionGrabada*> otras;

    bool Value() const override { return elegida_; }
    void Elegir() override {
        Anotar("Value True");
        Pulsar();
    }
    void Pulsar() {
        for (OpcionGrabada* otra : otras)
            otra->elegida_ = false;
        elegida_ = true;
        Click();
    }

  private:
    bool elegida_ = false;
};

class ListaGrabada : public ElementoGrabado<ListaDesplegable> {
  public:
    using ElementoGrabado::ElementoGrabado;

    std::vector<Texto> items;

    void Clear() override {
        items.clear();
        indice_ = -1;
        Anotar("Clear");
    }
    void AddItem(VistaTexto item) override { items.emplace_back(item); }
    std::int32_t ListIndex() const override { return indice_; }
    void PonListIndex(std::int32_t indice) override {
        Anotar("ListIndex " + Numero(indice));
        if (indice < -1 || indice >= static_cast<std::int32_t>(items.size()))
            Lanzar(NumeroError::ValorDePropiedad);
        Pulsar(indice);
    }
    /// The user takes an item; taking the same one again tells nothing.
    void Pulsar(std::int32_t indice) {
        const bool cambia = indice != indice_;
        indice_ = indice;
        if (cambia)
            Click();
    }

  private:
    std::int32_t indice_ = -1;
};

class DeslizadorGrabado : public ElementoGrabado<Deslizador> {
  public:
    using ElementoGrabado::ElementoGrabado;

    std::int32_t maximo = 1500; // from 0

    std::int32_t Value() const override { return valor_; }
    void PonValue(std::int32_t valor) override {
        Anotar("Value " + Numero(valor));
        if (valor < 0 || valor > maximo)
            Lanzar(NumeroError::ValorDePropiedad);
        valor_ = valor;
    }
    void Mover(std::int32_t valor) {
        valor_ = valor;
        Scroll();
    }

  private:
    std::int32_t valor_ = 0;
};

class BotonGrabado : public ElementoGrabado<BotonPagina> {
  public:
    using ElementoGrabado::ElementoGrabado;
    void Pulsar() { Click(); }
};

class BotonColorGrabado : public ElementoGrabado<BotonColor> {
  public:
    using ElementoGrabado::ElementoGrabado;

    Color BackColor() const override { return color_; }
    void PonBackColor(Color color) override {
        color_ = color;
        Anotar("BackColor " + Describir(color));
    }
    std::int32_t Left() const override { return izquierda_; }
    std::int32_t Width() const override { return ancho_; }
    void Move(std::int32_t izquierda, std::int32_t ancho) override {
        izquierda_ = izquierda;
        ancho_ = ancho;
        Anotar("Move " + Punto(izquierda, ancho));
    }
    void Pulsar() { Click(); }

  private:
    Color color_ = CaraDeBoton;
    std::int32_t izquierda_ = 0, ancho_ = 0;
};

class MarcoGrabado : public ElementoGrabado<MarcoPagina> {
  public:
    using ElementoGrabado::ElementoGrabado;

    std::int32_t ancho = 3690; // twips
    int creados = 0;

    std::int32_t Width() const override { return ancho; }
    std::unique_ptr<BotonColor> CrearBotonColor() override {
        auto boton = std::make_unique<BotonColorGrabado>(registro_, nombre + ".tope" +
                                                                        std::to_string(creados++));
        boton->PonVisible(false);
        return boton;
    }
};

class CuadroPaginaGrabado : public ElementoGrabado<CuadroPagina> {
  public:
    CuadroPaginaGrabado(Registro& registro, std::string quien, Manejador hdc)
        : ElementoGrabado(registro, std::move(quien)), hdc(hdc), ventana(hdc + 1000) {}

    const Manejador hdc;
    Manejador ventana;
    float ancho = 120, alto = 40;

    Manejador hWnd() override { return ventana; }
    Manejador hDC() override { return hdc; }
    float ScaleWidth() const override { return ancho; }
    float ScaleHeight() const override { return alto; }
    void PonBackColor(Color color) override { Anotar("BackColor " + Describir(color)); }
    void Refresh() override { Anotar("Refresh"); }
};

} // namespace pincela::pruebas
