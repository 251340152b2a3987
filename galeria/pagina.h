// One page of the gallery: a form inside the gallery's window.
#pragma once

#include "anfitrion/formulario.h"

namespace galeria {

class Pagina {
  public:
    virtual ~Pagina() = default;
    virtual anfitrion::Formulario& Forma() = 0;
    /// Everything stands and has been painted: from now on events are written down.
    virtual void Abrir() {}
    /// Does something with the controls, so that a picture shows the page at work.
    virtual void Ensayar() {}
};

/// A form of a page's size and typeface, not yet visible.
anfitrion::OpcionesFormulario OpcionesDePagina(HWND padre);

} // namespace galeria
