// Everything a property page has around it: the designer's selection, its own widgets, dialogs.
#pragma once

#include "plataforma/elementos_pagina.h"
#include "plataforma/graficos.h"

#include <cstddef>

namespace pincela {

class ControlUsuario;

/// Made by the host for one page; outlives it.
class EntornoPagina {
  public:
    virtual ~EntornoPagina() = default;

    // The widget of that name, which is of that kind; one of an array is called "Name(0)".
    virtual ElementoPagina& Elemento(VistaTexto nombre) = 0;
    virtual CampoTexto& Campo(VistaTexto nombre) = 0;
    virtual Casilla& LaCasilla(VistaTexto nombre) = 0;
    virtual Opcion& LaOpcion(VistaTexto nombre) = 0;
    virtual ListaDesplegable& Lista(VistaTexto nombre) = 0;
    virtual Deslizador& ElDeslizador(VistaTexto nombre) = 0;
    virtual BotonPagina& Boton(VistaTexto nombre) = 0;
    virtual BotonColor& ElBotonColor(VistaTexto nombre) = 0;
    virtual MarcoPagina& Marco(VistaTexto nombre) = 0;
    virtual CuadroPagina& Cuadro(VistaTexto nombre) = 0;

    virtual Graficos& graficos() = 0;

    /// Number of selected objects.
    virtual std::size_t Seleccionados() const = 0;
    /// The core of a selected object, in the order of the selection; null for an object of
    /// somebody else. Not owned. What the published interface keeps back is open here.
    virtual ControlUsuario* Seleccionado(std::size_t numero) = 0;

    /// The designer's flag: something on the page is not applied yet.
    virtual bool Changed() const = 0;
    virtual void PonChanged(bool valor) = 0;

    /// The colour the user chooses, `inicial` when the dialog is cancelled. Custom colours are kept
    /// while the page lives.
    virtual Color ElegirColor(Color inicial) = 0;
    /// Shows a message with the information icon.
    virtual void Informar(VistaTexto mensaje) = 0;
};

} // namespace pincela
