// A new button, and what its caption makes of access keys.
#include "pruebas/nativas/boton_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

TEST_CASE("a new button starts with the values of its table") {
    BotonDePrueba p;
    p.b->InitProperties();
    const Botonazo& b = *p.b;
    CHECK(b.EfectoBoton() == EfectosBoton::boton);
    CHECK(b.AlinText() == Alineaciones::Medio);
    CHECK(b.Caption().empty());
    CHECK(b.AlinImag() == Alineaciones::Izq_Sup);
    CHECK(b.ColorLetra() == Negro);
    CHECK(b.ColorLetraSobre() == Negro);
    CHECK(b.ColorFondo() == CaraDeBoton);
    CHECK(b.ColorFondoSobre() == CaraDeBoton);
    CHECK(b.MouseIcon() == nullptr);
    CHECK(b.MousePointer() == 0);
    CHECK(b.ToolTipText().empty());
    CHECK(b.EstilosBord() == TEstilosB::Normal);
    CHECK(b.EstilosRell() == TEstilosR::Solido);
    CHECK(b.Estilos() == TEstilos::CLASICO);
    CHECK(b.RelX() == 0.33333f);
    CHECK(b.RelY() == 1.0f);
    CHECK(b.ImagNormal() == nullptr);
    CHECK(b.ImagSobre() == nullptr);
    CHECK(b.Expandir());
    CHECK(b.Enabled());
    CHECK(b.FocoVisible());
    CHECK_FALSE(b.FocoConMouse());
    CHECK(b.AnchoBorde() == Tamanio::Chico);
    CHECK(b.TipoLetra() == TLetra::Normal);
    CHECK_FALSE(b.CambioProgre());
    CHECK(b.CambioProgrePasos() == 0);
    CHECK(b.Angulo() == 45);
    CHECK(b.ColorDegradeN().empty());
    CHECK(b.ColorDegradeS().empty());
    CHECK(p.e.pantalla.AccessKeys().empty());
}

TEST_CASE("a new button tells its first values in order and only those that changed") {
    BotonDePrueba p;
    p.b->InitProperties();
    CHECK(p.Tomar({"PC", "evento"}) == Lineas{"PC Angulo", "PC FocoVisible", "PC FocoConMouse",
                                              "PC EstilosBord", "PC RelX", "PC RelY",
                                              "PC ColorFondo", "PC ColorFondoSobre", "PC Enabled",
                                              "PC AnchoBorde", "PC AlinText", "PC Expandir"});
}

TEST_CASE("a new button never takes the look of a disabled one") {
    BotonDePrueba p;
    p.b->InitProperties();
    CHECK(p.Tomar({"Picture1.Desvanecer"}).empty());
    p.b->PonEnabled(false);
    CHECK(p.Tomar({"Picture1.Desvanecer"}).size() == 1);
}

TEST_CASE("a new button writes in the font of its container without telling of a change") {
    BotonDePrueba p;
    p.e.fuenteAmbiente = std::make_shared<FuenteGrabada>(AtributosFuente{.Name = u"Verdana"});
    p.b->InitProperties();
    CHECK(p.b->Font() == p.e.fuenteAmbiente);
    CHECK(p.e.LaEtiqueta("LblSombra").Font() == p.e.fuenteAmbiente);
    CHECK(p.e.LaEtiqueta("lblSombra2").Font() == p.e.fuenteAmbiente);
    CHECK(p.Tomar({"PC Font"}).empty());
}

TEST_CASE("the widgets start hidden, stopped and silent") {
    BotonDePrueba p;
    CHECK_FALSE(p.e.ElTemporizador("Timer").Enabled());
    CHECK_FALSE(p.e.ElTemporizador("TimProg").Enabled());
    CHECK(p.e.ElTemporizador("TimProg").Interval() == 30);
    CHECK_FALSE(p.e.ElRectangulo("rectFoco").Visible());
    CHECK_FALSE(p.b->Enabled());
}

TEST_CASE("the access keys are the letter after the first ampersand in both cases") {
    auto p = Nuevo();
    auto teclas = [&](const Texto& titulo) {
        p->b->PonCaption(titulo);
        return p->e.pantalla.AccessKeys();
    };
    CHECK(teclas(u"&Aceptar") == u"Aa");
    CHECK(teclas(u"Salir") == u"");
    CHECK(teclas(u"gra&bar") == u"Bb");
    CHECK(teclas(u"&ñandú") == u"Ññ");
    CHECK(teclas(u"&1 uno") == u"11");
    CHECK(teclas(u"uno && &dos") == u"&&");
    CHECK(teclas(u"al final&") == u"");
    CHECK(teclas(u"&") == u"");
    CHECK(teclas(u"") == u"");
}

TEST_CASE("an ampersand at position 255 is found and one beyond it overflows") {
    auto p = Nuevo();
    p->b->PonCaption(Texto(254, u'x') + u"&Z");
    CHECK(p->e.pantalla.AccessKeys() == u"Zz");
    p->Tomar();
    const Texto largo = Texto(255, u'x') + u"&Z";
    CHECK(ErrorDe([&] { p->b->PonCaption(largo); }) == Desborda);
    // The labels were set before; nobody was told.
    CHECK(p->b->Caption() == largo);
    CHECK(p->Tomar({"PC", "superficie"}).empty());
    CHECK(ErrorDe([&] { p->b->PonCaption(Texto(300, u'x')); }) == 0);
}
