// The colour value every property and drawing call uses.
#pragma once

#include <cstdint>

namespace pincela {

/// OLE colour: &H00BBGGRR, or a system-colour index when the top bit is set (&H8000000F is the
/// button face); -1 means no colour. Kept as it stands; only the host resolves system colours.
struct Color {
    std::int32_t valor = 0;

    constexpr Color() = default;
    constexpr explicit Color(std::int32_t v) : valor(v) {}
    constexpr explicit Color(std::uint32_t v) : valor(static_cast<std::int32_t>(v)) {}

    constexpr bool EsDeSistema() const { return (static_cast<std::uint32_t>(valor) >> 24) == 0x80; }
    friend constexpr bool operator==(Color, Color) = default;
};

/// Colour of three channels, each 0 to 255; a larger channel counts as 255.
constexpr Color ColorRGB(int rojo, int verde, int azul) {
    auto tope = [](int canal) { return static_cast<std::uint32_t>(canal > 255 ? 255 : canal); };
    return Color(tope(rojo) | (tope(verde) << 8) | (tope(azul) << 16));
}

inline constexpr Color SinColor{std::int32_t{-1}};
inline constexpr Color Negro{std::int32_t{0}};
inline constexpr Color Blanco{std::int32_t{0xFFFFFF}};
inline constexpr Color CaraDeBoton{std::uint32_t{0x8000000F}};
inline constexpr Color TextoDeVentana{std::uint32_t{0x80000008}};
inline constexpr Color FondoDeVentana{std::uint32_t{0x80000005}};

} // namespace pincela
