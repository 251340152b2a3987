// Page of the gallery: panels, and one with controls standing on it.
#pragma once

#include "galeria/pagina_muestras.h"

namespace galeria {

class PaginaPaneles final : public PaginaMuestras {
  public:
    PaginaPaneles(const std::optional<anfitrion::Componente>& componente, HWND padre);

    /// Clicks the panel with controls and switches its marks on.
    void Ensayar() override;

  private:
    void PonerDemas() override;
    void PintarDemas(HDC hdc) const override;
    void PonerPanelConControles();
    void PonerMarcas();
    void CambiarMarcas();

    Control panel_; ///< the one with controls
    Control marcas_;
    bool marcado_ = false;
};

} // namespace galeria
