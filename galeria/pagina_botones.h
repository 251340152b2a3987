// First page of the gallery: buttons of every kind.
#pragma once

#include "galeria/pagina.h"

namespace galeria {

class PaginaBotones final : public Pagina {
  public:
    PaginaBotones(const std::optional<anfitrion::Componente>& componente, HWND padre)
        : Pagina(HojaDeBotones, componente, padre) {}

    /// Clicks one button and presses the access key of another.
    void Ensayar() override;
};

} // namespace galeria
