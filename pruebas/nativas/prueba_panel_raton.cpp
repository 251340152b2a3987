// The mouse, over the panel and over its caption.
#include "pruebas/nativas/panel_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

void TodoElRaton(OyenteRaton& oyente) {
    oyente.MouseDown(1, 2, 3, 4.5f);
    oyente.MouseMove(1, 0, 5, 6);
    oyente.MouseUp(1, 4, 7, 8);
    oyente.Click();
}

const Lineas TodosLosEventos = {"evento MouseDown 1 2 3 4.5", "evento MouseMove 1 0 5 6",
                                "evento MouseUp 1 4 7 8", "evento Click"};

} // namespace

TEST_CASE("the mouse over an enabled panel is told, and nothing is redrawn") {
    auto p = PanelNuevo();
    TodoElRaton(*p->a);
    CHECK(p->Tomar() == TodosLosEventos);
}

TEST_CASE("the mouse over the caption or its copies is told with their own coordinates") {
    auto p = PanelNuevo();
    for (const char* nombre : {"lblTitulo", "LblSombra", "lblSombra2"}) {
        INFO(nombre);
        TodoElRaton(*p->e.LaEtiqueta(nombre).oyente);
        CHECK(p->Tomar() == TodosLosEventos);
    }
}

TEST_CASE("a disabled panel tells nothing of the mouse") {
    auto p = PanelNuevo();
    p->a->PonEnabled(false);
    p->Tomar();
    TodoElRaton(*p->a);
    TodoElRaton(*p->e.LaEtiqueta("lblTitulo").oyente);
    CHECK(p->Tomar().empty());
}

TEST_CASE("while the first colour is assigned moves are told and buttons are not") {
    PanelDePrueba p;
    MientrasCarga(p, [&] {
        p.a->MouseDown(1, 0, 1, 1);
        p.a->MouseMove(1, 0, 1, 1);
        p.a->MouseUp(1, 0, 1, 1);
        CHECK(p.Tomar() == Lineas{"evento MouseMove 1 0 1 1"});
    });
    p.Tomar();
    p.a->MouseDown(1, 0, 1, 1);
    CHECK(p.Eventos() == Lineas{"evento MouseDown 1 0 1 1"});
}

TEST_CASE("a handler that disables the panel silences what follows") {
    auto p = PanelNuevo();
    p->a->eventos.MouseDown.Conectar([&](auto&...) { p->a->PonEnabled(false); });
    TodoElRaton(*p->a);
    CHECK(p->Eventos().empty());
}

TEST_CASE("leaving the panel with the mouse is never told") {
    auto p = PanelNuevo();
    p->e.RatonEncima();
    p->a->MouseMove(0, 0, 1, 1);
    p->e.RatonFuera();
    p->a->MouseMove(0, 0, 500, 500);
    p->a->Click();
    CHECK(p->Tomar({"evento MouseSale"}).empty());
    CHECK_FALSE(p->e.Existe("temporizador1"));
}
