// Somebody else's stream.
#pragma once

#include "common/guardado.h"
#include "componente/com.h"

#include <cstdint>

namespace pincela::componente {

/// Held for as long as it is read or written. What it says of how many bytes it moved is checked;
/// a failing status travels as FalloCom.
class FlujoAjeno {
  public:
    explicit FlujoAjeno(IStream* flujo) : flujo_(flujo) {}

    /// Appends exactly `cuantos` bytes, however few come at a time. STG_E_DOCFILECORRUPT when there
    /// are no more of them.
    void Leer(std::uint64_t cuantos, Bytes& bytes);
    /// Writes all of them, however few are taken at a time. STG_E_MEDIUMFULL when no more are.
    void Escribir(const Bytes& bytes);

  private:
    Ptr<IStream> flujo_;
};

} // namespace pincela::componente
