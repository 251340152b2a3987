// First page of the gallery: buttons of every kind.
#pragma once

#include "galeria/pagina_muestras.h"

namespace galeria {

class PaginaBotones final : public PaginaMuestras {
  public:
    PaginaBotones(const std::optional<anfitrion::Componente>& componente, HWND padre)
        : PaginaMuestras(HojaDeBotones, componente, padre) {}

    /// Clicks one button and presses the access key of another.
    void Ensayar() override;
};

} // namespace galeria
