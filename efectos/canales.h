// The channels of a colour, as bytes and as gradient vertices carry them.
#pragma once

#include "common/color.h"
#include "common/enumeraciones.h"

#include <cstdint>

namespace pincela {

/// 0 to 255; 0 for no colour and for an unknown channel. System colours are not translated.
constexpr std::uint8_t CanalDe(Color color, ColoresRGB canal) {
    if (color == SinColor || canal < ColoresRGB::Rojo || canal > ColoresRGB::Azul)
        return 0;
    const auto bits = static_cast<std::uint32_t>(color.valor);
    return static_cast<std::uint8_t>(bits >> (8 * static_cast<unsigned>(canal)));
}

/// The channel times 256.
constexpr std::uint16_t CanalDeVertice(Color color, ColoresRGB canal) {
    return static_cast<std::uint16_t>(CanalDe(color, canal) << 8);
}

/// The same pattern as a signed 16-bit number, reached through hexadecimal text: text alone turns
/// 32768 and above into the negative number of that pattern, where a product would overflow.
std::int16_t PatronDeCanal(std::uint8_t canal);

} // namespace pincela
