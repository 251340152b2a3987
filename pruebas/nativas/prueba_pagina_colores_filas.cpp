// The rows of colour stops.
#include "pruebas/nativas/pagina_colores_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

constexpr std::int32_t SinElemento = static_cast<std::int32_t>(NumeroError::Subindice);
constexpr std::int32_t NoValida = static_cast<std::int32_t>(NumeroError::LlamadaNoValida);

/// Left and width of each stop: "45+1200 1245+1200".
std::string Lugares(FilaColores& fila) {
    std::string lugares;
    for (std::size_t j = 0; j < fila.Topes(); ++j)
        lugares += (j ? " " : "") + std::to_string(fila.Tope(j).Left()) + "+" +
                   std::to_string(fila.Tope(j).Width());
    return lugares;
}

/// `cuantos` stops of the colours 0, 1, 2...
Texto ListaDe(int cuantos) {
    Texto lista;
    for (int j = 0; j < cuantos; ++j)
        lista += (j ? u"*" : u"") + EnteroATexto(j);
    return lista;
}

} // namespace

TEST_CASE("stops are equally wide, with a margin on each side") {
    Colores c;
    // A frame of 3690: 3600 to share.
    CHECK(Lugares(c.Fila(0)) == "45+1200 1245+1200 2445+1200");
    CHECK(Lugares(c.Fila(1)) == "45+720 765+720 1485+720 2205+720 2925+720");
}

TEST_CASE("the width of a stop is rounded down") {
    Colores c;
    c.e.El<MarcoGrabado>("FraDegra(0)").ancho = 1000;
    c.e.Pulsar("CBMasColor(0)");
    CHECK(Lugares(c.Fila(0)) == "45+227 272+227 499+227 726+227");
    c.e.Pulsar("CBMenColor(0)");
    CHECK(Lugares(c.Fila(0)) == "45+303 348+303 651+303");
}

TEST_CASE("both rows are measured by the frame of the normal state") {
    Colores c;
    c.e.El<MarcoGrabado>("FraDegra(1)").ancho = 1;
    c.e.Pulsar("CBMenColor(1)");
    CHECK(Lugares(c.Fila(1)) == "45+900 945+900 1845+900 2745+900");
}

TEST_CASE("a new stop comes last, visible, with the colour of the one before") {
    Colores c;
    c.e.Pulsar("CBMasColor(0)");
    CHECK(c.Topes(0) == "1*2*3*3");
    CHECK(c.Topes(1) == "4*5*6*7*8");
    CHECK(c.Tope(0, 3).Visible());
    CHECK(Lugares(c.Fila(0)) == "45+900 945+900 1845+900 2745+900");
    c.e.Pulsar("CBMasColor(1)");
    CHECK(c.Topes(1) == "4*5*6*7*8*8");
}

TEST_CASE("the last stop is removed") {
    Colores c;
    c.e.Pulsar("CBMenColor(1)");
    CHECK(c.Topes(1) == "4*5*6*7");
    c.e.Pulsar("CBMenColor(0)");
    CHECK(c.Topes(0) == "1*2");
    CHECK(Lugares(c.Fila(0)) == "45+1800 1845+1800");
}

TEST_CASE("a change of the row draws its preview and raises the flag") {
    Colores c;
    for (const char* boton : {"CBMasColor(0)", "CBMenColor(0)"}) {
        c.e.PonChanged(false);
        c.Tomar();
        c.e.Pulsar(boton);
        CHECK(c.e.Changed());
        CHECK(c.Previstas() == "0");
    }
    c.e.Pulsar("CBMasColor(1)");
    CHECK(c.Previstas() == "1");
}

TEST_CASE("a row has at most 31 stops and at least 2 by the buttons") {
    Colores c;
    for (int i = 0; i < 40; ++i)
        c.e.Pulsar("CBMasColor(0)");
    CHECK(c.Fila(0).Topes() == 31);
    c.e.PonChanged(false);
    c.Tomar();
    c.e.Pulsar("CBMasColor(0)");
    CHECK(c.Tomar().empty());
    for (int i = 0; i < 40; ++i)
        c.e.Pulsar("CBMenColor(0)");
    CHECK(c.Topes(0) == "1*2");
    c.e.PonChanged(false);
    c.Tomar();
    c.e.Pulsar("CBMenColor(0)");
    CHECK(c.Tomar().empty());
}

TEST_CASE("30 stops take one more, 31 none; 3 lose one, 2 none") {
    Colores c;
    const auto con = [&](int topes, const char* boton) {
        c.boton->b->PonColorDegradeN(ListaDe(topes));
        c.p.SelectionChanged();
        c.e.Pulsar(boton);
        return c.Fila(0).Topes();
    };
    CHECK(con(30, "CBMasColor(0)") == 31);
    CHECK(con(31, "CBMasColor(0)") == 31);
    CHECK(con(3, "CBMenColor(0)") == 2);
    CHECK(con(2, "CBMenColor(0)") == 2);
    CHECK(con(1, "CBMenColor(0)") == 1);
    CHECK(con(40, "CBMasColor(0)") == 40);
    CHECK(con(40, "CBMenColor(0)") == 39);
}

TEST_CASE("a shorter list leaves nothing of a longer one behind") {
    Colores c;
    c.boton->b->PonColorDegradeN(ListaDe(31));
    c.p.SelectionChanged();
    CHECK(c.Fila(0).Topes() == 31);
    c.boton->b->PonColorDegradeN(u"5*6");
    c.p.SelectionChanged();
    CHECK(c.Topes(0) == "5*6");
    CHECK(Lugares(c.Fila(0)) == "45+1800 1845+1800");
}

TEST_CASE("more stops than a byte counts are an overflow") {
    Colores c;
    c.boton->b->PonColorDegradeN(ListaDe(256));
    CHECK(ErrorDe([&] { c.p.SelectionChanged(); }) == 0);
    CHECK(c.Fila(0).Topes() == 256);
    c.boton->b->PonColorDegradeN(ListaDe(300));
    CHECK(ErrorDe([&] { c.p.SelectionChanged(); }) == Desborda);
    c.boton->b->PonColorDegradeN(u"1*2");
    CHECK(ErrorDe([&] { c.p.SelectionChanged(); }) == 0);
}

TEST_CASE("a list that is no list of colours is refused, and the next selection shown") {
    Colores c;
    for (const auto& [lista, error] :
         {std::pair{u"1**2", NoCoincide}, {u"rojo", NoCoincide}, {u"1*3000000000", Desborda}}) {
        c.boton->b->PonColorDegradeN(lista);
        CHECK(ErrorDe([&] { c.p.SelectionChanged(); }) == error);
        c.boton->b->PonColorDegradeN(u"1*2");
        CHECK(ErrorDe([&] { c.p.SelectionChanged(); }) == 0);
        CHECK(c.Topes(0) == "1*2");
    }
}

TEST_CASE("stops can be added and removed through the published methods") {
    Colores c;
    c.p.AgregarColorD(c.p.FilaDe(0), 2);
    CHECK(c.Topes(0) == "1*2*3*3");
    c.p.EliminarColorD(c.p.FilaDe(0), 3);
    CHECK(c.Topes(0) == "1*2*3");
    c.Tomar();
    c.p.PreVis(1, c.p.FilaDe(0));
    CHECK(c.Tomar() ==
          Lineas{"GradientFill Picture1(1) modo 0 figuras 2: 0,0 &H1 60,40 &H2 120,0 &H3",
                 "Picture1(1).Refresh"});
}

TEST_CASE("a stop added after an inner one pushes its colour to the end") {
    Colores c;
    c.p.AgregarColorD(c.p.FilaDe(0), 0);
    CHECK(c.Topes(0) == "1*1*1*1");
    CHECK(Lugares(c.Fila(0)) == "45+900 945+900 1845+900 2745+900");
}

TEST_CASE("the published methods refuse what is no row, no stop or no state") {
    Colores c;
    const ReferenciaObjeto nada;
    const ReferenciaObjeto otra = std::make_shared<FuenteGrabada>();
    for (const ReferenciaObjeto& objeto : {nada, otra}) {
        CHECK(ErrorDe([&] { c.p.AgregarColorD(objeto, 1); }) == NoCoincide);
        CHECK(ErrorDe([&] { c.p.EliminarColorD(objeto, 1); }) == NoCoincide);
        CHECK(ErrorDe([&] { c.p.PreVis(0, objeto); }) == NoCoincide);
    }
    CHECK(ErrorDe([&] { c.p.AgregarColorD(c.p.FilaDe(0), 3); }) == SinElemento);
    CHECK(ErrorDe([&] { c.p.EliminarColorD(c.p.FilaDe(0), 0); }) == NoValida);
    CHECK(ErrorDe([&] { c.p.PreVis(2, c.p.FilaDe(0)); }) == SinElemento);
    CHECK(c.Topes(0) == "1*2*3");
    // A stop that is not there is not missed; the others make room for it all the same.
    c.p.EliminarColorD(c.p.FilaDe(0), 9);
    CHECK(c.Topes(0) == "1*2*3");
    CHECK(Lugares(c.Fila(0)) == "45+1800 1845+1800 3645+1800");
}
