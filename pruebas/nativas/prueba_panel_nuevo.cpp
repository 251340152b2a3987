// A panel just created and a panel just placed on a form.
#include "pruebas/nativas/panel_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

TEST_CASE("a new panel is white, bordered, centred, enabled and small in everything") {
    auto p = PanelNuevo();
    const Area& a = *p->a;
    CHECK(a.AlinText() == Alineaciones::Medio);
    CHECK(a.Caption().empty());
    CHECK(a.Font()->Atributos().Name == u"Arial");
    CHECK(a.ColorLetra() == TextoDeVentana);
    CHECK(a.ColorFondo() == Blanco);
    CHECK(a.MouseIcon() == nullptr);
    CHECK(a.MousePointer() == 0);
    CHECK(a.ToolTipText().empty());
    CHECK(a.EstilosBord() == TEstilosB::Normal);
    CHECK(a.EstilosRell() == TEstilosR::Solido);
    CHECK(a.Enabled());
    CHECK(a.SeparaBorde() == Tamanio::Chico);
    CHECK(a.ColorDegrade().empty());
    CHECK(a.BackStyle() == TBack::Opaco);
    CHECK(a.AnchoBorde() == Tamanio::Chico);
    CHECK(a.TipoLetra() == TLetra::Normal);
    CHECK(p->e.pantalla.BackColor() == Blanco);
}

TEST_CASE("a new panel tells its first values in order, those it did not have already") {
    PanelDePrueba p;
    p.a->InitProperties();
    CHECK(p.Tomar({"PC"}) == Lineas{"PC EstilosBord", "PC AnchoBorde", "PC SeparaBorde",
                                    "PC ColorFondo", "PC AlinText"});
}

TEST_CASE("the white of a new panel is assigned without repainting, and shown at the end") {
    PanelDePrueba p;
    p.a->InitProperties();
    const Lineas lineas = p.Tomar({"PC", "superficie", "lblTitulo.Move"});
    const auto blanco = std::find(lineas.begin(), lineas.end(), "superficie.BackColor &HFFFFFF");
    REQUIRE(blanco != lineas.end());
    CHECK(Lineas(blanco, lineas.end()) == Lineas{"superficie.BackColor &HFFFFFF", "PC ColorFondo",
                                                 "PC AlinText", "superficie.Cls &HFFFFFF",
                                                 "lblTitulo.Move 49,8", "superficie.Cls &HFFFFFF",
                                                 "lblTitulo.Move 49,8"});
}

TEST_CASE("the parts of a panel lie one over the other: marks, border, copies, caption") {
    EntornoGrabador e;
    Area panel(e);
    for (const char* nombre : {"rectangulo1", "linea1", "linea8", "etiqueta1", "etiqueta3"})
        CHECK(e.Existe(nombre));
    CHECK_FALSE(e.Existe("rectangulo2"));
    CHECK_FALSE(e.Existe("linea9"));
    CHECK_FALSE(e.Existe("etiqueta4"));
    // No timer: nobody watches where the mouse is.
    CHECK_FALSE(e.Existe("temporizador1"));
    panel.PonToolTipText(u"x");
    CHECK(e.LaEtiqueta("etiqueta3").ToolTipText() == u"x");
}

TEST_CASE("a panel just created shows neither marks nor border and says nothing") {
    PanelDePrueba p;
    CHECK_FALSE(p.e.ElRectangulo("Cuadra0").Visible());
    for (const char* linea : NombresLineas)
        CHECK_FALSE(p.e.LaLinea(linea).Visible());
    for (const std::string& linea : p.creacion) {
        INFO(linea);
        CHECK_FALSE(linea.starts_with("superficie"));
        CHECK_FALSE(linea.starts_with("PC"));
    }
    CHECK(p.a->Enabled());
}

TEST_CASE("the labels start in Arial whatever the container's font") {
    PanelDePrueba p;
    p.e.fuenteAmbiente = std::make_shared<FuenteGrabada>(AtributosFuente{.Name = u"Courier"});
    p.a->InitProperties();
    for (const char* nombre : {"lblTitulo", "LblSombra", "lblSombra2"})
        CHECK(p.e.LaEtiqueta(nombre).Font()->Atributos() == AtributosFuente{.Name = u"Arial"});
}

TEST_CASE("showing the panel marks its controls in design mode and clears marks at run time") {
    auto p = PanelNuevo();
    p->e.contenidos.resize(1);
    p->e.modoUsuario = false;
    p->a->Show();
    CHECK(p->e.ElRectangulo("Cuadra0").Visible());
    p->e.modoUsuario = true;
    p->a->Show();
    CHECK_FALSE(p->e.ElRectangulo("Cuadra0").Visible());
}

TEST_CASE("a new size redraws, places the caption, tells and marks, in that order") {
    auto p = PanelNuevo();
    p->e.contenidos.resize(1);
    p->e.modoUsuario = false;
    p->e.pantalla.ancho = 200;
    p->a->Resize();
    CHECK(p->Tomar({"superficie", "LinDer0.Move", "lblTitulo.Move", "evento", "Cuadra0.Visible"}) ==
          Lineas{"LinDer0.Move 198,1 198,28", "superficie.Cls &HFFFFFF", "lblTitulo.Move 99,8",
                 "evento Resize", "Cuadra0.Visible True"});
    p->e.modoUsuario = true;
    p->a->Resize();
    CHECK(p->Tomar({"Cuadra0.Visible"}) == Lineas{"Cuadra0.Visible False"});
}

TEST_CASE("a size that comes while the first colour is assigned is not answered") {
    PanelDePrueba p;
    MientrasCarga(p, [&] {
        p.a->Resize();
        CHECK(p.Tomar().empty());
    });
    p.a->Resize();
    CHECK(p.Tomar({"evento Resize"}).size() == 1);
}

TEST_CASE("painting is told and nothing is drawn") {
    auto p = PanelNuevo();
    p->a->Paint();
    CHECK(p->Tomar() == Lineas{"evento Paint"});
}
