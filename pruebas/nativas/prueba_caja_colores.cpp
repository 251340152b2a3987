// The two sets of colours and the shadows that follow them.
#include "pruebas/nativas/caja_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

std::unique_ptr<CajaDePrueba<Tbox>> Pintada() {
    auto p = NuevaCaja<Tbox>();
    p->c->PonColorLetra(Color(0x000001));
    p->c->PonColorLetraSobre(Color(0x000002));
    p->c->PonColorLetraE(Color(0x000003));
    p->c->PonColorLetraES(Color(0x000004));
    p->c->PonColorFonTexto(Color(0x000005));
    p->c->PonColorFonTextoS(Color(0x000006));
    p->c->PonColorFondo(Color(0x000007));
    p->c->PonColorFondoSobre(Color(0x000008));
    p->Tomar();
    return p;
}

/// Colour of the caption's shadow under a caption of this colour.
std::string SombraDe(TLetra tipo, Color letra) {
    auto p = NuevaCaja<Tbox>();
    p->c->PonTipoLetra(tipo);
    p->Tomar();
    p->c->PonColorLetraE(letra);
    return Describir(p->sombraDelTitulo().ForeColor());
}

} // namespace

TEST_CASE("the mouse-over colours reach caption, field and surface in order") {
    auto p = Pintada();
    p->c->ActualizarColores(true);
    CHECK(p->Tomar() == Lineas{"lblTexto.ForeColor &H4", "lblSombra.ForeColor &HFFFFFF",
                               "txtTexto.ForeColor &H2", "txtTexto.BackColor &H6",
                               "superficie.BackColor &H8", "superficie.Cls &H8"});
}

TEST_CASE("the normal colours take the places of the mouse-over ones") {
    auto p = Pintada();
    p->c->ActualizarColores(true);
    p->Tomar();
    p->c->ActualizarColores(false);
    CHECK(p->Tomar() == Lineas{"lblTexto.ForeColor &H3", "lblSombra.ForeColor &HFFFFFF",
                               "txtTexto.ForeColor &H1", "txtTexto.BackColor &H5",
                               "superficie.BackColor &H7", "superficie.Cls &H7"});
}

TEST_CASE("an inverse shadow follows the field's colour in every change of set") {
    auto p = Pintada();
    p->c->PonTipoSombra(TSombra::Invertida);
    CHECK(p->Tomar({"Sombra"}) ==
          Lineas{"Sombra.FillColor &HFFFFFA", "Sombra.BorderColor &HFFFFFA"});
    p->c->ActualizarColores(true);
    CHECK(p->Tomar({"Sombra", "txtTexto.BackColor", "superficie.BackColor"}) ==
          Lineas{"txtTexto.BackColor &H6", "Sombra.FillColor &HFFFFF9",
                 "Sombra.BorderColor &HFFFFF9", "superficie.BackColor &H8"});
    p->c->ActualizarColores(false);
    CHECK(p->Tomar({"Sombra.Fill"}) == Lineas{"Sombra.FillColor &HFFFFFA"});
    p->c->PonColorFonTexto(Color(0x123456));
    CHECK(p->Tomar({"PC", "Sombra"}) ==
          Lineas{"PC ColorFonTexto", "Sombra.FillColor &HEDCBA9", "Sombra.BorderColor &HEDCBA9"});
}

TEST_CASE("each kind of shadow has its colour, whatever the field's") {
    auto p = Pintada();
    auto sombra = [&](TSombra tipo) {
        p->c->PonTipoSombra(tipo);
        const Lineas lineas = p->Tomar({"Sombra", "lblSombra", "PC"});
        CHECK(lineas.size() == 4);
        CHECK(lineas[0] == "lblSombra.ForeColor &HFFFFFF");
        CHECK(lineas[3] == "PC TipoSombra");
        return lineas[1] + " " + lineas[2];
    };
    CHECK(sombra(TSombra::Negra) == "Sombra.FillColor &H0 Sombra.BorderColor &H0");
    CHECK(sombra(TSombra::Gris) == "Sombra.FillColor &HA0A0A0 Sombra.BorderColor &HA0A0A0");
    CHECK(sombra(TSombra::Blanca) == "Sombra.FillColor &HFFFFFF Sombra.BorderColor &HFFFFFF");
    CHECK(sombra(TSombra::Invertida) == "Sombra.FillColor &HFFFFFA Sombra.BorderColor &HFFFFFA");
}

TEST_CASE("only an inverse shadow is coloured again with the field") {
    auto p = Pintada();
    p->c->PonTipoSombra(TSombra::Gris);
    p->Tomar();
    p->c->PonColorFonTexto(Color(0xFF));
    p->c->ActualizarColores(true);
    p->c->ActualizarColores(false);
    CHECK(p->Tomar({"Sombra"}).empty());
}

TEST_CASE("the caption's shadow is white, or the inverse of the caption") {
    CHECK(SombraDe(TLetra::Normal, Negro) == "&HFFFFFF");
    CHECK(SombraDe(TLetra::Levantada, Negro) == "&HFFFFFF");
    CHECK(SombraDe(TLetra::Levantada, Color(0xFF)) == "&HFFFFFF");
    CHECK(SombraDe(TLetra::Undida, Color(0xFF)) == "&HFFFFFF");
    CHECK(SombraDe(TLetra::InvesoL, Negro) == "&HFFFFFF");
    CHECK(SombraDe(TLetra::InvesoL, Blanco) == "&H0");
    CHECK(SombraDe(TLetra::InvesoU, Color(0x0000FF)) == "&HFFFF00");
    CHECK(SombraDe(TLetra::InvesoU, Color(0x804020)) == "&H7FBFDF");
    CHECK(SombraDe(static_cast<TLetra>(5), Color(0xFF)) == "&HFFFFFF");
}

TEST_CASE("a system colour is inverted as the colour it stands for now") {
    auto p = NuevaCaja<Tbox>();
    p->e.coloresDeSistema[0x80000008] = Color(0x0000FF);
    p->e.coloresDeSistema[0x80000005] = Color(0x112233);
    p->c->PonTipoLetra(TLetra::InvesoL);
    CHECK(Describir(p->sombraDelTitulo().ForeColor()) == "&HFFFF00");
    p->Tomar();
    p->c->PonTipoSombra(TSombra::Invertida);
    CHECK(p->Tomar({"Sombra.Fill"}) == Lineas{"Sombra.FillColor &HEEDDCC"});
    // The theme changes: the next colouring shows it.
    p->e.coloresDeSistema[0x80000005] = Negro;
    p->c->ActualizarColores(false);
    CHECK(p->Tomar({"Sombra.Fill"}) == Lineas{"Sombra.FillColor &HFFFFFF"});
    // Field and caption keep the index: they follow the theme by themselves.
    CHECK(p->campo().BackColor() == FondoDeVentana);
}

TEST_CASE("no colour counts as black when it is inverted") {
    CHECK(SombraDe(TLetra::InvesoL, SinColor) == "&HFFFFFF");
}

TEST_CASE("a caption coloured by the mouse keeps a shadow of its own colour") {
    auto p = Pintada();
    p->c->PonTipoLetra(TLetra::InvesoU);
    p->Tomar();
    p->c->ActualizarColores(true);
    CHECK(p->Tomar({"lblSombra"}) == Lineas{"lblSombra.ForeColor &HFFFFFB"});
    p->c->ActualizarColores(false);
    CHECK(p->Tomar({"lblSombra"}) == Lineas{"lblSombra.ForeColor &HFFFFFC"});
}
