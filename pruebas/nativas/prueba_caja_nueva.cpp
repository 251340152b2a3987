// A new labelled text box.
#include "pruebas/nativas/caja_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

using Prueba = CajaDePrueba<Tbox>;

TEST_CASE("a new text box starts with the values of its table") {
    Prueba p;
    p.c->InitProperties();
    const Tbox& c = *p.c;
    CHECK(c.TipoLetra() == TLetra::Normal);
    CHECK(c.SeparaBorde() == Tamanio::Chico);
    CHECK(c.TipoSombra() == TSombra::Negra);
    CHECK_FALSE(c.FocoConMouse());
    CHECK_FALSE(c.FocoVisible()); // assigned True
    CHECK(c.Apariencia() == 1);
    CHECK(c.TipoTexto() == TText::TextNorm);
    CHECK(c.Enabled());
    CHECK(c.Separa() == 3);
    CHECK(c.BackStyle() == TBack::Opaco);
    CHECK(c.ToolTipText().empty());
    CHECK(c.MousePointer() == 0);
    CHECK(c.MouseIcon() == nullptr);
    CHECK(c.ColorFonTextoS() == Color(0x80000005u));
    CHECK(c.ColorFonTexto() == Color(0x80000005u));
    CHECK(c.ColorFondoSobre() == Color(0x8000000Fu));
    CHECK(c.ColorFondo() == Color(0x8000000Fu));
    CHECK(c.ColorLetraES() == Color(0x80000008u));
    CHECK(c.ColorLetraE() == Color(0x80000008u));
    CHECK(c.ColorLetraSobre() == Color(0x80000008u));
    CHECK(c.ColorLetra() == Color(0x80000008u));
    CHECK(c.FuenteTexto() == p.e.fuenteAmbiente);
    CHECK(c.FuenteEtic() == p.e.fuenteAmbiente);
    CHECK(p.sombraDelTitulo().Font() == p.e.fuenteAmbiente);
    CHECK(c.Text().empty());
    CHECK(c.MaxText() == 0);
    CHECK(c.Caption().empty());
    CHECK(c.AlinText() == 0);
    CHECK(c.AlinTBox() == Alineaciones::Izq_Sup);
    CHECK_FALSE(c.Tranca());
    CHECK(p.e.pantalla.AccessKeys().empty());
}

TEST_CASE("a new text box tells its first values in order, and only those that changed") {
    Prueba p;
    p.c->InitProperties();
    CHECK(p.Tomar({"PC", "evento"}) ==
          Lineas{"PC FocoVisible", "PC TipoTexto", "PC Apariencia", "PC Separa", "PC TipoSombra",
                 "PC SeparaBorde", "PC FocoConMouse", "PC ColorLetra", "PC ColorLetraSobre",
                 "PC ColorLetraE", "PC ColorLetraES", "PC ColorFonTexto", "PC ColorFonTextoS",
                 "PC ColorFondo", "PC ColorFondoSobre", "PC Enabled"});
}

TEST_CASE("a new text box is laid out for Separa and for SeparaBorde") {
    Prueba p;
    p.c->InitProperties();
    CHECK(p.Tomar({"txtTexto.Move"}) ==
          Lineas{"txtTexto.Move 3,0 94x14", "txtTexto.Move 4,1 92x12"});
}

TEST_CASE("a control initialised again is laid out for a place that is not the first one") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonAlinTBox(Alineaciones::Medio);
    p->Tomar();
    p->c->InitProperties();
    CHECK(p->Tomar({"txtTexto.Move"}) == Lineas{"txtTexto.Move 4,1 92x12"});
}

TEST_CASE("the shadow of a new text box is black, inside and border") {
    Prueba p;
    p.c->InitProperties();
    CHECK(p.Tomar({"Sombra.FillColor", "Sombra.BorderColor"}) ==
          Lineas{"Sombra.FillColor &H0", "Sombra.BorderColor &H0"});
}

TEST_CASE("the edit field has one line in one control and several in the other") {
    Prueba una;
    CHECK_FALSE(una.campo().multilinea);
    CajaDePrueba<TBoxML> varias;
    CHECK(varias.campo().multilinea);
}

TEST_CASE("the parts start stopped and silent, and the control disabled") {
    Prueba p;
    CHECK_FALSE(p.sondeo().Enabled());
    CHECK_FALSE(p.c->Enabled());
    CHECK(p.titulo().oyente != nullptr);
    CHECK(p.sombraDelTitulo().oyente == nullptr);
}
