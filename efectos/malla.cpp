#include "efectos/malla.h"

#include "common/conversion.h"
#include "common/errores.h"
#include "efectos/canales.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace pincela {
namespace {

// Short on purpose: slanted gradients are laid out with this value.
constexpr double kPi = 3.1415;

/// Int of a coordinate, as the platform takes it. Raises Desbordamiento beyond 32 bits.
std::int32_t Coordenada(double valor) {
    // Written so that a value that is no number fails too.
    if (!(valor >= std::numeric_limits<std::int32_t>::min() &&
          valor < std::numeric_limits<std::int32_t>::max() + 1.0))
        Lanzar(NumeroError::Desbordamiento);
    const auto entero = static_cast<std::int32_t>(valor);
    return valor < entero ? entero - 1 : entero;
}

TRIVERTEX Vertice(std::int32_t x, std::int32_t y, Color color) {
    return {x,
            y,
            CanalDeVertice(color, ColoresRGB::Rojo),
            CanalDeVertice(color, ColoresRGB::Verde),
            CanalDeVertice(color, ColoresRGB::Azul),
            0};
}

ModoGradiente ModoDe(TEstilosR estilo) {
    const auto numero = static_cast<std::uint32_t>(estilo);
    return static_cast<ModoGradiente>(numero - (estilo == TEstilosR::D_Diagonal ? 2 : 1));
}

/// Bands side by side, each between two vertices on opposite edges.
void CalcularFranjas(Malla& malla, bool horizontal, std::int32_t ancho, std::int32_t alto,
                     std::span<const Color> colores) {
    // A 16-bit counter runs over the colours and one step past the last.
    if (colores.size() > std::numeric_limits<std::int16_t>::max())
        Lanzar(NumeroError::Desbordamiento);
    const auto vertices = malla.vertices.Ocupar(colores.size());
    const auto rectangulos = malla.rectangulos.Ocupar(colores.size() - 1);
    const double ultimo = static_cast<double>(colores.size()) - 1;
    for (std::uint32_t i = 0; i < colores.size(); ++i) {
        const double fraccion = i / ultimo;
        const bool opuesto = i % 2 != 0;
        const std::int32_t x = horizontal ? Coordenada(fraccion * ancho) : opuesto * ancho;
        const std::int32_t y = horizontal ? opuesto * alto : Coordenada(fraccion * alto);
        vertices[i] = Vertice(x, y, colores[i]);
        if (i + 1 < colores.size())
            rectangulos[i] = {i, i + 1};
    }
}

/// Four triangles from the centre, the first colour, to the corners.
void CalcularPiramide(Malla& malla, std::int32_t ancho, std::int32_t alto,
                      std::span<const Color> colores) {
    const PuntoPantalla puntos[] = {{Coordenada(ancho / 2.0), Coordenada(alto / 2.0)},
                                    {0, 0},
                                    {ancho, 0},
                                    {0, alto},
                                    {ancho, alto}};
    if (colores.size() > std::size(puntos))
        Lanzar(NumeroError::Subindice);
    for (std::size_t i = 0; i < std::size(puntos); ++i) {
        // The corners left over take the last colour.
        const Color color = colores[std::min(i, colores.size() - 1)];
        malla.vertices.Agregar(Vertice(puntos[i].x, puntos[i].y, color));
    }
    for (const GRADIENT_TRIANGLE& triangulo :
         {GRADIENT_TRIANGLE{0, 1, 2}, {0, 1, 3}, {0, 3, 4}, {0, 2, 4}})
        malla.triangulos.Agregar(triangulo);
}

/// True when the even vertices of a diagonal lie on the bottom edge.
bool EmpiezaAbajo(std::int16_t angulo) {
    return !((angulo >= 91 && angulo < 180) || (angulo > 270 && angulo < 360));
}

/// A strip of triangles whose slanted lines go from edge to edge, one line for each colour.
void CalcularDiagonal(Malla& malla, std::int32_t ancho, std::int32_t alto,
                      std::span<const Color> colores, std::int16_t angulo) {
    // The colours are counted in a byte.
    const int n = Byte(static_cast<std::int64_t>(colores.size()));
    const int grados = EsDiagonalInvertida(angulo) ? angulo - 180 : angulo;
    const double tangente = std::tan(grados * (2 * kPi) / 360);
    if (tangente == 0)
        Lanzar(NumeroError::DivisionPorCero);
    // Both are kept as 32-bit floats, and that rounding moves vertices.
    const float margen = AFlotante(std::fabs(alto / (2 * tangente)));
    const float banda = AFlotante((ancho + 2.0 * margen) / (n - 1));
    const double retroceso = Int(margen) * -2;
    const int desfase = EmpiezaAbajo(angulo) ? 1 : 0;
    const int vertices = 2 * n;
    for (int i = 0; i < vertices; ++i) {
        const int k = i / 2;
        const double x = retroceso * ((i + 1) % 2) + k * static_cast<double>(banda);
        const std::int32_t y = alto * ((i + desfase) % 2);
        malla.vertices.Agregar(Vertice(Coordenada(x), y, colores[static_cast<std::size_t>(k)]));
        const auto primero = static_cast<std::uint32_t>(i);
        if (i + 2 < vertices)
            malla.triangulos.Agregar({primero, primero + 1, primero + 2});
    }
}

} // namespace

TEstilosR EstiloDeDiagonal(std::int16_t angulo) {
    if (angulo == 180 || angulo <= 0)
        return TEstilosR::D_Vert;
    if (angulo == 90 || angulo == 270)
        return TEstilosR::D_Hori;
    return TEstilosR::D_Diagonal;
}

Malla CalcularMalla(TEstilosR estilo, std::int32_t ancho, std::int32_t alto,
                    std::span<const Color> colores, std::int16_t angulo) {
    if (colores.size() < 2)
        Lanzar(NumeroError::DivisionPorCero);
    Malla malla;
    malla.modo = ModoDe(estilo);
    switch (estilo) {
    case TEstilosR::D_Hori:
    case TEstilosR::D_Vert:
        CalcularFranjas(malla, estilo == TEstilosR::D_Hori, ancho, alto, colores);
        break;
    case TEstilosR::D_Pirami:
        CalcularPiramide(malla, ancho, alto, colores);
        break;
    case TEstilosR::D_Diagonal:
        CalcularDiagonal(malla, ancho, alto, colores, angulo);
        break;
    default:
        Lanzar(NumeroError::LlamadaNoValida);
    }
    return malla;
}

} // namespace pincela
