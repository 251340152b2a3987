// The marks of the controls placed on the panel.
#include "pruebas/nativas/panel_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

ContenidoGrabado En(float izquierda, float arriba, float ancho, float alto) {
    ContenidoGrabado control;
    control.izquierda = izquierda;
    control.arriba = arriba;
    control.ancho = ancho;
    control.alto = alto;
    return control;
}

PunteroPanel Con(std::vector<ContenidoGrabado> controles) {
    auto p = PanelNuevo();
    p->e.contenidos = std::move(controles);
    return p;
}

bool SeVe(PanelDePrueba& p, const std::string& nombre) {
    return p.e.Existe(nombre) && p.e.ElRectangulo(nombre).Visible();
}

} // namespace

TEST_CASE("each visible control is framed, in the host's order") {
    auto p = Con({En(10, 5, 20, 8), En(40, 5.5f, 30, 9), En(0, 0, 1, 1)});
    p->a->ManAreas(true);
    CHECK(p->Tomar({"Cuadra0.Move", "Cuadra1.Move", "Cuadra2.Move"}) ==
          Lineas{"Cuadra0.Move 9,4 22x10", "Cuadra1.Move 39,4.5 32x11", "Cuadra2.Move -1,-1 3x3"});
    CHECK(SeVe(*p, "Cuadra0"));
    CHECK(SeVe(*p, "Cuadra1"));
    CHECK(SeVe(*p, "Cuadra2"));
    CHECK_FALSE(p->e.Existe("Cuadra3"));
}

TEST_CASE("a hidden control and one that can't be read get no mark and use none up") {
    auto oculto = En(1, 1, 1, 1), ilegible = En(2, 2, 2, 2), sinLugar = En(3, 3, 3, 3);
    oculto.visible = false;
    ilegible.legible = false;
    sinLugar.ubicable = false;
    auto p = Con({oculto, ilegible, sinLugar, En(40, 5, 30, 9)});
    p->a->ManAreas(true);
    CHECK(p->Tomar({"Cuadra0.Move", "Cuadra1"}) == Lineas{"Cuadra0.Move 39,4 32x11"});
    CHECK_FALSE(p->e.Existe("Cuadra1"));
}

TEST_CASE("the marks are unloaded but for the first, which is hidden") {
    auto p = Con({En(1, 1, 1, 1), En(2, 2, 2, 2), En(3, 3, 3, 3)});
    p->a->ManAreas(true);
    p->a->ManAreas(false);
    CHECK(p->e.Existe("Cuadra0"));
    CHECK_FALSE(SeVe(*p, "Cuadra0"));
    CHECK_FALSE(p->e.Existe("Cuadra1"));
    CHECK_FALSE(p->e.Existe("Cuadra2"));
    // And again, with nothing left to unload.
    p->a->ManAreas(false);
    CHECK_FALSE(SeVe(*p, "Cuadra0"));
}

TEST_CASE("marks once loaded are used again, and those no control needs are hidden") {
    auto p = Con({En(1, 1, 1, 1), En(2, 2, 2, 2)});
    p->a->ManAreas(true);
    p->e.contenidos = {En(50, 5, 5, 5)};
    p->a->ManAreas(true);
    CHECK(SeVe(*p, "Cuadra0"));
    CHECK(p->e.Existe("Cuadra1"));
    CHECK_FALSE(SeVe(*p, "Cuadra1"));
    p->e.contenidos.clear();
    p->a->ManAreas(true);
    CHECK_FALSE(SeVe(*p, "Cuadra0"));
    p->e.contenidos.assign(2, En(1, 1, 1, 1));
    p->a->ManAreas(true);
    CHECK(SeVe(*p, "Cuadra0"));
    CHECK(SeVe(*p, "Cuadra1"));
    CHECK_FALSE(p->e.Existe("Cuadra2"));
}

TEST_CASE("marks are drawn in the colour of the letter, first of all the first") {
    auto p = Con({En(1, 1, 1, 1), En(2, 2, 2, 2)});
    p->a->PonColorLetra(Color(0xFF));
    p->Tomar();
    p->a->ManAreas(false);
    CHECK(p->Tomar().front() == "Cuadra0.BorderColor &HFF");
    p->a->ManAreas(true);
    const Lineas lineas = p->Tomar();
    CHECK(lineas.front() == "Cuadra0.BorderColor &HFF");
    CHECK(std::find(lineas.begin(), lineas.end(), "Cuadra1.BorderColor &HFF") != lineas.end());
    CHECK(std::find(lineas.begin(), lineas.end(), "Cuadra1.FillColor &HFFFFFFFF") != lineas.end());
    p->a->PonColorLetra(Color(0xFF00));
    p->Tomar();
    p->a->ManAreas(true);
    CHECK(p->Tomar({"Cuadra1.BorderColor"}) == Lineas{"Cuadra1.BorderColor &HFF00"});
}

TEST_CASE("marks may be taken away while a control is read for them") {
    auto p = Con({En(1, 1, 1, 1), En(2, 2, 2, 2), En(3, 3, 3, 3)});
    p->e.contenidos[2].alLeer = [&] { p->a->ManAreas(false); };
    p->a->ManAreas(true);
    // The last control has its own mark; the others went away with the call in between.
    CHECK_FALSE(SeVe(*p, "Cuadra0"));
    const Lineas lineas = p->Tomar({"Cuadra"});
    CHECK(lineas.back() == "Cuadra3.Visible True");
    CHECK_FALSE(p->e.Existe("Cuadra1"));
    CHECK_FALSE(SeVe(*p, "Cuadra2"));
}

TEST_CASE("the wish is read once, whatever becomes of the variable that held it") {
    bool crear = true;
    auto p = Con({En(1, 1, 1, 1), En(2, 2, 2, 2)});
    p->e.contenidos[0].alLeer = [&] { crear = false; };
    p->a->ManAreas(crear);
    CHECK(SeVe(*p, "Cuadra0"));
    CHECK(SeVe(*p, "Cuadra1"));
}
