// Typing into a labelled text box.
#include "pruebas/nativas/caja_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

TEST_CASE("a key is told on its way down and up, then the host attends to what is pending") {
    auto p = NuevaCaja<Tbox>();
    std::int16_t codigo = 65;
    p->campo().oyente->KeyDown(codigo, 3);
    CHECK(p->Tomar() == Lineas{"evento PresTecla 65 3", "DoEvents"});
    p->campo().oyente->KeyUp(codigo, 1);
    CHECK(p->Tomar() == Lineas{"evento SoltoTecla 65 1", "DoEvents"});
}

TEST_CASE("a character is told before it changes the text") {
    auto p = NuevaCaja<Tbox>();
    p->Teclear(u"a");
    CHECK(p->Tomar() == Lineas{"evento TocoTecla 97", "DoEvents", "evento Change", "DoEvents"});
    CHECK(p->c->Text() == u"a");
}

TEST_CASE("a whole number is typed without its full stop") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonTipoTexto(TText::NumericoEnt);
    p->Teclear(u"12.3");
    CHECK(p->c->Text() == u"123");
}

TEST_CASE("a decimal number is typed with one comma") {
    auto p = NuevaCaja<TBoxML>();
    p->c->PonTipoTexto(TText::NumericoDes);
    p->Teclear(u"1.5,");
    CHECK(p->c->Text() == u"1,5");
    p->Teclear(u"\b\b.7");
    CHECK(p->c->Text() == u"1,7");
}

TEST_CASE("capitals are typed whatever the case") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonTipoTexto(TText::Mayuscula);
    p->Teclear(u"Año 1");
    CHECK(p->c->Text() == u"AÑO 1");
    CHECK(p->Tomar({"evento TocoTecla"})[0] == "evento TocoTecla 65");
}

TEST_CASE("a dropped character is not told at all") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonTipoTexto(TText::NumericoEnt);
    p->Tomar();
    p->Teclear(u"-x ,");
    CHECK(p->Tomar().empty());
    p->Teclear(u"\b\r!");
    CHECK(p->Tomar({"evento TocoTecla"}) ==
          Lineas{"evento TocoTecla 8", "evento TocoTecla 13", "evento TocoTecla 33"});
}

TEST_CASE("with any text every character is told as it is") {
    auto p = NuevaCaja<Tbox>();
    p->Teclear(u"-. \r\x7F");
    CHECK(p->Tomar({"evento TocoTecla"}) == Lineas{"evento TocoTecla 45", "evento TocoTecla 46",
                                                   "evento TocoTecla 32", "evento TocoTecla 13",
                                                   "evento TocoTecla 127"});
}

TEST_CASE("Enter goes nowhere from a labelled text box") {
    auto p = NuevaCaja<Tbox>();
    p->Teclear(u"\r");
    CHECK(p->Tomar() == Lineas{"evento TocoTecla 13", "DoEvents"});
}

TEST_CASE("a handler may change or drop what was typed") {
    auto p = NuevaCaja<Tbox>();
    p->c->eventos.TocoTecla.Conectar(
        [](std::int16_t& tecla) { tecla = tecla == u'a' ? std::int16_t{0} : std::int16_t{u'z'}; });
    p->Teclear(u"ab");
    CHECK(p->c->Text() == u"z");
    p->c->eventos.PresTecla.Conectar([](std::int16_t& tecla, std::int16_t&) { tecla = 0; });
    p->c->eventos.SoltoTecla.Conectar([](std::int16_t& tecla, std::int16_t&) { tecla = 9; });
    std::int16_t codigo = 65;
    p->campo().oyente->KeyDown(codigo, 0);
    CHECK(codigo == 0);
    p->campo().oyente->KeyUp(codigo, 0);
    CHECK(codigo == 9);
}

TEST_CASE("what a handler puts in the place of a character is not filtered again") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonTipoTexto(TText::NumericoEnt);
    p->c->eventos.TocoTecla.Conectar([](std::int16_t& tecla) { tecla = u'-'; });
    p->Teclear(u"1");
    CHECK(p->c->Text() == u"-");
}

TEST_CASE("keys on the control's own surface are nobody's") {
    auto p = NuevaCaja<Tbox>();
    std::int16_t codigo = 65;
    p->c->KeyDown(codigo, 0);
    p->c->KeyPress(codigo);
    p->c->KeyUp(codigo, 0);
    CHECK(p->Tomar().empty());
}

TEST_CASE("the limit and the lock of the field hold for typed characters") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonMaxText(2);
    p->Teclear(u"abc");
    CHECK(p->c->Text() == u"ab");
    p->c->PonTranca(true);
    p->Teclear(u"\b");
    CHECK(p->c->Text() == u"ab");
}

TEST_CASE("text assigned by program is not filtered") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonTipoTexto(TText::NumericoEnt);
    p->c->PonText(u"abc");
    CHECK(p->c->Text() == u"abc");
}

TEST_CASE("what the user edits does not change the property for the host") {
    auto p = NuevaCaja<Tbox>();
    p->Teclear(u"a");
    CHECK(p->Tomar({"PC"}).empty());
}

TEST_CASE("a text restored to its place raises Change without attending to the host") {
    auto p = NuevaCaja<Tbox>();
    p->e.alCambiar = [&](VistaTexto clave) {
        if (clave == u"TipoSombra")
            p->c->PonText(u"a");
    };
    BolsaGrabadora bolsa;
    p->Tomar();
    p->c->ReadProperties(bolsa);
    CHECK(p->Tomar({"evento", "DoEvents"}) == Lineas{"evento Change"});
}
