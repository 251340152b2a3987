#include "comprobar_error.h"
#include "efectos/malla.h"
#include "pruebas/cada.h"

#include <climits>
#include <cmath>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

std::vector<Color> Grises(std::size_t cuantos) {
    std::vector<Color> colores;
    for (std::size_t i = 0; i < cuantos; ++i)
        colores.push_back(Color(static_cast<std::int32_t>(i % 256) * 0x010101));
    return colores;
}

struct Puntos {
    std::vector<std::int32_t> x, y;
};

Puntos PuntosDe(const Malla& malla) {
    Puntos puntos;
    for (const TRIVERTEX& vertice : malla.vertices.Vista()) {
        puntos.x.push_back(vertice.x);
        puntos.y.push_back(vertice.y);
    }
    return puntos;
}

Malla Diagonal(std::int32_t ancho, std::int32_t alto, std::size_t colores, std::int16_t angulo) {
    return CalcularMalla(TEstilosR::D_Diagonal, ancho, alto, Grises(colores), angulo);
}

using Enteros = std::vector<std::int32_t>;

} // namespace

TEST_CASE("Stops lie evenly and are rounded down") {
    const auto x = [](std::int32_t ancho, std::size_t colores) {
        return PuntosDe(CalcularMalla(TEstilosR::D_Hori, ancho, 20, Grises(colores), 0)).x;
    };
    CHECK(x(10, 3) == Enteros{0, 5, 10});
    CHECK(x(10, 4) == Enteros{0, 3, 6, 10});
    CHECK(x(100, 2) == Enteros{0, 100});
    CHECK(x(0, 3) == Enteros{0, 0, 0});
    CHECK(x(-10, 4) == Enteros{0, -4, -7, -10});
    CHECK(x(INT_MAX, 3) == Enteros{0, 1073741823, INT_MAX});
    CHECK(x(INT_MIN, 3) == Enteros{0, -1073741824, INT_MIN});
}

TEST_CASE("Stops are computed in double precision, fraction first") {
    for (std::int32_t ancho : {1, 7, 10, 49, 100, 333, 1000, 123457})
        for (std::size_t colores = 2; colores <= 60; ++colores) {
            const Malla malla = CalcularMalla(TEstilosR::D_Vert, 30, ancho, Grises(colores), 0);
            for (std::size_t i = 0; i < colores; ++i) {
                const volatile double fraccion =
                    static_cast<double>(i) / static_cast<double>(colores - 1);
                const volatile double lugar = fraccion * ancho;
                if (malla.vertices.Vista()[i].y != static_cast<std::int32_t>(std::floor(lugar)))
                    FAIL("size " << ancho << ", colours " << colores << ", stop " << i);
            }
        }
}

TEST_CASE("Each band joins two vertices on opposite edges") {
    const Malla malla = CalcularMalla(TEstilosR::D_Hori, 90, 20, Grises(4), 0);
    CHECK(PuntosDe(malla).y == Enteros{0, 20, 0, 20});
    const auto rectangulos = malla.rectangulos.Vista();
    REQUIRE(rectangulos.size() == 3);
    for (std::uint32_t i = 0; i < 3; ++i)
        CHECK(rectangulos[i] == GRADIENT_RECT{i, i + 1});
    CHECK(malla.triangulos.Cuantos() == 0);
}

TEST_CASE("The mode follows from the style") {
    CHECK(CalcularMalla(TEstilosR::D_Hori, 9, 9, Grises(2), 0).modo == ModoGradiente::RectanguloH);
    CHECK(CalcularMalla(TEstilosR::D_Vert, 9, 9, Grises(2), 0).modo == ModoGradiente::RectanguloV);
    CHECK(CalcularMalla(TEstilosR::D_Pirami, 9, 9, Grises(2), 0).modo == ModoGradiente::Triangulo);
    CHECK(Diagonal(9, 9, 2, 45).modo == ModoGradiente::Triangulo);
}

TEST_CASE("A pyramid has its apex in the middle, rounded down") {
    const auto puntos = [](std::int32_t ancho, std::int32_t alto) {
        return PuntosDe(CalcularMalla(TEstilosR::D_Pirami, ancho, alto, Grises(2), 0));
    };
    CHECK(puntos(101, 41).x == Enteros{50, 0, 101, 0, 101});
    CHECK(puntos(101, 41).y == Enteros{20, 0, 0, 41, 41});
    CHECK(puntos(-3, 1).x[0] == -2);
    CHECK(puntos(-3, 1).y[0] == 0);
    CHECK(puntos(INT_MIN, INT_MAX).x[0] == -1073741824);
    CHECK(puntos(INT_MIN, INT_MAX).y[0] == 1073741823);
}

TEST_CASE("A diagonal of 45 degrees leaves the area by half its height on both sides") {
    const Malla malla = Diagonal(100, 100, 2, 45);
    CHECK(PuntosDe(malla).x == Enteros{-100, 0, 100, 200});
    CHECK(PuntosDe(malla).y == Enteros{100, 0, 100, 0});
    const auto triangulos = malla.triangulos.Vista();
    REQUIRE(triangulos.size() == 2);
    CHECK(triangulos[0] == GRADIENT_TRIANGLE{0, 1, 2});
    CHECK(triangulos[1] == GRADIENT_TRIANGLE{1, 2, 3});
    CHECK(malla.rectangulos.Cuantos() == 0);
}

TEST_CASE("The slant is mirrored in the second and fourth quadrants") {
    const auto primeroAbajo = [](std::int16_t angulo) {
        return PuntosDe(Diagonal(100, 40, 2, angulo)).y[0] == 40;
    };
    for (const std::int16_t angulo : {91, 135, 179, 271, 315, 359})
        CHECK_FALSE(primeroAbajo(angulo));
    for (const std::int16_t angulo : {1, 45, 89, 181, 200, 269, 360, 361, 450, 500, 32767})
        CHECK(primeroAbajo(angulo));
}

TEST_CASE("A diagonal is laid out with the short value of pi and two roundings to float") {
    struct Fila {
        std::int32_t ancho, alto;
        std::size_t colores;
        std::int16_t angulo;
    };
    const auto fila = pincela::pruebas::Cada<Fila>({{100, 30, 2, 30},
                                                    {100, 30, 3, 89},
                                                    {640, 480, 7, 1},
                                                    {33, 77, 5, 91},
                                                    {640, 480, 255, 120},
                                                    {-50, 20, 4, 60},
                                                    {50, -20, 4, 60},
                                                    {0, 0, 2, 45},
                                                    {100, 30, 3, 200},
                                                    {100, 30, 3, 360},
                                                    {100, 30, 3, 540},
                                                    {12345, 6789, 33, 32767}});
    const int grados = fila.angulo < 180 ? fila.angulo : fila.angulo - 180;
    const volatile double r = grados * (2 * 3.1415) / 360;
    const volatile double t = std::tan(r);
    const volatile float d = static_cast<float>(std::fabs(fila.alto / (2 * t)));
    const volatile float w =
        static_cast<float>((fila.ancho + 2.0 * d) / (static_cast<double>(fila.colores) - 1));
    const Puntos puntos = PuntosDe(Diagonal(fila.ancho, fila.alto, fila.colores, fila.angulo));
    REQUIRE(puntos.x.size() == 2 * fila.colores);
    for (std::size_t i = 0; i < puntos.x.size(); ++i) {
        const double x =
            std::floor(static_cast<double>(d)) * -2 * static_cast<double>((i + 1) % 2) +
            static_cast<double>(i / 2) * static_cast<double>(w);
        CHECK(puntos.x[i] == static_cast<std::int32_t>(std::floor(x)));
    }
}

TEST_CASE("The full value of pi would move a vertex that the short one does not") {
    // tan(45 degrees) is a little under 1 with the short value, so half the height reaches 500046.
    CHECK(PuntosDe(Diagonal(100, 1000000, 2, 45)).x[0] == -2 * 500023);
    // Half a turn is not level with it either, which leaves a slope to draw.
    CHECK(Diagonal(100, 10, 2, 360).vertices.Cuantos() == 4);
}

TEST_CASE("Both vertices of a slanted line have its colour") {
    const Malla malla = Diagonal(100, 30, 3, 45);
    const auto vertices = malla.vertices.Vista();
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        CHECK(vertices[i].Red == (i / 2) * 256);
        CHECK(vertices[i].Alpha == 0);
    }
}

TEST_CASE("A mesh that can't be made says why") {
    const auto error = [](TEstilosR estilo, std::int32_t ancho, std::int32_t alto,
                          std::size_t colores, std::int16_t angulo) {
        return ErrorDe([&] { CalcularMalla(estilo, ancho, alto, Grises(colores), angulo); });
    };
    CHECK(error(TEstilosR::D_Hori, 10, 10, 1, 0) == kDivision);
    CHECK(error(TEstilosR::D_Diagonal, 10, 10, 1, 45) == kDivision);
    CHECK(error(TEstilosR::D_Hori, 10, 10, 0, 0) == kDivision);
    CHECK(error(TEstilosR::D_Diagonal, 10, 10, 2, 0) == kDivision);
    CHECK(error(TEstilosR::D_Pirami, 10, 10, 6, 0) == kSubindice);
    CHECK(error(TEstilosR::D_Diagonal, 10, 10, 256, 45) == kDesbordamiento);
    CHECK(error(TEstilosR::D_Diagonal, INT_MAX, INT_MAX, 2, 1) == kDesbordamiento);
    CHECK(error(TEstilosR::D_Diagonal, 10, INT_MIN, 2, 1) == kDesbordamiento);
    CHECK(error(TEstilosR::D_Diagonal, 10, 500000, 2, 360) == kDesbordamiento);
    CHECK(error(TEstilosR::D_Hori, 10, 10, 32768, 0) == kDesbordamiento);
    CHECK(error(TEstilosR::Solido, 10, 10, 2, 0) == 5);
    CHECK(error(static_cast<TEstilosR>(5), 10, 10, 2, 0) == 5);
}

TEST_CASE("The longest lists that can be drawn are drawn whole") {
    CHECK(Diagonal(1000, 100, 255, 45).vertices.Cuantos() == 510);
    CHECK(Diagonal(1000, 100, 255, 45).triangulos.Cuantos() == 508);
    const Malla malla = CalcularMalla(TEstilosR::D_Hori, 40000, 10, Grises(32767), 0);
    CHECK(malla.vertices.Cuantos() == 32767);
    CHECK(malla.vertices.Vista().back().x == 40000);
}

TEST_CASE("Level and upright diagonals are plain gradients") {
    for (const std::int16_t angulo : {0, -1, -90, -32768, 180})
        CHECK(EstiloDeDiagonal(angulo) == TEstilosR::D_Vert);
    for (const std::int16_t angulo : {90, 270})
        CHECK(EstiloDeDiagonal(angulo) == TEstilosR::D_Hori);
    for (const std::int16_t angulo : {1, 89, 91, 179, 181, 360, 450, 540, 32767})
        CHECK(EstiloDeDiagonal(angulo) == TEstilosR::D_Diagonal);
    CHECK_FALSE(EsDiagonalInvertida(179));
    CHECK(EsDiagonalInvertida(180));
    CHECK_FALSE(EsDiagonalInvertida(-32768));
}
