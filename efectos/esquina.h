// The ellipse that rounds the corners of a shape.
#pragma once

#include "common/conversion.h"
#include "common/enumeraciones.h"

#include <algorithm>
#include <cstdint>

namespace pincela {

/// Width and height in pixels; 0, 0 for square corners.
struct Esquina {
    std::int32_t ancho = 0, alto = 0;

    /// The concentric ellipse of a shape drawn `margen` pixels further in.
    Esquina Reducida(std::int64_t margen) const {
        auto menos = [margen](std::int32_t largo) {
            return static_cast<std::int32_t>(std::max<std::int64_t>(0, largo - 2 * margen));
        };
        return {menos(ancho), menos(alto)};
    }
    friend bool operator==(const Esquina&, const Esquina&) = default;
};

/// Ellipse of a shape of this size; every style but CLASICO is rounded. Raises Desbordamiento when
/// it leaves 32 bits.
inline Esquina EsquinaDe(std::int32_t Ancho, std::int32_t Alto, TEstilos Forma,
                         const tRectRedo& Param) {
    if (Forma == TEstilos::CLASICO)
        return {};
    return {AEntero32(static_cast<double>(Param.RelX) * Ancho),
            AEntero32(static_cast<double>(Param.RelY) * Alto)};
}

} // namespace pincela
