// A plain text box: first values, assignments, layout and colours.
#include "pruebas/nativas/caja_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

using Prueba = CajaDePrueba<TboxSS>;

TEST_CASE("a new plain text box starts with the values of its table") {
    Prueba p;
    p.c->InitProperties();
    const TboxSS& c = *p.c;
    CHECK(c.SelStart() == 0);
    CHECK(c.SelLength() == 0);
    CHECK(c.SelText().empty());
    CHECK(c.SelecConFoco());
    CHECK(c.NavConEnter());
    CHECK(c.AlinTBox() == Alineaciones::Der_Med);
    CHECK(c.BackStyle() == TBack::Transparente);
    CHECK(c.ColorFonTextoS() == Color(0xC0FFC0));
    CHECK(c.ColorFonTexto() == FondoDeVentana);
    CHECK(c.ColorLetra() == TextoDeVentana);
    CHECK(c.ColorLetraSobre() == TextoDeVentana);
    CHECK(c.ColorFondo() == CaraDeBoton);
    CHECK(c.ColorFondoSobre() == CaraDeBoton);
    CHECK(c.Separa() == 0);
    CHECK(c.SeparaBorde() == Tamanio::Chico);
    CHECK(c.TipoLetra() == TLetra::Normal);
    CHECK(c.TipoTexto() == TText::TextNorm);
    CHECK(c.Apariencia() == 1);
    CHECK(c.Enabled());
    CHECK_FALSE(c.FocoConMouse());
    CHECK_FALSE(c.FocoVisible());
    CHECK(c.FuenteTexto() == p.e.fuenteAmbiente);
    CHECK(c.Text().empty());
    CHECK(c.MaxText() == 0);
    CHECK(c.AlinText() == 0);
    CHECK_FALSE(c.Tranca());
    CHECK(c.ToolTipText().empty());
    CHECK(c.MousePointer() == 0);
    CHECK(c.MouseIcon() == nullptr);
}

TEST_CASE("a new plain text box tells its first values in order, SelecConFoco not among them") {
    Prueba p;
    p.c->InitProperties();
    CHECK(p.Tomar({"PC", "evento"}) ==
          Lineas{"PC FocoVisible", "PC NavConEnter", "PC AlinTBox", "PC TipoTexto", "PC Apariencia",
                 "PC SeparaBorde", "PC BackStyle", "PC FocoConMouse", "PC ColorLetra",
                 "PC ColorLetraSobre", "PC ColorFonTexto", "PC ColorFonTextoS", "PC ColorFondo",
                 "PC ColorFondoSobre", "PC Enabled"});
}

TEST_CASE("a plain text box has an edit field and nothing else") {
    Prueba p;
    CHECK(p.e.Existe("txtTexto"));
    CHECK_FALSE(p.campo().multilinea);
    for (const char* otro : {"Sombra", "lblSombra", "lblTexto", "Timer"})
        CHECK_FALSE(p.e.Existe(otro));
    CajaDePrueba<TboxSSML> varias;
    CHECK(varias.campo().multilinea);
}

TEST_CASE("the field leaves one unit above and to the left") {
    auto p = NuevaCaja<TboxSS>();
    p->Tamano(201, 33);
    CHECK(p->Tomar() == Lineas{"txtTexto.Move 1,1 200x32", "evento Resize"});
    p->Tamano(1, 1);
    CHECK(p->Tomar({"txtTexto"}) == Lineas{"txtTexto.Move 1,1 0x0"});
    p->Tamano(0, 0);
    CHECK(p->Tomar({"txtTexto"}) == Lineas{"txtTexto.Move 1,1 0x0"});
    p->Tamano(40000, 50000);
    CHECK(p->Tomar({"txtTexto"}) == Lineas{"txtTexto.Move 1,1 39999x49999"});
}

TEST_CASE("neither place nor margin nor offset moves the field") {
    auto p = NuevaCaja<TboxSS>();
    p->c->PonAlinTBox(Alineaciones::Izq_Inf);
    CHECK(p->Tomar() == Lineas{"PC AlinTBox", "txtTexto.Move 1,1 99x29"});
    p->c->PonSeparaBorde(Tamanio::Grande);
    CHECK(p->Tomar() == Lineas{"txtTexto.Move 1,1 99x29", "PC SeparaBorde"});
    p->c->PonTipoLetra(TLetra::InvesoL);
    CHECK(p->Tomar() == Lineas{"txtTexto.Move 1,1 99x29", "PC TipoLetra"});
    p->c->PonSepara(29);
    CHECK(p->Tomar() == Lineas{"txtTexto.Move 1,1 99x29", "PC Separa"});
    CHECK(p->c->Separa() == 29);
    p->c->PonSepara(1);
    p->c->PonSepara(30);
    CHECK(p->c->Separa() == 29);
    CHECK(p->Tomar().empty());
}

TEST_CASE("a font is told and lays out") {
    auto p = NuevaCaja<TboxSS>();
    const Fuente una = Letra(u"Tahoma");
    p->c->PonFuenteTexto(una);
    CHECK(p->Tomar() == Lineas{"txtTexto.Font \"Tahoma\"", "PC Fuente", "txtTexto.Move 1,1 99x29"});
    CHECK(p->c->FuenteTexto() == una);
}

TEST_CASE("the tip lies on the field, and names it for the reader of the screen") {
    auto p = NuevaCaja<TboxSS>();
    p->c->PonToolTipText(u"Su edad");
    CHECK(p->Tomar() == Lineas{"txtTexto.ToolTipText \"Su edad\"",
                               "txtTexto.NombreAccesible \"Su edad\"", "PC ToolTipText"});
    CHECK(p->c->ToolTipText() == u"Su edad");
}

TEST_CASE("the selection is the field's, told when it is assigned") {
    auto p = NuevaCaja<TboxSS>();
    p->c->PonText(u"Hola mundo");
    p->Tomar();
    p->c->PonSelStart(5);
    CHECK(p->Tomar() == Lineas{"txtTexto.SelStart 5", "PC SelStart"});
    p->c->PonSelLength(3);
    CHECK(p->Tomar() == Lineas{"txtTexto.SelLength 3", "PC SelLength"});
    CHECK(p->c->SelStart() == 5);
    CHECK(p->c->SelLength() == 3);
    CHECK(p->c->SelText() == u"mun");
    p->c->PonSelLength(32767);
    CHECK(p->c->SelText() == u"mundo");
}

TEST_CASE("a negative selection is no value, and nobody is told") {
    auto p = NuevaCaja<TboxSS>();
    constexpr int invalido = static_cast<int>(NumeroError::ValorDePropiedad);
    CHECK(ErrorDe([&] { p->c->PonSelStart(-1); }) == invalido);
    CHECK(ErrorDe([&] { p->c->PonSelLength(-1); }) == invalido);
    CHECK(p->Tomar({"PC"}).empty());
}

TEST_CASE("a selection beyond 16 bits overflows when it is asked for") {
    auto p = NuevaCaja<TboxSSML>();
    p->c->PonText(Texto(40000, u'x'));
    p->campo().PonSelStart(32767);
    CHECK(p->c->SelStart() == 32767);
    p->campo().PonSelStart(32768);
    CHECK(ErrorDe([&] { p->c->SelStart(); }) == kDesbordamiento);
    p->campo().PonSelStart(0);
    p->campo().PonSelLength(32768);
    CHECK(ErrorDe([&] { p->c->SelLength(); }) == kDesbordamiento);
    CHECK(p->c->SelText().size() == 32768);
}

TEST_CASE("the two habits of its own are stored and told") {
    auto p = NuevaCaja<TboxSS>();
    p->c->PonSelecConFoco(false);
    CHECK_FALSE(p->c->SelecConFoco());
    p->c->PonNavConEnter(false);
    CHECK_FALSE(p->c->NavConEnter());
    CHECK(p->Tomar() == Lineas{"PC SelecConFoco", "PC NavConEnter"});
}

TEST_CASE("both sets of colours reach field and surface, then all text is selected") {
    auto p = NuevaCaja<TboxSS>();
    p->c->PonColorLetra(Color(1));
    p->c->PonColorLetraSobre(Color(2));
    p->c->PonColorFonTexto(Color(3));
    p->c->PonColorFonTextoS(Color(4));
    p->c->PonColorFondo(Color(5));
    p->c->PonColorFondoSobre(Color(6));
    p->c->PonText(u"Hola");
    const Lineas conFoco{"txtTexto.ForeColor &H2",   "txtTexto.BackColor &H4",
                         "superficie.BackColor &H6", "superficie.Cls &H6",
                         "txtTexto.SelStart 0",      "txtTexto.SelLength 4"};
    const Lineas normal{"txtTexto.ForeColor &H1",   "txtTexto.BackColor &H3",
                        "superficie.BackColor &H5", "superficie.Cls &H5",
                        "txtTexto.SelStart 0",      "txtTexto.SelLength 4"};
    p->Tomar();
    p->c->ActualizarColores(true);
    CHECK(p->Tomar() == conFoco);
    p->c->ActualizarColores(false);
    CHECK(p->Tomar() == normal);
    p->c->PonEnabled(false);
    p->Tomar();
    p->c->ActualizarColores(true);
    CHECK(p->Tomar() == normal);
    p->c->PonSelecConFoco(false);
    p->Tomar();
    p->c->ActualizarColores(false);
    CHECK(p->Tomar({"txtTexto.Sel"}).empty());
}

TEST_CASE("disabling a plain text box reaches its field") {
    auto p = NuevaCaja<TboxSS>();
    p->c->PonEnabled(false);
    CHECK(p->Tomar() == Lineas{"PC Enabled", "txtTexto.Enabled False"});
}
