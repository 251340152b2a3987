// One page of the gallery: a form inside the gallery's window.
#pragma once

#include "anfitrion/formulario.h"

#include <string>

namespace galeria {

class Pagina {
  public:
    Pagina() = default;
    Pagina(const Pagina&) = delete;
    Pagina& operator=(const Pagina&) = delete;
    virtual ~Pagina() = default;

    virtual anfitrion::Formulario& Forma() = 0;
    /// Makes every control of the page. Throws anfitrion::FalloCom when the component can't be had.
    virtual void Armar() = 0;
    /// The page is shown for the first time or again.
    virtual void Abrir() = 0;
    /// Does something with the controls, so that a picture shows the page at work.
    virtual void Ensayar() = 0;
    /// Its controls as text that the designer takes; empty when it is no page of controls.
    virtual std::wstring ParaDisenar() const { return {}; }
};

} // namespace galeria
