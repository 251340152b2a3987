// What the three property pages have in common.
#pragma once

#include "common/conversion.h"
#include "plataforma/control.h"
#include "plataforma/entorno_pagina.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace pincela {

/// A page as its host sees it. Run-time errors leave as ErrorEjecucion, also those of an edit.
class Pagina {
  public:
    virtual ~Pagina() = default;

    /// The designer's selection changed: the page shows it, the last object over the others.
    virtual void SelectionChanged() = 0;
    /// Writes the page to every selected object, in order. An error stops it there: the objects
    /// before have everything, those after nothing.
    virtual void ApplyChanges() = 0;
    /// The window of the page was made anew: draws what it shows.
    virtual void Redibujar() = 0;

  protected:
    /// `entorno` is not owned and outlives the page.
    explicit Pagina(EntornoPagina& entorno) : entorno_(entorno) {}

    void Cambio() { entorno_.PonChanged(true); }

    /// Whatever is edited in these does no more than to raise the designer's flag.
    template <class... Eventos>
    void SoloCambian(Eventos&... eventos) {
        (eventos.Conectar([this] { Cambio(); }), ...);
    }

    /// Raises TiposNoCoinciden for an object that is no `C`.
    template <class C>
    C& Seleccionado(std::size_t numero) {
        auto* control = dynamic_cast<C*>(entorno_.Seleccionado(numero));
        if (!control)
            LanzarTiposNoCoinciden();
        return *control;
    }

    template <class C, class Accion>
    void ParaCadaSeleccionado(Accion accion) {
        for (std::size_t i = 0; i < entorno_.Seleccionados(); ++i)
            accion(Seleccionado<C>(i));
    }

    EntornoPagina& entorno_;
};

inline void Llenar(ListaDesplegable& lista, std::initializer_list<VistaTexto> items) {
    lista.Clear();
    for (const VistaTexto item : items)
        lista.AddItem(item);
}

/// Item of an enumeration that counts from `primero`, whose difference is checked as 16 bits.
template <class E>
std::int32_t ItemDe(E valor, int primero = 0) {
    if (primero == 0)
        return static_cast<std::int32_t>(valor);
    return Entero16(std::int64_t{static_cast<std::int32_t>(valor)} - primero);
}

/// The value an item stands for: the inverse of ItemDe.
template <class E>
E ValorDe(const ListaDesplegable& lista, int primero = 0) {
    const std::int32_t indice = lista.ListIndex();
    return static_cast<E>(primero == 0 ? indice : Entero16(std::int64_t{indice} + primero));
}

inline void Marcar(Casilla& casilla, bool valor) {
    casilla.PonValue(valor ? 1 : 0);
}

/// A greyed check box counts as not checked.
inline bool EstaMarcada(const Casilla& casilla) {
    return casilla.Value() == 1;
}

} // namespace pincela
