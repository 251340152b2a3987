// The recording host of a property page: every change of a widget, of the designer's flag and
// every dialog becomes one line of a record, in order.
#pragma once

#include "plataforma/control.h"
#include "plataforma/entorno_pagina.h"
#include "pruebas/nativas/elementos_pagina_grabados.h"
#include "pruebas/nativas/entorno_grabador.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace pincela::pruebas {

class EntornoPaginaGrabador : public EntornoPagina {
  public:
    // The record comes first: everything else writes to it until the end.
    Registro registro;
    GraficosDeEntorno dibujo{registro};

    /// Null for an object of somebody else.
    std::vector<ControlUsuario*> seleccion;
    /// What the colour dialog answers; unset, it is cancelled.
    std::function<Color(Color)> alElegirColor;
    std::function<void()> alInformar;

    /// The widget of that name, which the page asked for.
    template <class T>
    T& El(const std::string& nombre) {
        return dynamic_cast<T&>(*elementos_.at(nombre));
    }
    CampoGrabado& ElCampo(const std::string& n) { return El<CampoGrabado>(n); }
    ListaGrabada& LaLista(const std::string& n) { return El<ListaGrabada>(n); }
    CasillaGrabada& UnaCasilla(const std::string& n) { return El<CasillaGrabada>(n); }
    void Pulsar(const std::string& boton) { El<BotonGrabado>(boton).Pulsar(); }

    ElementoPagina& Elemento(VistaTexto n) override { return Dar<RotuloGrabado>(Ascii(n)); }
    CampoTexto& Campo(VistaTexto n) override { return Dar<CampoGrabado>(Ascii(n)); }
    Casilla& LaCasilla(VistaTexto n) override { return Dar<CasillaGrabada>(Ascii(n)); }
    Opcion& LaOpcion(VistaTexto n) override;
    ListaDesplegable& Lista(VistaTexto n) override { return Dar<ListaGrabada>(Ascii(n)); }
    Deslizador& ElDeslizador(VistaTexto n) override { return Dar<DeslizadorGrabado>(Ascii(n)); }
    BotonPagina& Boton(VistaTexto n) override { return Dar<BotonGrabado>(Ascii(n)); }
    BotonColor& ElBotonColor(VistaTexto n) override { return Dar<BotonColorGrabado>(Ascii(n)); }
    MarcoPagina& Marco(VistaTexto n) override { return Dar<MarcoGrabado>(Ascii(n)); }
    CuadroPagina& Cuadro(VistaTexto n) override;

    Graficos& graficos() override { return dibujo; }
    std::size_t Seleccionados() const override { return seleccion.size(); }
    ControlUsuario* Seleccionado(std::size_t numero) override { return seleccion.at(numero); }
    bool Changed() const override { return cambiado_; }
    void PonChanged(bool valor) override;
    Color ElegirColor(Color inicial) override;
    void Informar(VistaTexto mensaje) override;

  private:
    static std::string Ascii(VistaTexto texto) { return {texto.begin(), texto.end()}; }

    template <class T, class... A>
    T& Dar(const std::string& nombre, A... argumentos) {
        auto& lugar = elementos_[nombre];
        if (!lugar)
            lugar = std::make_unique<T>(registro, nombre, argumentos...);
        return dynamic_cast<T&>(*lugar);
    }

    std::map<std::string, std::unique_ptr<ElementoPagina>> elementos_;
    std::vector<OpcionGrabada*> opciones_;
    Manejador proximoHdc_ = 21;
    bool cambiado_ = false;
};

} // namespace pincela::pruebas
