#include "common/conversion.h"
#include "efectos/efectos.h"
#include "efectos/lista_colores.h"
#include "graficos_grabador.h"

#include <doctest/doctest.h>

#include <climits>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

struct Banco {
    GraficosGrabador graficos;
    Efectos efectos{graficos};

    void Degradar(TEstilosR estilo, Texto lista, std::int32_t ancho = 100, std::int32_t alto = 20,
                  std::int16_t angulo = 0) {
        graficos.Olvidar();
        efectos.Degrade(77, ancho, alto, estilo, std::move(lista), angulo);
    }
    /// The only fill of a gradient; everything empty when there was none.
    LlamadaGradiente Dibujado(TEstilosR estilo, Texto lista, std::int32_t ancho = 100,
                              std::int32_t alto = 20, std::int16_t angulo = 0) {
        Degradar(estilo, std::move(lista), ancho, alto, angulo);
        REQUIRE(graficos.gradientes.size() == 1);
        REQUIRE(graficos.orden.size() == 1);
        return graficos.gradientes.front();
    }
    bool NadaCon(TEstilosR estilo, Texto lista, std::int32_t ancho = 100, std::int32_t alto = 20,
                 std::int16_t angulo = 0) {
        Degradar(estilo, std::move(lista), ancho, alto, angulo);
        return graficos.orden.empty();
    }
};

TRIVERTEX V(std::int32_t x, std::int32_t y, int rojo, int verde, int azul) {
    const auto canal = [](int c) { return static_cast<std::uint16_t>(c * 256); };
    return {x, y, canal(rojo), canal(verde), canal(azul), 0};
}

Texto Lista(std::size_t colores) {
    Texto lista;
    for (std::size_t i = 0; i < colores; ++i)
        AgregarColor(lista, Color(static_cast<std::int32_t>(i)));
    return lista;
}

constexpr auto H = TEstilosR::D_Hori;
constexpr auto Ve = TEstilosR::D_Vert;
constexpr auto P = TEstilosR::D_Pirami;
constexpr auto D = TEstilosR::D_Diagonal;
constexpr TEstilosR kEstilos[] = {H, Ve, P, D};

const Texto kTres = u"255*65280*16711680";
const Texto kTresAlReves = u"16711680*65280*255";

} // namespace

TEST_CASE_FIXTURE(Banco, "White to black across is one rectangle from corner to corner") {
    const auto fill = Dibujado(H, u"16777215*0");
    CHECK(fill.hdc == 77);
    CHECK(fill.vertices == std::vector{V(0, 0, 255, 255, 255), V(100, 20, 0, 0, 0)});
    CHECK(fill.rectangulos == std::vector{GRADIENT_RECT{0, 1}});
    CHECK(fill.triangulos.empty());
    CHECK(static_cast<int>(fill.modo) == 0);
}

TEST_CASE_FIXTURE(Banco, "Three colours downwards are two bands") {
    const auto fill = Dibujado(Ve, kTres, 30, 101);
    CHECK(fill.vertices ==
          std::vector{V(0, 0, 255, 0, 0), V(30, 50, 0, 255, 0), V(0, 101, 0, 0, 255)});
    CHECK(fill.rectangulos == std::vector{GRADIENT_RECT{0, 1}, GRADIENT_RECT{1, 2}});
    CHECK(static_cast<int>(fill.modo) == 1);
}

TEST_CASE_FIXTURE(Banco, "A pyramid of two colours has the first in the centre") {
    const auto fill = Dibujado(P, u"0*255");
    CHECK(fill.vertices == std::vector{V(50, 10, 0, 0, 0), V(0, 0, 255, 0, 0), V(100, 0, 255, 0, 0),
                                       V(0, 20, 255, 0, 0), V(100, 20, 255, 0, 0)});
    CHECK(fill.triangulos == std::vector{GRADIENT_TRIANGLE{0, 1, 2}, GRADIENT_TRIANGLE{0, 1, 3},
                                         GRADIENT_TRIANGLE{0, 3, 4}, GRADIENT_TRIANGLE{0, 2, 4}});
    CHECK(fill.rectangulos.empty());
    CHECK(static_cast<int>(fill.modo) == 2);
}

TEST_CASE_FIXTURE(Banco, "A pyramid gives its corners the colours that follow, the last repeated") {
    const auto rojos = [&](Texto lista) {
        std::vector<int> valores;
        for (const TRIVERTEX& vertice : Dibujado(P, std::move(lista)).vertices)
            valores.push_back(vertice.Red / 256);
        return valores;
    };
    CHECK(rojos(u"1*2*3") == std::vector{1, 2, 3, 3, 3});
    CHECK(rojos(u"1*2*3*4") == std::vector{1, 2, 3, 4, 4});
    CHECK(rojos(u"1*2*3*4*5") == std::vector{1, 2, 3, 4, 5});
    CHECK(NadaCon(P, u"1*2*3*4*5*6"));
}

TEST_CASE_FIXTURE(Banco, "A pyramid and plain gradients ignore the angle") {
    for (const auto estilo : {H, Ve, P})
        for (const std::int16_t angulo : {45, 180, 200, 270, -5, -32768, 32767})
            CHECK(Dibujado(estilo, kTres, 100, 20, angulo) == Dibujado(estilo, kTres));
}

TEST_CASE_FIXTURE(Banco, "A diagonal of right angles is a plain gradient") {
    CHECK(Dibujado(D, kTres, 60, 40, 0) == Dibujado(Ve, kTres, 60, 40));
    CHECK(Dibujado(D, kTres, 60, 40, -30) == Dibujado(Ve, kTres, 60, 40));
    CHECK(Dibujado(D, kTres, 60, 40, -32768) == Dibujado(Ve, kTres, 60, 40));
    CHECK(Dibujado(D, kTres, 60, 40, 90) == Dibujado(H, kTres, 60, 40));
    CHECK(Dibujado(D, kTres, 60, 40, 180) == Dibujado(Ve, kTresAlReves, 60, 40));
    CHECK(Dibujado(D, kTres, 60, 40, 270) == Dibujado(H, kTresAlReves, 60, 40));
}

TEST_CASE_FIXTURE(Banco, "A diagonal past half a turn is the opposite one with its list reversed") {
    CHECK(Dibujado(D, kTres, 60, 40, 200) == Dibujado(D, kTresAlReves, 60, 40, 20));
    // In the fourth quadrant the flip is that of the second.
    CHECK(Dibujado(D, kTres, 60, 40, 315) == Dibujado(D, kTresAlReves, 60, 40, 135));
}

TEST_CASE_FIXTURE(Banco, "A diagonal of 45 degrees") {
    const auto fill = Dibujado(D, u"16777215*0", 100, 100, 45);
    CHECK(fill.vertices == std::vector{V(-100, 100, 255, 255, 255), V(0, 0, 255, 255, 255),
                                       V(100, 100, 0, 0, 0), V(200, 0, 0, 0, 0)});
    CHECK(fill.triangulos == std::vector{GRADIENT_TRIANGLE{0, 1, 2}, GRADIENT_TRIANGLE{1, 2, 3}});
    CHECK(static_cast<int>(fill.modo) == 2);
    CHECK(Dibujado(D, u"16777215*0", 100, 100, 135).vertices[0].y == 0);
}

TEST_CASE_FIXTURE(Banco, "The angle may be left out and is then 0") {
    efectos.Degrade(77, 60, 40, D, kTres);
    REQUIRE(graficos.gradientes.size() == 1);
    const auto sinAngulo = graficos.gradientes.front();
    CHECK(sinAngulo == Dibujado(Ve, kTres, 60, 40));
}

TEST_CASE_FIXTURE(Banco, "A list without two colours draws nothing") {
    for (const auto estilo : kEstilos)
        for (const std::int16_t angulo : {0, 45, 180, 200})
            for (const Texto lista : {u"", u"255", u" ", u"abc"})
                CHECK(NadaCon(estilo, lista, 100, 20, angulo));
}

TEST_CASE_FIXTURE(Banco, "A solid style or one outside the enumeration draws nothing") {
    for (const std::int32_t estilo : {0, 5, -1, INT_MIN, INT_MAX})
        CHECK(NadaCon(static_cast<TEstilosR>(estilo), u"16777215*0"));
}

TEST_CASE_FIXTURE(Banco, "A piece that is no colour spoils the whole gradient") {
    for (const auto estilo : kEstilos)
        for (const Texto lista : {u"0**255", u"0*", u"*", u"*0", u"0*rojo", u"0*2147483648",
                                  u"0*-2147483649", u"0*&H", u"0*1*2*", u"0*&H100000000"})
            CHECK(NadaCon(estilo, lista, 100, 20, 45));
}

TEST_CASE_FIXTURE(Banco, "Pieces convert as automation converts text") {
    const auto fill = Dibujado(H, u" 255 *&HFF00*1.5");
    CHECK(fill.vertices ==
          std::vector{V(0, 0, 255, 0, 0), V(50, 20, 0, 255, 0), V(100, 0, 2, 0, 0)});
}

TEST_CASE_FIXTURE(Banco, "No colour and system colours are drawn by their low bytes") {
    const auto fill = Dibujado(H, u"-1*-2147483633");
    CHECK(fill.vertices == std::vector{V(0, 0, 0, 0, 0), V(100, 20, 15, 0, 0)});
}

TEST_CASE_FIXTURE(Banco, "A lone separator reversed stands for white to black") {
    CHECK(NadaCon(D, u"*", 60, 40, 90));
    CHECK(Dibujado(D, u"*", 60, 40, 180) == Dibujado(Ve, u"16777215*0", 60, 40));
    CHECK(Dibujado(D, u"***", 60, 40, 270) == Dibujado(H, u"16777215*0", 60, 40));
    CHECK(Dibujado(D, u"*", 60, 40, 200) == Dibujado(D, u"16777215*0", 60, 40, 20));
}

TEST_CASE_FIXTURE(Banco, "Empty pieces at the end are lost by a reversal and nowhere else") {
    CHECK(NadaCon(D, u"255*0*", 60, 40, 20));
    CHECK(Dibujado(D, u"255*0*", 60, 40, 200) == Dibujado(D, u"0*255", 60, 40, 20));
    CHECK(NadaCon(D, u"*255*0", 60, 40, 200));
    // One colour is left, and one colour has no bands.
    for (const std::int16_t angulo : {180, 200, 270})
        CHECK(NadaCon(D, u"255*", 60, 40, angulo));
}

TEST_CASE_FIXTURE(Banco, "Colours past the counters draw nothing") {
    CHECK(Dibujado(D, Lista(255), 1000, 20, 45).vertices.size() == 510);
    CHECK(NadaCon(D, Lista(256), 1000, 20, 45));
    CHECK(NadaCon(D, Lista(256), 1000, 20, 225));
    CHECK(Dibujado(D, Lista(256), 1000, 20, 90).vertices.size() == 256);
    for (const auto estilo : {H, Ve}) {
        CHECK(Dibujado(estilo, Lista(32767)).vertices.size() == 32767);
        CHECK(NadaCon(estilo, Lista(32768)));
        CHECK(NadaCon(estilo, Lista(70000)));
    }
    CHECK(Dibujado(D, Lista(32767), 100, 20, 270).vertices.size() == 32767);
    CHECK(NadaCon(D, Lista(32769), 100, 20, 270));
}

TEST_CASE_FIXTURE(Banco, "A size of any sign is handed over as it is") {
    CHECK(Dibujado(H, u"0*1*2", -10, -20).vertices ==
          std::vector{V(0, 0, 0, 0, 0), V(-5, -20, 1, 0, 0), V(-10, 0, 2, 0, 0)});
    CHECK(Dibujado(Ve, u"0*1", 0, 0).vertices == std::vector{V(0, 0, 0, 0, 0), V(0, 0, 1, 0, 0)});
    CHECK(Dibujado(H, u"0*1", INT_MIN, INT_MAX).vertices[1].x == INT_MIN);
    CHECK(Dibujado(P, u"0*1", INT_MAX, INT_MIN).vertices[4] == V(INT_MAX, INT_MIN, 1, 0, 0));
    CHECK(Dibujado(D, u"0*1", 0, 0, 45).vertices.size() == 4);
}

TEST_CASE_FIXTURE(Banco, "A diagonal whose strip leaves 32 bits draws nothing") {
    CHECK(NadaCon(D, u"0*1", 100, INT_MAX, 1));
    CHECK(NadaCon(D, u"0*1", 100, INT_MIN, 1));
    CHECK(NadaCon(D, u"0*1", INT_MAX, INT_MAX, 45));
    CHECK(NadaCon(D, u"0*1", 100, 400000, 360));
    CHECK(Dibujado(D, u"0*1", 100, 100000, 360).vertices.size() == 4);
}

TEST_CASE_FIXTURE(Banco, "Vertices have the channels DevColor gives") {
    for (std::int32_t i = 0; i <= 255; ++i) {
        const std::int32_t color = i | ((255 - i) << 8) | (((i * 7) & 255) << 16);
        Texto lista = u"0";
        AgregarColor(lista, Color(color));
        const TRIVERTEX vertice = Dibujado(H, lista).vertices[1];
        const auto canal = [&](ColoresRGB cual) {
            return static_cast<std::uint16_t>(efectos.DevColor(color, cual));
        };
        CHECK(vertice.Red == canal(ColoresRGB::Rojo));
        CHECK(vertice.Green == canal(ColoresRGB::Verde));
        CHECK(vertice.Blue == canal(ColoresRGB::Azul));
        CHECK(vertice.Alpha == 0);
    }
}

TEST_CASE_FIXTURE(Banco, "The caller's variables stay as they were") {
    const std::int32_t hdc = 77, ancho = 60, alto = 40;
    const std::int16_t angulo = 270;
    const TEstilosR estilo = D;
    const Texto lista = kTres;
    efectos.Degrade(hdc, ancho, alto, estilo, lista, angulo);
    CHECK(hdc == 77);
    CHECK(ancho == 60);
    CHECK(alto == 40);
    CHECK(angulo == 270);
    CHECK(estilo == D);
    CHECK(lista == kTres);
}

TEST_CASE_FIXTURE(Banco, "A failed gradient leaves the next one untouched") {
    CHECK(NadaCon(D, u"0*x", 60, 40, 200));
    CHECK(Dibujado(H, u"16777215*0").vertices.size() == 2);
}
