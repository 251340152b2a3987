// Handles of the platform as the portable rooms carry them.
#pragma once

#include <cstdint>

namespace pincela {

/// A window, device context or region; 0 is none. Never owned through this type.
using Manejador = std::intptr_t;

/// The published interface carries handles as Long; the platform sign-extends them.
constexpr std::int32_t ALong(Manejador manejador) {
    return static_cast<std::int32_t>(manejador);
}
constexpr Manejador AManejador(std::int32_t valor) {
    return static_cast<Manejador>(valor);
}

} // namespace pincela
