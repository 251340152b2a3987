// Where caption, field and their shadows lie, place by place.
#include "pruebas/nativas/caja_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

/// Moves of one layout: shadow of the caption, caption, field, shadow of the field.
Lineas Colocar(CajaDePrueba<Tbox>& p, Alineaciones lugar) {
    p.c->PonAlinTBox(lugar);
    p.Tomar();
    p.c->AjustarTexto();
    Lineas lineas = p.Tomar();
    std::erase_if(lineas, [](const std::string& l) { return l.find(".Move ") == l.npos; });
    return lineas;
}

/// A control of 201 by 80 with a caption of 36 by 13; shadow 4, margin 2.
std::unique_ptr<CajaDePrueba<Tbox>> Armada() {
    auto p = NuevaCaja<Tbox>();
    p->c->PonCaption(u"Nombre");
    p->c->PonSepara(4);
    p->c->PonSeparaBorde(Tamanio::Mediano);
    p->Tamano(201, 80);
    return p;
}

} // namespace

TEST_CASE("each of the nine places has its own coordinates") {
    struct Caso {
        Alineaciones lugar;
        const char *sombraDelTitulo, *titulo, *campo, *sombra;
    };
    const Caso casos[] = {
        {Alineaciones::Izq_Sup, "3,63", "2,62", "6,2 189x59", "10,6 189x59"},
        {Alineaciones::Izq_Med, "164,35", "163,34", "6,2 157x72", "10,6 157x72"},
        {Alineaciones::Izq_Inf, "3,2", "2,1", "6,15 189x59", "10,19 189x59"},
        {Alineaciones::Med_Sup, "83,63", "82,62", "6,2 189x59", "10,6 189x59"},
        {Alineaciones::Medio, "83,2", "82,1", "6,15 189x59", "10,19 189x59"},
        {Alineaciones::Med_Inf, "83,2", "82,1", "6,15 189x59", "10,19 189x59"},
        {Alineaciones::Der_Sup, "164,63", "163,62", "6,2 189x59", "10,6 189x59"},
        {Alineaciones::Der_Med, "3,35", "2,34", "38,2 157x72", "42,6 157x72"},
        {Alineaciones::Der_Inf, "164,2", "163,1", "6,15 189x59", "10,19 189x59"},
    };
    for (const Caso& caso : casos) {
        INFO("place " << static_cast<int>(caso.lugar));
        auto p = Armada();
        CHECK(Colocar(*p, caso.lugar) ==
              Lineas{std::string("lblSombra.Move ") + caso.sombraDelTitulo,
                     std::string("lblTexto.Move ") + caso.titulo,
                     std::string("txtTexto.Move ") + caso.campo,
                     std::string("Sombra.Move ") + caso.sombra});
    }
}

TEST_CASE("a layout colours the shadow of the caption, copies the caption, then places all") {
    auto p = Armada();
    p->Tomar();
    p->c->AjustarTexto();
    CHECK(p->Tomar() == Lineas{"lblSombra.ForeColor &HFFFFFF", "lblSombra.Caption \"Nombre\"",
                               "lblSombra.Move 3,63", "lblTexto.Move 2,62",
                               "txtTexto.Move 6,2 189x59", "Sombra.Move 10,6 189x59"});
}

TEST_CASE("field and shadow are as much smaller than their box as the shadow sticks out") {
    auto p = NuevaCaja<Tbox>();
    p->Tamano(200, 60);
    // The box is 195 by 45 at 4,1: the field 3 less each way, its shadow 3 further.
    CHECK(p->Tomar({"txtTexto.Move", "Sombra.Move"}) ==
          Lineas{"txtTexto.Move 4,1 192x42", "Sombra.Move 7,4 192x42"});
}

TEST_CASE("Medio puts the caption at the top, centred") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonCaption(u"ab"); // 12 wide
    CHECK(Colocar(*p, Alineaciones::Medio)[1] == "lblTexto.Move 44,0");
}

TEST_CASE("halves round the whole first, ties to even, and go toward minus infinity") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonCaption(u"ab");
    auto centro = [&](float ancho) {
        p->e.pantalla.ancho = ancho;
        return Colocar(*p, Alineaciones::Med_Inf)[1];
    };
    CHECK(centro(101) == "lblTexto.Move 44,0");    // 89
    CHECK(centro(102) == "lblTexto.Move 45,0");    // 90
    CHECK(centro(101.5f) == "lblTexto.Move 45,0"); // 89.5 to 90
    CHECK(centro(100.5f) == "lblTexto.Move 44,0"); // 88.5 to 88
    CHECK(centro(11) == "lblTexto.Move -1,0");     // -1
    CHECK(centro(9) == "lblTexto.Move -2,0");      // -3
    auto medio = [&](float alto) {
        p->e.pantalla.ancho = 100;
        p->e.pantalla.alto = alto;
        return Colocar(*p, Alineaciones::Der_Med)[1];
    };
    CHECK(medio(31) == "lblTexto.Move 1,9"); // 31 - 13 + 3 is 21
    CHECK(medio(9) == "lblTexto.Move 1,-2"); // -1
}

TEST_CASE("a control too small for its shadow has a field without size") {
    auto p = Armada();
    for (int i = 0; i < 9; ++i) {
        p->e.pantalla.ancho = p->e.pantalla.alto = 5;
        const Lineas lineas = Colocar(*p, static_cast<Alineaciones>(i));
        INFO(lineas[2]);
        CHECK(lineas[2].ends_with(" 0x0"));
        CHECK(lineas[3].ends_with(" 0x0"));
    }
    p->e.pantalla.ancho = 201;
    CHECK(Colocar(*p, Alineaciones::Izq_Sup)[2] == "txtTexto.Move 6,2 189x0");
}

TEST_CASE("a box exactly as large as its shadow is the last one without size") {
    auto p = NuevaCaja<Tbox>();
    p->e.pantalla.ancho = 8; // box 3 wide
    CHECK(Colocar(*p, Alineaciones::Izq_Sup)[2] == "txtTexto.Move 4,1 0x12");
    p->e.pantalla.ancho = 9;
    CHECK(Colocar(*p, Alineaciones::Izq_Sup)[2] == "txtTexto.Move 4,1 1x12");
}

TEST_CASE("sizes are taken as whole numbers of 16 bits, ties to even") {
    auto p = NuevaCaja<Tbox>();
    p->e.pantalla.ancho = 100.5f; // box 95.5
    CHECK(Colocar(*p, Alineaciones::Izq_Sup)[2] == "txtTexto.Move 4,1 93x12");
    p->e.pantalla.ancho = 32772; // box 32767
    CHECK(Colocar(*p, Alineaciones::Izq_Sup)[2] == "txtTexto.Move 4,1 32764x12");
    p->e.pantalla.ancho = 32773;
    CHECK(ErrorDe([&] { p->c->AjustarTexto(); }) == kDesbordamiento);
    p->e.pantalla.ancho = 100;
    p->e.pantalla.alto = 40000;
    CHECK(ErrorDe([&] { p->c->AjustarTexto(); }) == kDesbordamiento);
    p->e.pantalla.alto = 30;
    CHECK(ErrorDe([&] { p->c->AjustarTexto(); }) == 0);
}

TEST_CASE("a margin beyond sizes overflows after it is stored") {
    auto p = NuevaCaja<Tbox>();
    const auto enorme = static_cast<Tamanio>(2147483647);
    CHECK(ErrorDe([&] { p->c->PonSeparaBorde(enorme); }) == kDesbordamiento);
    CHECK(p->c->SeparaBorde() == enorme);
    p->c->PonSeparaBorde(Tamanio::Chico);
    CHECK(p->c->SeparaBorde() == Tamanio::Chico);
}

TEST_CASE("a place that is none of the nine leaves every position at its origin") {
    auto p = Armada();
    for (const int lugar : {9, -1, 100}) {
        CHECK(Colocar(*p, static_cast<Alineaciones>(lugar)) ==
              Lineas{"lblSombra.Move 1,0", "lblTexto.Move 0,-1", "txtTexto.Move 6,0 189x59",
                     "Sombra.Move 10,4 189x59"});
    }
}

TEST_CASE("a wider letter takes its room from a field beside the caption") {
    auto p = Armada();
    p->c->PonAlinTBox(Alineaciones::Der_Med);
    p->e.anchoLetra = 10;
    p->Tomar();
    p->c->PonFuenteEtic(Letra(u"Verdana"));
    CHECK(p->Tomar({"txtTexto.Move"}) == Lineas{"txtTexto.Move 62,2 133x72"});
}

TEST_CASE("a resize lays out and is told, in this order") {
    auto p = NuevaCaja<Tbox>();
    p->c->Resize();
    const Lineas lineas = p->Tomar();
    CHECK(lineas.back() == "evento Resize");
    CHECK(lineas[lineas.size() - 2] == "Sombra.Move 7,4 92x12");
}

TEST_CASE("painting is told and paints nothing") {
    auto p = NuevaCaja<Tbox>();
    p->c->Paint();
    CHECK(p->Tomar() == Lineas{"evento Paint"});
}
