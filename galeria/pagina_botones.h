// First page of the gallery: buttons of every kind and what they tell.
#pragma once

#include "anfitrion/formulario.h"
#include "galeria/diario.h"
#include "galeria/lamina.h"
#include "galeria/muestras.h"
#include "galeria/pagina.h"

#include <optional>

namespace galeria {

class PaginaBotones final : public Pagina {
  public:
    /// Throws anfitrion::FalloCom when the component can't be had. A null component leaves the
    /// page without buttons.
    PaginaBotones(const std::optional<anfitrion::Componente>& componente, HWND padre);

    anfitrion::Formulario& Forma() override { return forma_; }
    void Abrir() override { diario_.abierto = true; }
    /// Clicks one button and presses the access key of another, so that a picture shows the page at
    /// work.
    void Ensayar() override;

  private:
    void Poner(const anfitrion::Componente& componente, const Grupo& grupo, int n);
    void PonerLimpiar(const anfitrion::Componente& componente);
    std::shared_ptr<anfitrion::ControlAlojado>
    PonerBoton(const anfitrion::Componente& componente, const std::wstring& nombre,
               const RECT& lugar, std::span<const Par> comunes, std::span<const Par> propios);

    Lamina lamina_;
    anfitrion::Formulario forma_;
    Diario diario_;
};

} // namespace galeria
