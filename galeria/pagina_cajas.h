// Page of the gallery: text boxes, and a form that one fills with Enter alone.
#pragma once

#include "galeria/pagina_muestras.h"

#include <vector>

namespace galeria {

class PaginaCajas final : public PaginaMuestras {
  public:
    PaginaCajas(const std::optional<anfitrion::Componente>& componente, HWND padre)
        : PaginaMuestras(HojaDeCajas, componente, padre) {}

    /// Fills the first fields of the form and leaves the focus in the next one.
    void Ensayar() override;

  private:
    void PonerDemas() override;
    void PintarDemas(HDC hdc) const override;
    void Guardar();

    std::vector<Control> campos_;
    std::vector<std::wstring> guardados_;
};

} // namespace galeria
