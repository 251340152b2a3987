// Pictures as shared references: the container's own picture object underneath.
#pragma once

#include "common/objeto.h"

#include <cstdint>
#include <memory>

namespace pincela {

class ObjetoImagen : public Objeto {
  public:
    /// Own size in HIMETRIC (hundredths of a millimetre).
    virtual std::int32_t Width() const = 0;
    virtual std::int32_t Height() const = 0;
};

/// Empty reference: no picture.
using Imagen = std::shared_ptr<ObjetoImagen>;

} // namespace pincela
