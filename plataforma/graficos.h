// The drawing and desktop calls of the platform, with the platform's own names and records.
//
// Results are never checked by the callers, so none is returned where the callers would not look.
#pragma once

#include "plataforma/manejador.h"

#include <cstdint>
#include <span>

namespace pincela {

/// Vertex of a gradient mesh; channels are 16-bit (8-bit value times 256).
struct TRIVERTEX {
    std::int32_t x, y;
    std::uint16_t Red, Green, Blue, Alpha;
    friend bool operator==(const TRIVERTEX&, const TRIVERTEX&) = default;
};

struct GRADIENT_RECT {
    std::uint32_t UpperLeft, LowerRight;
    friend bool operator==(const GRADIENT_RECT&, const GRADIENT_RECT&) = default;
};

struct GRADIENT_TRIANGLE {
    std::uint32_t Vertex1, Vertex2, Vertex3;
    friend bool operator==(const GRADIENT_TRIANGLE&, const GRADIENT_TRIANGLE&) = default;
};

enum class ModoGradiente : std::uint32_t { RectanguloH = 0, RectanguloV = 1, Triangulo = 2 };

struct BLENDFUNCTION {
    std::uint8_t BlendOp, BlendFlags, SourceConstantAlpha, AlphaFormat;
};

struct PuntoPantalla {
    std::int32_t x = 0, y = 0;
};

class Graficos {
  public:
    virtual ~Graficos() = default;

    virtual void GradientFill(Manejador hdc, std::span<const TRIVERTEX> vertices,
                              std::span<const GRADIENT_RECT> malla, ModoGradiente modo) = 0;
    virtual void GradientFill(Manejador hdc, std::span<const TRIVERTEX> vertices,
                              std::span<const GRADIENT_TRIANGLE> malla, ModoGradiente modo) = 0;

    /// `mezcla` is the blend record packed into 32 bits, as the platform takes it.
    virtual void AlphaBlend(Manejador destino, std::int32_t xd, std::int32_t yd,
                            std::int32_t anchod, std::int32_t altod, Manejador origen,
                            std::int32_t xo, std::int32_t yo, std::int32_t anchoo,
                            std::int32_t altoo, std::uint32_t mezcla) = 0;

    virtual Manejador CreateRoundRectRgn(std::int32_t izquierda, std::int32_t arriba,
                                         std::int32_t derecha, std::int32_t abajo,
                                         std::int32_t anchoElipse, std::int32_t altoElipse) = 0;
    /// After success the region belongs to the window.
    virtual void SetWindowRgn(Manejador ventana, Manejador region, bool redibujar) = 0;
    virtual void DeleteObject(Manejador objeto) = 0;

    /// Cursor position in screen pixels.
    virtual PuntoPantalla GetCursorPos() = 0;
    virtual Manejador WindowFromPoint(PuntoPantalla punto) = 0;
};

} // namespace pincela
