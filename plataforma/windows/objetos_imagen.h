// The wrapper around a picture object of the container.
#pragma once

#include "plataforma/windows/objetos_windows.h"
#include "plataforma/windows/puntero_com.h"

namespace pincela::windows {

class ImagenOle final : public ObjetoImagen {
  public:
    explicit ImagenOle(PunteroCom<IPicture> imagen);

    std::int32_t Width() const override;
    std::int32_t Height() const override;
    bool EsElMismo(const Objeto& otro) const override;
    IPicture* imagen() const { return imagen_.get(); }

    /// Stretched into `lugar`, its transparency respected.
    void Dibujar(HDC dc, const RECT& lugar) const;
    /// The cursor or icon it holds; null for any other kind of picture.
    HCURSOR Puntero() const;

  private:
    PunteroCom<IPicture> imagen_;
    PunteroCom<IUnknown> identidad_;
};

} // namespace pincela::windows
