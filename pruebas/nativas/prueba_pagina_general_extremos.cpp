// Where the general page fails, and how far it got by then.
#include "area/area.h"
#include "paginas/propgeneral.h"
#include "pruebas/nativas/boton_de_prueba.h"
#include "pruebas/nativas/pagina_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

using General = PaginaDePrueba<ProPGeneral>;

constexpr std::int32_t NoVale = static_cast<std::int32_t>(NumeroError::ValorDePropiedad);

} // namespace

TEST_CASE("the steps must be a number of a byte") {
    const std::pair<const char16_t*, std::int32_t> casos[] = {
        {u"", NoCoincide}, {u"256", Desborda}, {u"!", NoCoincide}, {u"255", 0}, {u" 7 ", 0}};
    for (const auto& [texto, error] : casos) {
        General g;
        auto b = Nuevo();
        g.Mostrar({b->b.get()});
        g.e.ElCampo("txtCamTiem").Pegar(texto);
        g.e.ElCampo("Texto").Pegar(u"Escrito antes");
        CHECK(ErrorDe([&] { g.p.ApplyChanges(); }) == error);
        // The steps are written last: everything else has arrived.
        CHECK(b->b->Caption() == u"Escrito antes");
        CHECK(g.e.Changed() == (error != 0));
    }
}

TEST_CASE("an error while applying leaves the buttons after it untouched") {
    General g;
    auto uno = Nuevo();
    auto dos = Nuevo();
    g.Mostrar({uno->b.get(), dos->b.get()});
    g.e.ElCampo("Texto").Pegar(u"Nuevo");
    g.e.ElCampo("txtCamTiem").Pegar(u"999");
    dos->Tomar();
    CHECK(ErrorDe([&] { g.p.ApplyChanges(); }) == Desborda);
    CHECK(uno->b->Caption() == u"Nuevo");
    CHECK(dos->Tomar({"PC"}).empty());
}

TEST_CASE("an object that is no button is a type mismatch") {
    EntornoGrabador entorno;
    Area panel(entorno);
    for (ControlUsuario* ajeno : std::initializer_list<ControlUsuario*>{nullptr, &panel}) {
        General g;
        auto antes = Nuevo();
        auto despues = Nuevo();
        g.Mostrar({antes->b.get()});
        g.e.ElCampo("Texto").Pegar(u"Nuevo");
        g.e.seleccion = {antes->b.get(), ajeno, despues->b.get()};
        despues->Tomar();
        // Those before it are whole, those after it as they were.
        CHECK(ErrorDe([&] { g.p.ApplyChanges(); }) == NoCoincide);
        CHECK(antes->b->Caption() == u"Nuevo");
        CHECK(antes->b->CambioProgrePasos() == 0);
        CHECK(despues->Tomar({"PC"}).empty());
        CHECK(g.e.Changed());
        CHECK(ErrorDe([&] { g.p.SelectionChanged(); }) == NoCoincide);
    }
}

TEST_CASE("a curvature that is no number is a type mismatch, and the page goes on") {
    General g;
    auto b = Nuevo();
    g.Mostrar({b->b.get()});
    for (const char* campo : {"txtRelX", "txtRelY"}) {
        CHECK(ErrorDe([&] { g.e.ElCampo(campo).Pegar(u","); }) == NoCoincide);
        CHECK(ErrorDe([&] { g.e.ElCampo(campo).Pegar(u" "); }) == NoCoincide);
        CHECK(ErrorDe([&] { g.e.ElCampo(campo).Pegar(u"1e99"); }) == Desborda);
        CHECK(ErrorDe([&] { g.e.ElCampo(campo).Pegar(u"0,5"); }) == 0);
    }
    g.p.ApplyChanges();
    CHECK(b->b->RelX() == 0.5F);
}

TEST_CASE("an error in the middle of a move of the slider frees the text") {
    General g;
    auto b = Nuevo();
    g.Mostrar({b->b.get()});
    g.e.ElCampo("txtRelY").Teclear('x');
    CHECK(ErrorDe([&] { g.e.ElCampo("txtRelY").Pegar(u","); }) == NoCoincide);
    auto& deslizador = g.e.El<DeslizadorGrabado>("sldX");
    CHECK(ErrorDe([&] { deslizador.Mover(20); }) == NoCoincide);
    CHECK(ErrorDe([&] { g.e.ElCampo("txtRelY").Pegar(u"1"); }) == 0);
    g.e.ElCampo("txtRelX").Pegar(u"0,4");
    CHECK(deslizador.Value() == 40);
}

TEST_CASE("a curvature beyond the slider is refused by it, after the preview has it") {
    General g;
    auto b = Nuevo();
    g.Mostrar({b->b.get()});
    CHECK(ErrorDe([&] { g.e.ElCampo("txtRelX").Pegar(u"15,01"); }) == NoVale);
    CHECK(ErrorDe([&] { g.e.ElCampo("txtRelX").Pegar(u"-0,01"); }) == NoVale);
    CHECK(ErrorDe([&] { g.e.ElCampo("txtRelX").Pegar(u"99999999"); }) == Desborda);
    b->b->PonRelX(-1);
    CHECK(ErrorDe([&] { g.p.SelectionChanged(); }) == NoVale);
}

TEST_CASE("a border width is counted from 1 in 16 bits") {
    General g;
    auto b = Nuevo();
    const auto con = [&](std::int32_t ancho) {
        b->b->PonAnchoBorde(static_cast<Tamanio>(ancho));
        g.e.seleccion = {b->b.get()};
        return ErrorDe([&] { g.p.SelectionChanged(); });
    };
    CHECK(con(0) == 0);
    CHECK(g.Indice("comAnchoB") == -1);
    CHECK(con(4) == NoVale);
    CHECK(con(-1) == NoVale);
    CHECK(con(32768) == NoVale);
    CHECK(con(32769) == Desborda);
}

TEST_CASE("a value without an item is refused by its list") {
    General g;
    auto b = Nuevo();
    b->b->PonEstilosBord(static_cast<TEstilosB>(5));
    g.e.seleccion = {b->b.get()};
    CHECK(ErrorDe([&] { g.p.SelectionChanged(); }) == NoVale);
    b->b->PonEstilosBord(TEstilosB::Normal);
    CHECK(ErrorDe([&] { g.p.SelectionChanged(); }) == 0);
}

TEST_CASE("a list without a choice is written as it stands") {
    General g;
    auto b = Nuevo();
    g.Mostrar({b->b.get()});
    for (const char* lista : {"CobAlinText", "ComEstBorde", "comAnchoB", "CobEstilo"})
        g.e.LaLista(lista).PonListIndex(-1);
    g.p.ApplyChanges();
    CHECK(std::int32_t(b->b->AlinText()) == -1);
    CHECK(std::int32_t(b->b->EstilosBord()) == -1);
    CHECK(std::int32_t(b->b->AnchoBorde()) == 0);
    CHECK(std::int32_t(b->b->Estilos()) == -1);
    // Whatever is not the first shape is a round one.
    CHECK(g.e.ElCampo("txtRelX").Enabled());
}

TEST_CASE("without selected objects the page opens and writes nothing") {
    General g;
    g.Mostrar({});
    CHECK(ErrorDe([&] { g.p.ApplyChanges(); }) == 0);
    CHECK_FALSE(g.e.Changed());
}

TEST_CASE("a curvature of 0 keeps the height of it out, as every assignment does") {
    General g;
    auto b = Nuevo();
    g.Mostrar({b->b.get()});
    g.e.LaLista("CobEstilo").Pulsar(1);
    g.e.ElCampo("txtRelY").Pegar(u"0,5");
    g.e.ElCampo("txtRelX").Pegar(u"0");
    g.p.ApplyChanges();
    CHECK(b->b->RelX() == 0);
    CHECK(b->b->RelY() == 1);
}
