// What every assignment does, in order.
#include "pruebas/nativas/caja_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

TEST_CASE("a value is passed to the part that shows it, then the host is told") {
    auto p = NuevaCaja<Tbox>();
    Tbox& c = *p->c;
    c.PonApariencia(0);
    CHECK(p->Tomar() == Lineas{"txtTexto.Appearance 0", "PC Apariencia"});
    CHECK(c.Apariencia() == 0);
    c.PonAlinText(2);
    CHECK(p->Tomar() == Lineas{"txtTexto.Alignment 2", "PC AlinText"});
    CHECK(c.AlinText() == 2);
    c.PonMaxText(70000);
    CHECK(p->Tomar() == Lineas{"txtTexto.MaxLength 70000", "PC MaxText"});
    CHECK(c.MaxText() == 70000);
    c.PonTranca(true);
    CHECK(p->Tomar() == Lineas{"txtTexto.Locked True", "PC Tranca"});
    CHECK(c.Tranca());
    c.PonMousePointer(99);
    CHECK(p->Tomar() == Lineas{"superficie.MousePointer 99", "PC MousePointer"});
    CHECK(c.MousePointer() == 99);
    c.PonMouseIcon(Icono("mano"));
    CHECK(p->Tomar() == Lineas{"superficie.MouseIcon mano", "PC MouseIcon"});
    CHECK(NombreDe(c.MouseIcon()) == "mano");
    c.PonToolTipText(u"Hola");
    CHECK(p->Tomar() == Lineas{"lblTexto.ToolTipText \"Hola\"", "txtTexto.ToolTipText \"Hola\"",
                               "PC ToolTipText"});
    CHECK(c.ToolTipText() == u"Hola");
}

TEST_CASE("a value kept by the control itself is stored and told") {
    auto p = NuevaCaja<Tbox>();
    Tbox& c = *p->c;
    c.PonFocoConMouse(true);
    CHECK(c.FocoConMouse());
    c.PonTipoTexto(TText::NumericoDes);
    CHECK(c.TipoTexto() == TText::NumericoDes);
    c.PonColorFonTextoS(Color(1));
    CHECK(c.ColorFonTextoS() == Color(1));
    c.PonColorFondoSobre(Color(2));
    CHECK(c.ColorFondoSobre() == Color(2));
    c.PonColorLetraES(Color(3));
    CHECK(c.ColorLetraES() == Color(3));
    c.PonColorLetraSobre(Color(4));
    CHECK(c.ColorLetraSobre() == Color(4));
    CHECK(p->Tomar() == Lineas{"PC FocoConMouse", "PC TipoTexto", "PC ColorFonTextoS",
                               "PC ColorFondoSobre", "PC ColorLetraES", "PC ColorLetraSobre"});
}

TEST_CASE("FocoVisible is told and forgotten") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonFocoVisible(true);
    CHECK(p->Tomar() == Lineas{"PC FocoVisible"});
    CHECK_FALSE(p->c->FocoVisible());
    p->c->PonFocoVisible(false);
    CHECK(p->Tomar() == Lineas{"PC FocoVisible"});
}

TEST_CASE("the text is told as a change and as a property") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonText(u"Hola");
    CHECK(p->Tomar() == Lineas{"txtTexto.Text \"Hola\"", "evento Change", "DoEvents", "PC Text"});
    CHECK(p->c->Text() == u"Hola");
    p->c->PonText(u"Hola");
    CHECK(p->Tomar() == Lineas{"txtTexto.Text \"Hola\"", "PC Text"});
}

TEST_CASE("long texts, line breaks and characters beyond 16 bits go through unharmed") {
    auto p = NuevaCaja<TBoxML>();
    const Texto largo = Texto(1 << 20, u'x') + u"\r\n\U0001F600";
    p->c->PonText(largo);
    CHECK(p->c->Text() == largo);
}

TEST_CASE("any back style but the opaque one is transparent") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonBackStyle(TBack::Transparente);
    CHECK(p->Tomar() == Lineas{"superficie.BackStyle 0", "PC BackStyle"});
    CHECK(p->c->BackStyle() == TBack::Transparente);
    p->c->PonBackStyle(TBack::Opaco);
    CHECK(p->Tomar() == Lineas{"superficie.BackStyle 1", "PC BackStyle"});
    CHECK(p->c->BackStyle() == TBack::Opaco);
    p->c->PonBackStyle(static_cast<TBack>(2));
    CHECK(p->Tomar() == Lineas{"superficie.BackStyle 0", "PC BackStyle"});
}

TEST_CASE("colours show at once, each on its part") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonColorLetra(Color(0xFF));
    CHECK(p->Tomar() == Lineas{"PC ColorLetra", "txtTexto.ForeColor &HFF"});
    p->c->PonColorFondo(Color(0xFF00));
    CHECK(p->Tomar() ==
          Lineas{"PC ColorFondo", "superficie.BackColor &HFF00", "superficie.Cls &HFF00"});
    p->c->PonColorFonTexto(Color(0xFF0000));
    CHECK(p->Tomar() == Lineas{"txtTexto.BackColor &HFF0000", "PC ColorFonTexto"});
    p->c->PonColorLetraE(Color(0xFFFF));
    CHECK(p->Tomar() ==
          Lineas{"PC ColorLetraE", "lblTexto.ForeColor &HFFFF", "lblSombra.ForeColor &HFFFFFF"});
    CHECK(p->c->ColorLetra() == Color(0xFF));
    CHECK(p->c->ColorFondo() == Color(0xFF00));
    CHECK(p->c->ColorFonTexto() == Color(0xFF0000));
    CHECK(p->c->ColorLetraE() == Color(0xFFFF));
}

TEST_CASE("disabling reaches the field and both labels") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonEnabled(false);
    CHECK(p->Tomar() == Lineas{"PC Enabled", "txtTexto.Enabled False", "lblTexto.Enabled False",
                               "lblSombra.Enabled False"});
    CHECK_FALSE(p->c->Enabled());
    p->c->PonEnabled(true);
    CHECK(p->Tomar() == Lineas{"PC Enabled", "txtTexto.Enabled True", "lblTexto.Enabled True",
                               "lblSombra.Enabled True"});
}

TEST_CASE("a font is the same object in its part, told, and lays out again") {
    auto p = NuevaCaja<Tbox>();
    const Fuente una = Letra(u"Tahoma"), otra = Letra(u"Verdana");
    p->c->PonFuenteTexto(una);
    CHECK(p->Tomar({"txtTexto", "PC"}) ==
          Lineas{"txtTexto.Font \"Tahoma\"", "PC Fuente", "txtTexto.Move 4,1 92x12"});
    CHECK(p->c->FuenteTexto() == una);
    p->c->PonFuenteEtic(otra);
    CHECK(p->Tomar({"lblTexto.Font", "lblSombra.Font", "PC", "txtTexto"}) ==
          Lineas{"lblTexto.Font \"Verdana\"", "lblSombra.Font \"Verdana\"", "PC FuenteEtic",
                 "txtTexto.Move 4,1 92x12"});
    CHECK(p->c->FuenteEtic() == otra);
    CHECK(p->c->FuenteTexto() == una);
}

TEST_CASE("fonts taken from the container follow it, each on its own, and are no change") {
    auto p = NuevaCaja<Tbox>();
    const AtributosFuente anterior = p->c->FuenteTexto()->Atributos();
    p->c->PonFuenteEtic(Letra(u"Verdana"));
    p->Tomar();
    AtributosFuente otros = anterior;
    otros.Size = 20;
    const auto nueva = std::make_shared<FuenteGrabada>(otros);
    p->c->AmbientFontChanged(anterior, nueva);
    CHECK(p->c->FuenteTexto() == nueva);
    CHECK(p->c->FuenteEtic()->Atributos().Name == u"Verdana");
    CHECK(p->Tomar({"PC"}).empty());
}

TEST_CASE("no font is no value for a font") {
    auto p = NuevaCaja<Tbox>();
    constexpr int invalido = static_cast<int>(NumeroError::ValorDePropiedad);
    CHECK(ErrorDe([&] { p->c->PonFuenteTexto(nullptr); }) == invalido);
    CHECK(ErrorDe([&] { p->c->PonFuenteEtic(nullptr); }) == invalido);
    CHECK(p->c->FuenteTexto() == p->e.fuenteAmbiente);
    CHECK(p->Tomar().empty());
}

TEST_CASE("Separa takes 2 to 29 and ignores everything else without an error") {
    auto p = NuevaCaja<Tbox>();
    for (const std::int16_t fuera : {1, 30, 0, -1, -32768, 32767}) {
        CHECK(ErrorDe([&] { p->c->PonSepara(fuera); }) == 0);
        CHECK(p->c->Separa() == 3);
        CHECK(p->Tomar().empty());
    }
    for (const std::int16_t dentro : {2, 29}) {
        p->c->PonSepara(dentro);
        CHECK(p->c->Separa() == dentro);
        CHECK(p->Tomar({"PC"}) == Lineas{"PC Separa"});
    }
}

TEST_CASE("the values of the layout lay out when they change, and only then") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonSepara(3);
    p->c->PonSeparaBorde(Tamanio::Chico);
    p->c->PonTipoLetra(TLetra::Normal);
    p->c->PonAlinTBox(Alineaciones::Izq_Sup);
    CHECK(p->Tomar().empty());
    p->c->PonSepara(5);
    CHECK(p->Tomar({"PC", "txtTexto"}) == Lineas{"txtTexto.Move 6,1 88x10", "PC Separa"});
    p->c->PonSeparaBorde(Tamanio::Grande);
    CHECK(p->Tomar({"PC", "txtTexto"}) == Lineas{"txtTexto.Move 8,3 84x6", "PC SeparaBorde"});
    p->c->PonTipoLetra(TLetra::InvesoU);
    CHECK(p->Tomar({"PC", "txtTexto"}) == Lineas{"txtTexto.Move 8,3 84x6", "PC TipoLetra"});
    p->c->PonAlinTBox(Alineaciones::Der_Inf);
    CHECK(p->Tomar({"PC", "txtTexto"}) == Lineas{"PC AlinTBox", "txtTexto.Move 8,16 84x6"});
}

TEST_CASE("while loading, the same TipoLetra, SeparaBorde or Separa lays out all the same") {
    auto p = NuevaCaja<Tbox>();
    BolsaGrabadora bolsa;
    p->e.alCambiar = [&](VistaTexto clave) {
        if (clave != u"TipoSombra")
            return;
        p->Tomar();
        p->c->PonTipoLetra(TLetra::Normal);
        CHECK(p->Tomar({"txtTexto", "PC"}).size() == 2);
        p->c->PonSeparaBorde(Tamanio::Chico);
        CHECK(p->Tomar({"txtTexto", "PC"}).size() == 2);
        p->c->PonSepara(3);
        CHECK(p->Tomar({"txtTexto", "PC"}).size() == 2);
        p->c->PonSepara(30);
        p->c->PonAlinTBox(Alineaciones::Der_Med); // the bag's default, already there
        CHECK(p->Tomar().empty());
        p->c->PonAlinTBox(Alineaciones::Medio);
        CHECK(p->Tomar() == Lineas{"PC AlinTBox"});
    };
    p->c->ReadProperties(bolsa);
    CHECK(p->c->AlinTBox() == Alineaciones::Medio);
}

TEST_CASE("a caption reaches its shadow, the reader of the screen and the access keys") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonCaption(u"&Nombre");
    const Lineas todo = p->Tomar();
    CHECK(Lineas(todo.begin(), todo.begin() + 4) ==
          Lineas{"lblTexto.Caption \"&Nombre\"", "lblSombra.Caption \"&Nombre\"",
                 "txtTexto.NombreAccesible \"Nombre\"", "superficie.AccessKeys \"nN\""});
    CHECK(todo.back() == "PC Caption");
    CHECK(p->c->Caption() == u"&Nombre");
}

TEST_CASE("the access keys are the letter after the first ampersand, small and capital") {
    auto p = NuevaCaja<Tbox>();
    auto teclas = [&](const Texto& titulo) {
        p->c->PonCaption(titulo);
        return p->e.pantalla.AccessKeys();
    };
    CHECK(teclas(u"&Nombre") == u"nN");
    CHECK(teclas(u"Nombre") == u"");
    CHECK(teclas(u"Apelli&do") == u"dD");
    CHECK(teclas(u"a&ñ&o") == u"ñÑ");
    CHECK(teclas(u"&1") == u"11");
    CHECK(teclas(u"Uno && &dos") == u"&&");
    CHECK(teclas(u"Al final&") == u"");
    CHECK(teclas(u"&") == u"");
    CHECK(teclas(u"") == u"");
}

TEST_CASE("an ampersand at position 255 is found and one beyond it overflows") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonCaption(Texto(254, u'x') + u"&Z");
    CHECK(p->e.pantalla.AccessKeys() == u"zZ");
    p->Tomar();
    const Texto largo = Texto(255, u'x') + u"&Z";
    CHECK(ErrorDe([&] { p->c->PonCaption(largo); }) == kDesbordamiento);
    CHECK(p->c->Caption() == largo);
    CHECK(p->Tomar({"PC", "superficie"}).empty());
}

TEST_CASE("the field's name is the caption without the marks of its key") {
    auto p = NuevaCaja<Tbox>();
    auto nombre = [&](const Texto& titulo) {
        p->c->PonCaption(titulo);
        return p->Tomar({"txtTexto.NombreAccesible"}).front();
    };
    CHECK(nombre(u"Pan && vino") == "txtTexto.NombreAccesible \"Pan & vino\"");
    CHECK(nombre(u"Edad&") == "txtTexto.NombreAccesible \"Edad\"");
    CHECK(nombre(u"") == "txtTexto.NombreAccesible \"\"");
    CHECK(nombre(u"&A &B") == "txtTexto.NombreAccesible \"A B\"");
}

TEST_CASE("values outside their enumerations are stored as they stand") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonTipoLetra(static_cast<TLetra>(99));
    CHECK(p->c->TipoLetra() == static_cast<TLetra>(99));
    p->c->PonTipoTexto(static_cast<TText>(-7));
    CHECK(p->c->TipoTexto() == static_cast<TText>(-7));
    p->c->PonAlinTBox(static_cast<Alineaciones>(9));
    CHECK(p->c->AlinTBox() == static_cast<Alineaciones>(9));
    p->c->PonSeparaBorde(static_cast<Tamanio>(-2));
    CHECK(p->c->SeparaBorde() == static_cast<Tamanio>(-2));
}

TEST_CASE("a shadow that is none of the four is stored, then fails for want of a colour") {
    auto p = NuevaCaja<Tbox>();
    for (const int tipo : {0, 5, -1, 2147483647}) {
        p->Tomar();
        const auto valor = static_cast<TSombra>(tipo);
        CHECK(ErrorDe([&] { p->c->PonTipoSombra(valor); }) == kNulo);
        CHECK(p->c->TipoSombra() == valor);
        CHECK(p->Tomar({"PC", "Sombra"}).empty());
    }
    // Colours and layout go on: only the shadow of the field has none.
    CHECK(ErrorDe([&] {
              p->c->ActualizarColores(true);
              p->c->PonColorFonTexto(Color(1));
              p->c->Resize();
          }) == 0);
    p->c->PonTipoSombra(TSombra::Blanca);
    CHECK(p->Tomar({"PC Tipo", "Sombra.Fill"}) ==
          Lineas{"Sombra.FillColor &HFFFFFF", "PC TipoSombra"});
}

TEST_CASE("a handler of a notification may assign again, and the last value shows") {
    auto p = NuevaCaja<Tbox>();
    p->e.alCambiar = [&](VistaTexto clave) {
        if (clave == u"ColorLetra" && p->c->ColorLetra() == Color(1))
            p->c->PonColorLetra(Color(2));
        if (clave == u"ColorLetraE" && p->c->ColorLetraE() == Color(1))
            p->c->PonColorLetraE(Color(2));
        if (clave == u"ColorFondo" && p->c->ColorFondo() == Color(1))
            p->c->PonColorFondo(Color(2));
        if (clave == u"Enabled" && !p->c->Enabled())
            p->c->PonEnabled(true);
    };
    p->c->PonColorLetra(Color(1));
    CHECK(p->campo().ForeColor() == Color(2));
    p->c->PonColorLetraE(Color(1));
    CHECK(p->titulo().ForeColor() == Color(2));
    p->c->PonColorFondo(Color(1));
    CHECK(p->e.pantalla.BackColor() == Color(2));
    p->c->PonEnabled(false);
    CHECK(p->campo().Enabled());
    CHECK(p->titulo().Enabled());
}
