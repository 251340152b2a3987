#include "comprobar_error.h"
#include "efectos/canales.h"
#include "efectos/efectos.h"
#include "graficos_grabador.h"

#include <climits>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

struct Banco {
    GraficosGrabador graficos;
    Efectos efectos{graficos};

    std::int16_t Simple(std::int32_t color, ColoresRGB canal) {
        return efectos.DevColor(color, canal, true);
    }
    std::int16_t Vertice(std::int32_t color, ColoresRGB canal) {
        return efectos.DevColor(color, canal);
    }
};

constexpr ColoresRGB kCanales[] = {ColoresRGB::Rojo, ColoresRGB::Verde, ColoresRGB::Azul};

} // namespace

TEST_CASE_FIXTURE(Banco, "A simple channel is the byte of that colour") {
    CHECK(Simple(0x00FF8040, ColoresRGB::Rojo) == 64);
    CHECK(Simple(0x00FF8040, ColoresRGB::Verde) == 128);
    CHECK(Simple(0x00FF8040, ColoresRGB::Azul) == 255);
}

TEST_CASE_FIXTURE(Banco, "A vertex channel is the byte times 256 as a 16-bit pattern") {
    CHECK(Vertice(0x00FF8040, ColoresRGB::Rojo) == 0x4000);
    CHECK(Vertice(0x00FF8040, ColoresRGB::Verde) == -32768);
    CHECK(Vertice(0x00FF8040, ColoresRGB::Azul) == -256);
    CHECK(Vertice(127, ColoresRGB::Rojo) == 32512);
}

TEST_CASE_FIXTURE(Banco, "No colour has no channels") {
    for (const auto canal : {ColoresRGB::Rojo, ColoresRGB::Verde, ColoresRGB::Azul,
                             static_cast<ColoresRGB>(-1), static_cast<ColoresRGB>(3)}) {
        CHECK(Simple(-1, canal) == 0);
        CHECK(Vertice(-1, canal) == 0);
    }
}

TEST_CASE_FIXTURE(Banco, "An unknown channel is 0 for every colour") {
    for (const std::int32_t color : {0, 0xFFFFFF, 0xFF8040, INT_MIN, INT_MAX}) {
        CHECK(efectos.DevColor(color) == 0);
        for (const std::int32_t canal : {-1, 3, 77, INT_MIN, INT_MAX}) {
            CHECK(Simple(color, static_cast<ColoresRGB>(canal)) == 0);
            CHECK(Vertice(color, static_cast<ColoresRGB>(canal)) == 0);
        }
    }
}

TEST_CASE_FIXTURE(Banco, "A system colour gives its low bytes untranslated") {
    const auto caraDeBoton = static_cast<std::int32_t>(0x8000000Fu);
    CHECK(Simple(caraDeBoton, ColoresRGB::Rojo) == 15);
    CHECK(Simple(caraDeBoton, ColoresRGB::Verde) == 0);
    CHECK(Vertice(caraDeBoton, ColoresRGB::Rojo) == 15 * 256);
    CHECK(Simple(-2, ColoresRGB::Rojo) == 254);
    CHECK(Simple(-2, ColoresRGB::Azul) == 255);
    CHECK(Simple(0x7F000000, ColoresRGB::Azul) == 0);
}

TEST_CASE("The short way to a vertex channel gives what the way through text gives") {
    for (int canal = 0; canal <= 255; ++canal) {
        const auto byte = static_cast<std::uint8_t>(canal);
        CHECK(static_cast<std::uint16_t>(PatronDeCanal(byte)) == canal * 256);
        for (const auto cual : kCanales) {
            const Color color(std::int32_t{canal << (8 * static_cast<int>(cual))});
            CHECK(CanalDe(color, cual) == canal);
            CHECK(CanalDeVertice(color, cual) == static_cast<std::uint16_t>(PatronDeCanal(byte)));
        }
    }
}

TEST_CASE_FIXTURE(Banco, "The whole-channel switch is any value that stands for True or False") {
    const auto con = [&](const Variante& simple) {
        return efectos.DevColor(0x40, ColoresRGB::Rojo, simple);
    };
    CHECK(con(true) == 64);
    CHECK(con(std::int16_t{-1}) == 64);
    CHECK(con(std::int32_t{1}) == 64);
    CHECK(con(Texto(u"True")) == 64);
    CHECK(con(false) == 16384);
    CHECK(con(std::int16_t{0}) == 16384);
    CHECK(con(Vacio{}) == 16384);
    CHECK(con(Falta{}) == 16384);
    CHECK(con(Texto(u"0")) == 16384);
    CHECK(con(Nulo{}) == 64);
    CHECK(ErrorDe([&] { con(Texto(u"quizás")); }) == kTipos);
    CHECK(ErrorDe([&] { con(ReferenciaObjeto{}); }) == kTipos);
}

TEST_CASE_FIXTURE(Banco, "Asking for a channel changes no argument and draws nothing") {
    const std::int32_t color = 0x123456;
    const ColoresRGB canal = ColoresRGB::Verde;
    const Variante simple = true;
    efectos.DevColor(color, canal, simple);
    CHECK(color == 0x123456);
    CHECK(canal == ColoresRGB::Verde);
    CHECK(simple == Variante(true));
    CHECK(graficos.orden.empty());
}

TEST_CASE_FIXTURE(Banco, "InviertoColor of any colour is 0") {
    for (const std::int32_t color : {0, -1, 0xFFFFFF, INT_MIN, INT_MAX})
        CHECK(efectos.InviertoColor(color) == 0);
}

TEST_CASE_FIXTURE(Banco, "The inverse takes each channel from 255") {
    CHECK(Inverso(efectos, Blanco) == Negro);
    CHECK(Inverso(efectos, Negro) == Blanco);
    CHECK(Inverso(efectos, Color(std::int32_t{0x00FF8040})) == Color(std::int32_t{0x00007FBF}));
    CHECK(Inverso(efectos, SinColor) == Blanco);
    CHECK(Inverso(efectos, CaraDeBoton) == ColorRGB(240, 255, 255));
}
