// The mesh of a gradient: vertices and the rectangles or triangles between them.
#pragma once

#include "common/color.h"
#include "common/enumeraciones.h"
#include "efectos/lista_corta.h"
#include "plataforma/graficos.h"

#include <cstdint>
#include <span>

namespace pincela {

/// Ready for one fill call: rectangles for the horizontal and vertical styles, else triangles. Up
/// to 32 colours cost no memory of the heap.
struct Malla {
    ListaCorta<TRIVERTEX, 64> vertices;
    ListaCorta<GRADIENT_RECT, 31> rectangulos;
    ListaCorta<GRADIENT_TRIANGLE, 62> triangulos;
    ModoGradiente modo = ModoGradiente::RectanguloH;
};

/// Style a diagonal of `angulo` degrees is drawn with: level and upright ones are plain gradients.
/// Every angle of 0 or less is vertical.
TEstilosR EstiloDeDiagonal(std::int16_t angulo);

/// True for the angles drawn as their opposite with the colours in reverse.
constexpr bool EsDiagonalInvertida(std::int16_t angulo) {
    return angulo >= 180;
}

/// Mesh of `estilo` (D_Hori to D_Diagonal) over (0, 0)-(`ancho`, `alto`); `angulo` as the caller
/// of a diagonal gave it, degrees. The colours come already reversed where the angle asks for it.
/// Raises DivisionPorCero for fewer than two colours, Desbordamiento for a coordinate beyond 32
/// bits, more than 255 colours in a diagonal or 32767 in a row, Subindice for a sixth colour in a
/// pyramid, LlamadaNoValida for any other style.
Malla CalcularMalla(TEstilosR estilo, std::int32_t ancho, std::int32_t alto,
                    std::span<const Color> colores, std::int16_t angulo);

} // namespace pincela
