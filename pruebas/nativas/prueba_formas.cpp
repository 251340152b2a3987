#include "comprobar_error.h"
#include "efectos/efectos.h"
#include "graficos_grabador.h"

#include <climits>
#include <limits>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

constexpr float kInfinito = std::numeric_limits<float>::infinity();
constexpr float kNoNumero = std::numeric_limits<float>::quiet_NaN();

struct Banco {
    GraficosGrabador graficos;
    Efectos efectos{graficos};

    RegionCreada Forma(std::int32_t ancho, std::int32_t alto, TEstilos forma, float relX,
                       float relY) {
        graficos.Olvidar();
        graficos.proximaRegion = 1000;
        efectos.DarForma(55, ancho, alto, forma, tRectRedo{relX, relY});
        REQUIRE(graficos.regiones.size() == 1);
        return graficos.regiones.front();
    }
    int ErrorDeForma(std::int32_t ancho, std::int32_t alto, TEstilos forma, float relX,
                     float relY) {
        graficos.Olvidar();
        const int error = ErrorDe([&] {
            efectos.DarForma(55, ancho, alto, forma, tRectRedo{relX, relY});
        });
        CHECK(graficos.orden.empty() == (error != 0));
        return error;
    }
    LlamadaMezcla Copia(std::int32_t xo, std::int32_t yo, std::uint8_t nivel) {
        graficos.Olvidar();
        efectos.DarTrans(11, xo, yo, 30, 40, 22, 5, 6, 70, 80, nivel);
        REQUIRE(graficos.mezclas.size() == 1);
        return graficos.mezclas.front();
    }
};

constexpr auto Clasico = TEstilos::CLASICO;
constexpr auto Redondeado = TEstilos::REDONDEADO;

} // namespace

TEST_CASE_FIXTURE(Banco, "A classic shape is the whole rectangle with square corners") {
    CHECK(Forma(100, 40, Clasico, 0.5f, 0.5f) == RegionCreada{0, 0, 101, 41, 0, 0, 1000});
}

TEST_CASE_FIXTURE(Banco, "A rounded shape takes its ellipse from the size") {
    CHECK(Forma(100, 40, Redondeado, 0.2f, 0.5f) == RegionCreada{0, 0, 101, 41, 20, 20, 1000});
    CHECK(Forma(100, 40, Redondeado, 0, 0) == RegionCreada{0, 0, 101, 41, 0, 0, 1000});
    CHECK(Forma(100, 40, Redondeado, -0.5f, 2).anchoElipse == -50);
    CHECK(Forma(100, 40, Redondeado, -0.5f, 2).altoElipse == 80);
}

TEST_CASE_FIXTURE(Banco, "An ellipse is rounded to the nearest, ties to even") {
    CHECK(Forma(20, 20, Redondeado, 0.125f, 0.375f).anchoElipse == 2);
    CHECK(Forma(20, 20, Redondeado, 0.125f, 0.375f).altoElipse == 8);
    CHECK(Forma(-20, -20, Redondeado, 0.125f, 0.375f).anchoElipse == -2);
}

TEST_CASE_FIXTURE(Banco, "Any shape but the classic one is rounded") {
    for (const std::int32_t forma : {1, 2, -1, 99, INT_MIN})
        CHECK(Forma(100, 40, static_cast<TEstilos>(forma), 0.2f, 0.5f).anchoElipse == 20);
}

TEST_CASE_FIXTURE(Banco, "A region is made, given to the window with a redraw, and deleted") {
    Forma(100, 40, Redondeado, 0.2f, 0.5f);
    CHECK(graficos.orden ==
          std::vector<std::string>{"CreateRoundRectRgn", "SetWindowRgn", "DeleteObject"});
    CHECK(graficos.puestas == std::vector{RegionPuesta{55, 1000, true}});
    CHECK(graficos.borrados == std::vector<Manejador>{1000});
}

TEST_CASE_FIXTURE(Banco, "A region that could not be made goes the same way") {
    graficos.proximaRegion = 0;
    efectos.DarForma(0, 100, 40, Clasico, {});
    CHECK(graficos.puestas == std::vector{RegionPuesta{0, 0, true}});
    CHECK(graficos.borrados == std::vector<Manejador>{0});
}

TEST_CASE_FIXTURE(Banco, "A handle with its top bit set keeps its sign") {
    efectos.DarForma(INT_MIN, 1, 1, Clasico, {});
    CHECK(graficos.puestas.front().ventana == Manejador{INT_MIN});
}

TEST_CASE_FIXTURE(Banco, "A size that can't grow by one overflows and shapes nothing") {
    CHECK(ErrorDeForma(INT_MAX, 40, Clasico, 0, 0) == kDesbordamiento);
    CHECK(ErrorDeForma(100, INT_MAX, Clasico, 0, 0) == kDesbordamiento);
    CHECK(ErrorDeForma(INT_MAX - 1, INT_MAX - 1, Clasico, 0, 0) == 0);
    CHECK(ErrorDeForma(INT_MIN, INT_MIN, Clasico, 0, 0) == 0);
    CHECK(Forma(-1, 0, Clasico, 0, 0) == RegionCreada{0, 0, 0, 1, 0, 0, 1000});
}

TEST_CASE_FIXTURE(Banco, "An ellipse beyond 32 bits overflows and shapes nothing") {
    CHECK(ErrorDeForma(INT_MAX - 1, 40, Redondeado, 1.5f, 0) == kDesbordamiento);
    CHECK(ErrorDeForma(40, INT_MIN, Redondeado, 0, 1.5f) == kDesbordamiento);
    CHECK(ErrorDeForma(INT_MIN, 1, Redondeado, -1, 0) == kDesbordamiento);
    CHECK(ErrorDeForma(INT_MIN, 1, Redondeado, 1, 0) == 0);
    CHECK(ErrorDeForma(100, 40, Redondeado, 3e38f, 0) == kDesbordamiento);
}

TEST_CASE_FIXTURE(Banco, "A curvature that is no number overflows unless the shape is classic") {
    for (const float valor : {kInfinito, -kInfinito, kNoNumero}) {
        CHECK(ErrorDeForma(100, 40, Redondeado, valor, 0) == kDesbordamiento);
        CHECK(ErrorDeForma(100, 40, Redondeado, 0, valor) == kDesbordamiento);
        CHECK(ErrorDeForma(100, 40, Clasico, valor, valor) == 0);
    }
    CHECK(ErrorDeForma(0, 0, Redondeado, kInfinito, 0) == kDesbordamiento);
}

TEST_CASE_FIXTURE(Banco, "A level of 0 copies opaquely and 255 changes nothing") {
    const auto alfa = [&](std::uint8_t nivel) { return Copia(0, 0, nivel).mezcla; };
    CHECK(alfa(0) == 0x00FF0000u);
    CHECK(alfa(128) == 0x007F0000u);
    CHECK(alfa(255) == 0);
    for (int nivel = 0; nivel <= 255; ++nivel)
        CHECK(alfa(static_cast<std::uint8_t>(nivel)) == static_cast<std::uint32_t>(255 - nivel)
                                                            << 16);
}

TEST_CASE_FIXTURE(Banco, "The source is read at its x twice") {
    CHECK(Copia(0, 10, 0) == LlamadaMezcla{22, 5, 6, 70, 80, 11, 0, 0, 30, 40, 0x00FF0000u});
    CHECK(Copia(7, 10, 0).xo == 7);
    CHECK(Copia(7, 10, 0).yo == 7);
    CHECK(Copia(-3, INT_MAX, 0).yo == -3);
}

TEST_CASE_FIXTURE(Banco, "A blended copy answers Empty and makes one call") {
    CHECK(efectos.DarTrans(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 0) == Variante(Vacio{}));
    CHECK(graficos.orden == std::vector<std::string>{"AlphaBlend"});
}
