// First page of the gallery: buttons of every kind.
#pragma once

#include "galeria/pagina.h"

namespace galeria {

class PaginaBotones final : public Pagina {
  public:
    explicit PaginaBotones(const std::optional<anfitrion::Componente>& componente)
        : Pagina(HojaDeBotones, componente) {}

    /// Clicks one button and presses the access key of another.
    void Ensayar() override;
};

} // namespace galeria
