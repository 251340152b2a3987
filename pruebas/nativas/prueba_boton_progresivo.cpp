// The change of look in steps.
#include "pruebas/nativas/boton_de_prueba.h"

#include <doctest/doctest.h>

#include <cmath>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

Puntero Progresivo(std::uint8_t pasos) {
    Puntero p = Nuevo();
    p->b->PonCambioProgre(true);
    p->b->PonCambioProgrePasos(pasos);
    p->b->PonColorFondoSobre(Color(0xFF));
    p->Tomar();
    p->e.dibujo.Olvidar();
    return p;
}

TemporizadorGrabado& TimProg(BotonDePrueba& p) {
    return p.e.ElTemporizador("TimProg");
}

/// Transparency levels of the copies since the last time.
std::vector<int> Niveles(BotonDePrueba& p) {
    std::vector<int> niveles;
    for (const LlamadaMezcla& mezcla : std::exchange(p.e.dibujo.mezclas, {}))
        niveles.push_back(255 - static_cast<int>((mezcla.mezcla >> 16) & 0xFF));
    return niveles;
}

/// One whole change: the direct step and the ticks until the timer stops.
std::vector<int> CambioEntero(BotonDePrueba& p) {
    Niveles(p);
    p.Entrar();
    while (TimProg(p).Tic()) {
    }
    return Niveles(p);
}

} // namespace

TEST_CASE("a change with no more than one step happens at once at level 0") {
    for (std::uint8_t pasos : {std::uint8_t{0}, std::uint8_t{1}}) {
        auto p = Progresivo(pasos);
        p->Entrar();
        CHECK(p->Tomar() ==
              Lineas{"lblTitulo.ForeColor &H0", "LblSombra.ForeColor &HFFFFFF",
                     "lblSombra2.ForeColor &H0", "AuxImagen.BackColor &HFF", "AuxImagen.Cls &HFF",
                     "AlphaBlend superficie 0,0 100x30 <- AuxImagen 0,0 100x30 alfa 255",
                     "TimProg.Enabled False"} +
                  BordeLevantado +
                  Lineas{"superficie.Refresh", "Timer.Interval 1", "Timer.Enabled True",
                         "evento MouseMove 0 0 5 5"});
        CHECK(Niveles(*p) == std::vector<int>{0});
        // Change after change.
        p->Salir();
        CHECK(Niveles(*p) == std::vector<int>{0});
        p->Entrar();
        CHECK(Niveles(*p) == std::vector<int>{0});
        CHECK_FALSE(TimProg(*p).Enabled());
    }
}

TEST_CASE("two steps: half the way at once, the rest at the first tick") {
    auto p = Progresivo(2);
    p->Entrar();
    CHECK(p->Tomar({"AuxImagen", "AlphaBlend", "superficie.Refresh", "TimProg"}) ==
          Lineas{"AuxImagen.BackColor &HFF", "AuxImagen.Cls &HFF",
                 "AlphaBlend superficie 0,0 100x30 <- AuxImagen 0,0 100x30 alfa 127",
                 "superficie.Refresh", "TimProg.Enabled True"});
    CHECK(TimProg(*p).Interval() == 30);
    CHECK(TimProg(*p).Tic());
    CHECK(p->Tomar() == Lineas{"AlphaBlend superficie 0,0 100x30 <- AuxImagen 0,0 100x30 alfa 255",
                               "TimProg.Enabled False"} +
                            BordeLevantado + Lineas{"superficie.Refresh"});
    CHECK_FALSE(TimProg(*p).Tic());
}

TEST_CASE("with d steps the level falls evenly to 0") {
    CHECK(CambioEntero(*Progresivo(2)) == std::vector<int>{128, 0});
    CHECK(CambioEntero(*Progresivo(5)) == std::vector<int>{204, 153, 102, 51, 0});
    CHECK(CambioEntero(*Progresivo(10)) ==
          std::vector<int>{230, 204, 179, 153, 128, 102, 77, 51, 26, 0});
    for (int d : {7, 100, 127, 128}) {
        std::vector<int> esperados;
        for (int paso = 1; paso <= d; ++paso)
            esperados.push_back(255 - static_cast<int>(std::floor(paso * 255.0 / d)));
        CHECK(CambioEntero(*Progresivo(static_cast<std::uint8_t>(d))) == esperados);
        CHECK(esperados.back() == 0);
    }
}

TEST_CASE("every change runs its own steps from the first one") {
    auto p = Progresivo(5);
    const auto ida = CambioEntero(*p);
    p->Salir();
    while (TimProg(*p).Tic()) {
    }
    CHECK(Niveles(*p) == ida);
}

TEST_CASE("a change of more than 128 steps overflows at the next one and the button goes on") {
    for (int d : {129, 255}) {
        auto p = Progresivo(static_cast<std::uint8_t>(d));
        p->Entrar();
        for (int paso = 2; paso <= 128; ++paso)
            REQUIRE(TimProg(*p).Tic());
        CHECK(Niveles(*p).size() == 128);
        CHECK(ErrorDe([&] { TimProg(*p).Tic(); }) == Desborda);
        CHECK(Niveles(*p).empty());
        // Told once: the fade has stopped, and the next change starts from its first step.
        CHECK_FALSE(TimProg(*p).Tic());
        p->Salir();
        CHECK(Niveles(*p) == std::vector<int>{255 - 255 / d});
    }
}

TEST_CASE("an overflow while the mouse enters does not stop the watch for its way out") {
    auto p = Progresivo(200);
    p->Entrar();
    for (int paso = 2; paso <= 128; ++paso)
        TimProg(*p).Tic();
    p->b->Click(); // ends the hover state; the next move enters again
    p->e.ElTemporizador("Timer").PonEnabled(false);
    p->Tomar();
    CHECK(ErrorDe([&] { p->Entrar(); }) == Desborda);
    CHECK(p->e.ElTemporizador("Timer").Enabled());
    CHECK(p->Salir());
    CHECK(p->Eventos() == Lineas{"evento MouseSale"});
}

TEST_CASE("a change that comes in the middle of another carries its count on") {
    auto p = Progresivo(5);
    p->Entrar();
    TimProg(*p).Tic();
    Niveles(*p);
    p->Salir();
    CHECK(Niveles(*p) == std::vector<int>{102});
    while (TimProg(*p).Tic()) {
    }
    CHECK(Niveles(*p) == std::vector<int>{51, 0});
}

TEST_CASE("a change that finishes another at once leaves no timer running") {
    auto p = Progresivo(2);
    p->Entrar();
    p->Salir();
    CHECK(Niveles(*p) == std::vector<int>{128, 0});
    CHECK_FALSE(TimProg(*p).Enabled());
}

TEST_CASE("a new number of steps stops the change in course and counts from the start") {
    auto p = Progresivo(10);
    p->Entrar();
    TimProg(*p).Tic();
    p->b->PonCambioProgrePasos(2);
    CHECK_FALSE(TimProg(*p).Enabled());
    Niveles(*p);
    p->Salir();
    while (TimProg(*p).Tic()) {
    }
    CHECK(Niveles(*p) == std::vector<int>{128, 0});
}

TEST_CASE("a drawing at once ends the change in course") {
    auto p = Progresivo(10);
    p->Entrar();
    p->b->PonCambioProgre(false);
    CHECK(TimProg(*p).Enabled());
    p->b->PonExpandir(true);
    CHECK_FALSE(TimProg(*p).Enabled());
}

TEST_CASE("each step draws the border of the moment and shows it") {
    auto p = Progresivo(3);
    p->Entrar();
    p->b->MouseDown(1, 0, 5, 5);
    p->Tomar();
    TimProg(*p).Tic();
    CHECK(p->Tomar() == Lineas{"AlphaBlend superficie 0,0 100x30 <- AuxImagen 0,0 100x30 alfa 255",
                               "TimProg.Enabled False"} +
                            BordeHundido + Lineas{"superficie.Refresh"});
}

TEST_CASE("face and image are painted into the auxiliary picture at the button's size") {
    auto p = Progresivo(1);
    p->e.pantalla.ancho = 50; // not told by a resize
    p->b->PonEstilosRell(TEstilosR::D_Vert);
    p->b->PonImagNormal(ImagenDe("disco"));
    p->Tomar();
    p->b->PonColorDegradeN(u"0*255");
    CHECK(p->Tomar({"AuxImagen", "GradientFill", "AlphaBlend", "superficie.Cls"}) ==
          Lineas{"AuxImagen.Cls &H8000000F",
                 "GradientFill AuxImagen modo 1 figuras 1: 0,0 &H0 50,30 &HFF",
                 "AuxImagen.PaintPicture disco 1,1 48x28",
                 "AlphaBlend superficie 0,0 50x30 <- AuxImagen 0,0 50x30 alfa 255"});
}

TEST_CASE("a progressive button is restored with its colour and its first step") {
    BotonDePrueba p;
    BolsaGrabadora bolsa;
    bolsa.valores[u"CambioProgre"] = true;
    bolsa.valores[u"ColorFondo"] = std::int32_t{0xFF};
    p.b->ReadProperties(bolsa);
    CHECK(p.e.ElCuadro("AuxImagen").BackColor() == Color(0xFF));
    const Lineas lineas = p.Tomar({"AuxImagen", "AlphaBlend", "superficie.Cls"});
    CHECK(lineas[lineas.size() - 2] == "AuxImagen.Cls &HFF");
    CHECK(lineas.back() == "AlphaBlend superficie 0,0 100x30 <- AuxImagen 0,0 100x30 alfa 255");
}
