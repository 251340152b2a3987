// The page of the panel.
#include "paginas/propcoloresarea.h"
#include "pruebas/nativas/pagina_de_prueba.h"
#include "pruebas/nativas/panel_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

constexpr int NoVale = static_cast<int>(NumeroError::ValorDePropiedad);

/// Shows one panel, none of whose values is that of a new one.
class Panel : public PaginaDePrueba<ProPColoresArea> {
  public:
    Panel() {
        Area& a = *panel->a;
        a.PonCaption(u"Datos");
        a.PonEnabled(false);
        a.PonBackStyle(TBack::Transparente);
        a.PonSeparaBorde(Tamanio::Mediano);
        a.PonAnchoBorde(Tamanio::Grande);
        a.PonEstilosBord(TEstilosB::Lineal);
        a.PonTipoLetra(TLetra::Undida);
        a.PonAlinText(Alineaciones::Med_Inf);
        a.PonColorLetra(Color(0x10));
        a.PonColorFondo(Color(0x20));
        a.PonColorDegrade(u"1*2*3");
        a.PonEstilosRell(TEstilosR::D_Vert);
        Mostrar({panel->a.get()});
    }
    FilaColores& Fila() { return dynamic_cast<FilaColores&>(*p.LaFila()); }
    std::string Topes() {
        const Texto lista = Fila().Lista();
        return {lista.begin(), lista.end()};
    }

    PunteroPanel panel = PanelNuevo();
};

} // namespace

TEST_CASE("every list has its items in order") {
    Panel g;
    CHECK(g.Items("CobAlinText") ==
          "Sup_Izq Med_Izq Inf_Izq Med_Sup Medio Med_Inf Sup_Der Med_Der Inf_Der");
    CHECK(g.Items("comSepara") == "Chico Medio Grande");
    CHECK(g.Items("comAnchoB") == "Chico Medio Grande");
    CHECK(g.Items("ComEstBorde") == "Ninguno Normal Colores Degradados");
    CHECK(g.Items("comTipoLetra") == "Normal Levantado Undido InvesoL InvesoU");
    CHECK(g.Items("cmbEstDegrade") == "Solido D_Hori D_Vert D_Pirami");
    CHECK(g.Items("comBkStyle") == "Transparente Opaco");
}

TEST_CASE("a panel is shown in order, the preview before the stops are its own") {
    Panel g;
    g.p.SelectionChanged();
    CHECK(g.Tomar({"C", "c", "Texto", "Picture1", "Gradient", "FraDegra.tope0.B"}) ==
          Lineas{"CobAlinText.Clear",
                 "comSepara.Clear",
                 "comAnchoB.Clear",
                 "ComEstBorde.Clear",
                 "comTipoLetra.Clear",
                 "cmbEstDegrade.Clear",
                 "comBkStyle.Clear",
                 "cbColLetra.BackColor &H10",
                 "cbColFondo.BackColor &H20",
                 "CobAlinText.ListIndex 5",
                 "Changed True",
                 "ChkEnabled.Value 0",
                 "Texto.Text \"Datos\"",
                 "Changed True",
                 "comAnchoB.ListIndex 2",
                 "Changed True",
                 "comTipoLetra.ListIndex 2",
                 "Changed True",
                 "comSepara.ListIndex 1",
                 "Changed True",
                 "ComEstBorde.ListIndex 2",
                 "Changed True",
                 "cmbEstDegrade.ListIndex 2",
                 "Changed True",
                 "CBMasColor.Enabled True",
                 "CBMenColor.Enabled True",
                 "Picture1.Refresh",
                 "comBkStyle.ListIndex 0",
                 "Changed True",
                 "FraDegra.tope0.BackColor &H1",
                 "Changed False"});
    CHECK(g.Topes() == "1*2*3");
    CHECK_FALSE(g.e.Changed());
}

TEST_CASE("an empty list is shown as white and black") {
    Panel g;
    g.panel->a->PonColorDegrade(u"");
    g.p.SelectionChanged();
    CHECK(g.Topes() == "16777215*0");
}

TEST_CASE("of several panels the last one is shown, and all get the page") {
    Panel g;
    auto otro = PanelNuevo();
    otro->a->PonCaption(u"Otro");
    g.Mostrar({otro->a.get(), g.panel->a.get()});
    CHECK(g.TextoDe("Texto") == u"Datos");
    g.p.ApplyChanges();
    CHECK(otro->a->Caption() == u"Datos");
    CHECK(otro->a->ColorDegrade() == u"1*2*3");
    g.Mostrar({g.panel->a.get(), PanelNuevo()->a.get()});
}

TEST_CASE("applying writes every property, in order") {
    Panel g;
    auto otro = PanelNuevo();
    g.e.seleccion = {otro->a.get()};
    g.p.ApplyChanges();
    CHECK(otro->Tomar({"PC"}) == Lineas{"PC Enabled", "PC Caption", "PC SeparaBorde", "PC AlinText",
                                        "PC AnchoBorde", "PC TipoLetra", "PC EstilosBord",
                                        "PC ColorLetra", "PC ColorFondo", "PC BackStyle",
                                        "PC ColorDegrade", "PC EstilosRell"});
    CHECK_FALSE(otro->a->Enabled());
    CHECK(otro->a->Caption() == u"Datos");
    CHECK(otro->a->SeparaBorde() == Tamanio::Mediano);
    CHECK(otro->a->AlinText() == Alineaciones::Med_Inf);
    CHECK(otro->a->AnchoBorde() == Tamanio::Grande);
    CHECK(otro->a->TipoLetra() == TLetra::Undida);
    CHECK(otro->a->EstilosBord() == TEstilosB::Lineal);
    CHECK(otro->a->ColorLetra() == Color(0x10));
    CHECK(otro->a->ColorFondo() == Color(0x20));
    CHECK(otro->a->BackStyle() == TBack::Transparente);
    CHECK(otro->a->ColorDegrade() == u"1*2*3");
    CHECK(otro->a->EstilosRell() == TEstilosR::D_Vert);
}

TEST_CASE("a solid fill leaves the list of the panel as it is") {
    Panel g;
    g.e.LaLista("cmbEstDegrade").Pulsar(0);
    auto otro = PanelNuevo();
    otro->a->PonColorDegrade(u"9*9");
    g.e.seleccion = {otro->a.get()};
    g.p.ApplyChanges();
    CHECK(otro->a->ColorDegrade() == u"9*9");
    CHECK(otro->a->EstilosRell() == TEstilosR::Solido);
}

TEST_CASE("sizes count from 1, and border styles are their place in the shorter list") {
    Panel g;
    for (int i : {0, 1, 2}) {
        g.e.LaLista("comSepara").Pulsar(i);
        g.e.LaLista("comAnchoB").Pulsar(2 - i);
        g.p.ApplyChanges();
        CHECK(int(g.panel->a->SeparaBorde()) == i + 1);
        CHECK(int(g.panel->a->AnchoBorde()) == 3 - i);
        g.p.SelectionChanged();
        CHECK(g.Indice("comSepara") == i);
    }
    for (int i : {3, 2, 1, 0}) {
        g.e.LaLista("ComEstBorde").Pulsar(i);
        g.p.ApplyChanges();
        CHECK(int(g.panel->a->EstilosBord()) == i);
    }
}

TEST_CASE("alignments and back styles are their place in the list") {
    Panel g;
    for (int i = 0; i < 9; ++i) {
        g.e.LaLista("CobAlinText").Pulsar(i);
        g.e.LaLista("comBkStyle").Pulsar(i % 2);
        g.p.ApplyChanges();
        CHECK(int(g.panel->a->AlinText()) == i);
        CHECK(int(g.panel->a->BackStyle()) == i % 2);
    }
}

TEST_CASE("a panel with a value that has no item can't be shown, and the next one can") {
    Panel g;
    g.panel->a->PonEstilosBord(TEstilosB::Degradados);
    CHECK(ErrorDe([&] { g.p.SelectionChanged(); }) == NoVale);
    g.panel->a->PonEstilosBord(TEstilosB::Colores);
    CHECK(ErrorDe([&] { g.p.SelectionChanged(); }) == 0);
    g.panel->a->PonEstilosRell(TEstilosR::D_Diagonal);
    CHECK(ErrorDe([&] { g.p.SelectionChanged(); }) == NoVale);
    g.panel->a->PonEstilosRell(TEstilosR::D_Pirami);
    CHECK(ErrorDe([&] { g.p.SelectionChanged(); }) == 0);
    g.panel->a->PonSeparaBorde(static_cast<Tamanio>(-32768));
    CHECK(ErrorDe([&] { g.p.SelectionChanged(); }) == kDesbordamiento);
}

TEST_CASE("sizes without a choice are written as 0") {
    Panel g;
    g.e.LaLista("comSepara").PonListIndex(-1);
    g.e.LaLista("comAnchoB").PonListIndex(-1);
    g.p.ApplyChanges();
    CHECK(int(g.panel->a->SeparaBorde()) == 0);
    CHECK(int(g.panel->a->AnchoBorde()) == 0);
}

TEST_CASE("a greyed check box counts as not checked") {
    Panel g;
    g.e.UnaCasilla("ChkEnabled").PonValue(2);
    g.panel->a->PonEnabled(true);
    g.p.ApplyChanges();
    CHECK_FALSE(g.panel->a->Enabled());
    g.e.UnaCasilla("ChkEnabled").Pulsar();
    g.p.ApplyChanges();
    CHECK(g.panel->a->Enabled());
}

TEST_CASE("most edits raise the flag and do nothing else") {
    Panel g;
    const auto solo = [&](const std::string& nombre) {
        INFO(nombre);
        CHECK(g.Tomar() == Lineas{"Changed True"});
    };
    for (const char* lista :
         {"comBkStyle", "comSepara", "comTipoLetra", "CobAlinText", "comAnchoB", "ComEstBorde"}) {
        g.e.LaLista(lista).Pulsar(g.Indice(lista) == 0 ? 1 : 0);
        solo(lista);
    }
    g.e.UnaCasilla("ChkEnabled").Pulsar();
    solo("ChkEnabled");
    g.e.ElCampo("Texto").Pegar(u"x");
    solo("Texto");
}

TEST_CASE(
    "choosing a fill enables the stops of a gradient, draws the preview and raises the flag") {
    Panel g;
    g.e.LaLista("cmbEstDegrade").Pulsar(0);
    CHECK(g.Tomar() == Lineas{"Changed True", "FraDegra.Enabled False", "CBMasColor.Enabled False",
                              "CBMenColor.Enabled False", "Picture1.BackColor &H20",
                              "Picture1.Refresh"});
    g.e.LaLista("cmbEstDegrade").Pulsar(3);
    CHECK(g.Tomar() == Lineas{"Changed True", "FraDegra.Enabled True", "CBMasColor.Enabled True",
                              "CBMenColor.Enabled True",
                              "GradientFill Picture1 modo 2 figuras 4: 60,20 &H1 0,0 &H2 120,0 &H3 "
                              "0,40 &H3 120,40 &H3",
                              "Picture1.Refresh"});
}

TEST_CASE("the stops are those of every colour editor") {
    Panel g;
    g.e.Pulsar("CBMasColor");
    CHECK(g.Topes() == "1*2*3*3");
    CHECK(g.Tomar({"Picture1", "Changed"}) == Lineas{"Picture1.Refresh", "Changed True"});
    for (int i = 0; i < 40; ++i)
        g.e.Pulsar("CBMasColor");
    CHECK(g.Fila().Topes() == 31);
    for (int i = 0; i < 40; ++i)
        g.e.Pulsar("CBMenColor");
    CHECK(g.Topes() == "1*2");
    CHECK(g.Fila().Tope(1).Left() == 1845);
    g.e.alElegirColor = [](Color) { return Color(0x55); };
    g.Tomar();
    dynamic_cast<BotonColorGrabado&>(g.Fila().Tope(1)).Pulsar();
    CHECK(g.Topes() == "1*85");
    CHECK(g.Tomar({"ElegirColor", "Changed", "Picture1"}) ==
          Lineas{"ElegirColor &H2", "Changed True", "Picture1.Refresh"});
    g.e.El<BotonColorGrabado>("cbColLetra").Pulsar();
    g.e.El<BotonColorGrabado>("cbColFondo").Pulsar();
    g.p.ApplyChanges();
    CHECK(g.panel->a->ColorLetra() == Color(0x55));
    CHECK(g.panel->a->ColorFondo() == Color(0x55));
}

TEST_CASE("the published methods act on the row of the page") {
    Panel g;
    g.p.AgregarColorD(g.p.LaFila(), 2);
    CHECK(g.Topes() == "1*2*3*3");
    g.p.EliminarColorD(g.p.LaFila(), 3);
    CHECK(g.Topes() == "1*2*3");
    g.Tomar();
    g.p.PreVis(g.p.LaFila());
    CHECK(g.Tomar() == Lineas{"GradientFill Picture1 modo 1 figuras 2: 0,0 &H1 120,20 &H2 0,40 &H3",
                              "Picture1.Refresh"});
    CHECK(ErrorDe([&] { g.p.PreVis(nullptr); }) == kTipos);
    CHECK(ErrorDe([&] { g.p.AgregarColorD(nullptr, 0); }) == kTipos);
    CHECK(ErrorDe([&] { g.p.EliminarColorD(nullptr, 0); }) == kTipos);
}

TEST_CASE("a window made anew gets the preview of the panel") {
    Panel g;
    g.p.Redibujar();
    CHECK(g.Tomar() == Lineas{"GradientFill Picture1 modo 1 figuras 2: 0,0 &H1 120,20 &H2 0,40 &H3",
                              "Picture1.Refresh"});
}

TEST_CASE("an object that is no panel is a type mismatch; those before it are whole") {
    Panel g;
    auto antes = PanelNuevo();
    auto despues = PanelNuevo();
    g.e.seleccion = {antes->a.get(), nullptr, despues->a.get()};
    CHECK(ErrorDe([&] { g.p.ApplyChanges(); }) == kTipos);
    CHECK(antes->a->Caption() == u"Datos");
    CHECK(antes->a->EstilosRell() == TEstilosR::D_Vert);
    CHECK(despues->Tomar({"PC"}).empty());
    CHECK(ErrorDe([&] { g.p.SelectionChanged(); }) == kTipos);
}
