// The background: solid, gradient, transparent.
#include "pruebas/nativas/panel_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

PunteroPanel ConDegrade(TEstilosR estilo, const Texto& lista = u"255*16711680") {
    auto p = PanelNuevo();
    p->a->PonColorDegrade(lista);
    p->a->PonEstilosRell(estilo);
    p->Tomar();
    return p;
}

/// What redrawing does to the surface.
Lineas Redibujar(PanelDePrueba& p) {
    p.Tomar();
    p.a->PonToolTipText(u"x");
    return p.Tomar({"superficie", "GradientFill"});
}

} // namespace

TEST_CASE("a solid panel is cleared and nothing else") {
    auto p = PanelNuevo();
    p->a->PonColorDegrade(u"255*0");
    CHECK(Redibujar(*p) == Lineas{"superficie.Cls &HFFFFFF"});
}

TEST_CASE("a gradient fills the whole surface and is shown at once") {
    auto p = ConDegrade(TEstilosR::D_Hori);
    CHECK(Redibujar(*p) ==
          Lineas{"superficie.Cls &HFFFFFF",
                 "GradientFill superficie modo 0 figuras 1: 0,0 &HFF 100,30 &HFF0000",
                 "superficie.Refresh"});
}

TEST_CASE("the size of a gradient is rounded to whole pixels, halves to even") {
    auto p = ConDegrade(TEstilosR::D_Hori);
    p->e.pantalla.ancho = 50.5f;
    p->e.pantalla.alto = 29.6f;
    CHECK(Redibujar(*p)[1] == "GradientFill superficie modo 0 figuras 1: 0,0 &HFF 50,30 &HFF0000");
}

TEST_CASE("a diagonal gradient is drawn exactly like a vertical one") {
    auto diagonal = ConDegrade(TEstilosR::D_Diagonal, u"1*2*3");
    auto vertical = ConDegrade(TEstilosR::D_Vert, u"1*2*3");
    const Lineas lineas = Redibujar(*vertical);
    REQUIRE(lineas.size() == 3);
    CHECK(lineas[1].starts_with("GradientFill superficie modo 1"));
    CHECK(Redibujar(*diagonal) == lineas);
    // But the name of the style is kept.
    CHECK(diagonal->a->EstilosRell() == TEstilosR::D_Diagonal);
}

TEST_CASE("a list that can't be used draws no gradient, and the surface is shown") {
    for (const Texto& lista :
         {Texto(), Texto(u"255"), Texto(u"False"), Texto(u"255*rojo"), Texto(u"1*99999999999")}) {
        auto p = ConDegrade(TEstilosR::D_Pirami, lista);
        CHECK(Redibujar(*p) == Lineas{"superficie.Cls &HFFFFFF", "superficie.Refresh"});
    }
}

TEST_CASE("a fill of no known style draws no gradient") {
    for (int estilo : {5, -1}) {
        auto p = ConDegrade(static_cast<TEstilosR>(estilo));
        CHECK(Redibujar(*p) == Lineas{"superficie.Cls &HFFFFFF", "superficie.Refresh"});
    }
}

TEST_CASE("a transparent panel leaves the container visible, gradient or not") {
    auto p = ConDegrade(TEstilosR::D_Hori);
    p->a->PonBackStyle(TBack::Transparente);
    CHECK(p->Tomar({"superficie", "GradientFill"}) ==
          Lineas{"superficie.BackStyle 0", "superficie.Cls &HFFFFFF"});
    p->a->PonBackStyle(TBack::Opaco);
    CHECK(p->Tomar({"superficie.BackStyle", "GradientFill"}).size() == 2);
    // What is neither is opaque.
    p->a->PonBackStyle(static_cast<TBack>(7));
    CHECK(p->e.pantalla.BackStyle() == 1);
}

TEST_CASE("a gradient records the room its border leaves") {
    auto p = PanelNuevo();
    CHECK(p->a->Interior() == Area::RectInterior{});
    p->a->PonAnchoBorde(Tamanio::Grande);
    CHECK(p->a->Interior() == Area::RectInterior{}); // not for a solid panel
    p->a->PonEstilosRell(TEstilosR::D_Hori);
    CHECK(p->a->Interior() == Area::RectInterior{6, 6, 98, 28});
    p->a->PonAnchoBorde(Tamanio::Chico);
    CHECK(p->a->Interior() == Area::RectInterior{2, 2, 98, 28});
    p->a->PonEstilosBord(TEstilosB::Ninguno);
    CHECK(p->a->Interior() == Area::RectInterior{0, 0, 100, 30});
    p->e.pantalla.ancho = 60;
    p->a->Resize();
    CHECK(p->a->Interior() == Area::RectInterior{0, 0, 60, 30});
}

TEST_CASE("a surface wider than 32 bits raises an overflow") {
    auto p = ConDegrade(TEstilosR::D_Hori);
    p->e.pantalla.ancho = 4e9f;
    CHECK(ErrorDe([&] { p->a->Resize(); }) == kDesbordamiento);
    p->e.pantalla.ancho = 100;
    p->Tomar();
    p->a->Resize();
    CHECK(p->Tomar({"evento"}) == Lineas{"evento Resize"});
}
