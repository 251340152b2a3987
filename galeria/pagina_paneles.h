// Page of the gallery: panels, and one with controls standing on it.
#pragma once

#include "galeria/diario.h"
#include "galeria/lamina.h"
#include "galeria/pagina.h"

#include <optional>

namespace galeria {

class PaginaPaneles final : public Pagina {
  public:
    /// Throws anfitrion::FalloCom when the component can't be had. A null component leaves the page
    /// without controls.
    PaginaPaneles(const std::optional<anfitrion::Componente>& componente, HWND padre);

    anfitrion::Formulario& Forma() override { return forma_; }
    void Abrir() override { diario_.abierto = true; }
    /// Clicks the panel with controls and switches its marks on.
    void Ensayar() override;

  private:
    using Control = std::shared_ptr<anfitrion::ControlAlojado>;

    void Pintar(HDC hdc, const RECT& cliente) const;
    void PonerMuestras();
    void PonerPanelConControles();
    void PonerMarcas();
    void CambiarMarcas();
    /// Coordinates at 96 dpi, of `dentro` when given.
    Control Poner(REFCLSID clase, const std::wstring& nombre, const RECT& lugar,
                  std::span<const Par> comunes, std::span<const Par> propios,
                  anfitrion::ControlAlojado* dentro = nullptr);

    Lamina lamina_;
    anfitrion::Formulario forma_;
    Diario diario_;
    std::optional<anfitrion::Componente> componente_;
    Control panel_; ///< the one with controls
    Control marcas_;
    bool marcado_ = false;
};

} // namespace galeria
