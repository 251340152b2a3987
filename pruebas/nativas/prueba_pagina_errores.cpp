// The wrong objects under the colour page of the button, and a page while its selection goes.
#include "area/area.h"
#include "pruebas/nativas/pagina_colores_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

TEST_CASE("an object that is no button is a type mismatch; those before it are whole") {
    EntornoGrabador entorno;
    Area panel(entorno);
    for (ControlUsuario* ajeno : std::initializer_list<ControlUsuario*>{nullptr, &panel}) {
        Colores c;
        auto antes = Nuevo();
        auto despues = Nuevo();
        c.e.seleccion = {antes->b.get(), ajeno, despues->b.get()};
        CHECK(ErrorDe([&] { c.p.ApplyChanges(); }) == NoCoincide);
        CHECK(antes->b->ColorDegradeN() == u"1*2*3");
        CHECK(antes->b->EstilosRell() == TEstilosR::D_Hori);
        CHECK(despues->Tomar({"PC"}).empty());
        CHECK(ErrorDe([&] { c.p.SelectionChanged(); }) == NoCoincide);
        // Nothing keeps the next selection from being shown.
        c.e.seleccion = {c.boton->b.get()};
        CHECK(ErrorDe([&] { c.p.SelectionChanged(); }) == 0);
        CHECK(c.Topes(0) == "1*2*3");
    }
}

TEST_CASE("a fill without an item is refused by its list") {
    Colores c;
    c.boton->b->PonEstilosRell(static_cast<TEstilosR>(5));
    CHECK(ErrorDe([&] { c.p.SelectionChanged(); }) ==
          static_cast<std::int32_t>(NumeroError::ValorDePropiedad));
    c.boton->b->PonEstilosRell(TEstilosR::D_Vert);
    CHECK(ErrorDe([&] { c.p.SelectionChanged(); }) == 0);
}

TEST_CASE("a selection that goes in the middle of an apply ends it") {
    Colores c;
    auto uno = Nuevo();
    auto dos = Nuevo();
    c.e.seleccion = {uno->b.get(), dos->b.get()};
    uno->e.alCambiar = [&](VistaTexto) { c.e.seleccion.clear(); };
    CHECK(ErrorDe([&] { c.p.ApplyChanges(); }) == 0);
    CHECK(uno->b->ColorDegradeN() == u"1*2*3");
    CHECK(dos->Tomar({"PC"}).empty());
}
