// A value of any automation type, as property bags and optional arguments carry it.
#pragma once

#include "common/objeto.h"
#include "common/texto.h"

#include <cstdint>
#include <variant>

namespace pincela {

struct Vacio {
    friend bool operator==(Vacio, Vacio) = default;
};
struct Nulo {
    friend bool operator==(Nulo, Nulo) = default;
};
/// An optional argument that the caller left out.
struct Falta {
    Falta() = default;
    // Not copied byte by byte: where every alternative is, or can't fail to be moved, some
    // libraries take a variant for one that never is empty, and when the copy of a text runs out of
    // memory they destroy an alternative that was never made.
    Falta(const Falta&) noexcept {}
    Falta& operator=(const Falta&) noexcept { return *this; }
    friend bool operator==(Falta, Falta) = default;
};

/// Colours and enumerations travel as std::int32_t; a null reference is Nothing.
using Variante = std::variant<Vacio, Nulo, Falta, bool, std::uint8_t, std::int16_t, std::int32_t,
                              float, double, Texto, ReferenciaObjeto>;

} // namespace pincela
