// What the colour page shows of the selected buttons, and what it writes back.
#include "pruebas/nativas/pagina_colores_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

TEST_CASE("both lists of fills have their items in order") {
    Colores c;
    CHECK(c.Items("cmbEstDegrade(0)") == "Solido D_Hori D_Vert D_Pirami D_Diagonal");
    CHECK(c.Items("cmbEstDegrade(1)") == c.Items("cmbEstDegrade(0)"));
    c.p.SelectionChanged();
    CHECK(c.e.LaLista("cmbEstDegrade(0)").items.size() == 5);
}

TEST_CASE("a button is shown in its two states") {
    Colores c;
    CHECK(c.ColorDe("cbColLetra(0)") == Color(0x10));
    CHECK(c.ColorDe("cbColLetra(1)") == Color(0x11));
    CHECK(c.ColorDe("cbColFondo(0)") == Color(0x20));
    CHECK(c.ColorDe("cbColFondo(1)") == Color(0x21));
    CHECK(c.Indice("cmbEstDegrade(0)") == 1);
    CHECK(c.Indice("cmbEstDegrade(1)") == 1);
    CHECK(c.TextoDe("txtAngulo") == u"30");
    CHECK(c.Topes(0) == "1*2*3");
    CHECK(c.Topes(1) == "4*5*6*7*8");
    CHECK_FALSE(c.e.Changed());
    CHECK(c.boton->Tomar({"PC"}).empty());
}

TEST_CASE("a new selection is shown step by step") {
    Colores c;
    c.p.SelectionChanged();
    const Lineas lineas =
        c.Tomar({"cmb", "cbCol", "txtAngulo.Text", "Picture1(0).Refresh", "Picture1(1).Refresh",
                 "FraDegra(0).tope1.Vis", "FraDegra(1).tope1.Vis", "FraDegra(0).tope3.Vis", "Opt",
                 "Frame1", "Changed False", "GradientFill"});
    CHECK(lineas ==
          Lineas{"cmbEstDegrade(0).Clear", "cmbEstDegrade(1).Clear", "cbColLetra(0).BackColor &H10",
                 "cbColLetra(1).BackColor &H11", "cbColFondo(0).BackColor &H20",
                 "cbColFondo(1).BackColor &H21", "cmbEstDegrade(0).ListIndex 1",
                 // A row of one stop draws nothing.
                 "Picture1(0).Refresh", "cmbEstDegrade(1).ListIndex 1", "Picture1(1).Refresh",
                 "cmbEstDegrade(0).ListIndex 1", "cmbEstDegrade(1).ListIndex 1",
                 "txtAngulo.Text \"30\"", "Picture1(0).Refresh", "FraDegra(0).tope3.Visible False",
                 "FraDegra(0).tope3.Visible True", "OptNorSob(0).Value True",
                 "Frame1(0).Visible True", "Frame1(1).Visible False",
                 "GradientFill Picture1(0) modo 0 figuras 2: 0,0 &H1 60,40 &H2 120,0 &H3",
                 "Picture1(0).Refresh", "Changed False"});
}

TEST_CASE("opening the page shows the normal state, whatever was shown before") {
    Colores c;
    c.e.El<OpcionGrabada>("OptNorSob(1)").Pulsar();
    CHECK(c.Visible("Frame1(1)"));
    c.p.SelectionChanged();
    CHECK(c.Visible("Frame1(0)"));
    CHECK_FALSE(c.Visible("Frame1(1)"));
    CHECK(c.e.El<OpcionGrabada>("OptNorSob(0)").Value());
    CHECK_FALSE(c.e.El<OpcionGrabada>("OptNorSob(1)").Value());
}

TEST_CASE("an empty list is shown as white and black") {
    Colores c;
    c.boton->b->PonColorDegradeN(u"");
    c.boton->b->PonColorDegradeS(u"");
    c.p.SelectionChanged();
    CHECK(c.Topes(0) == "16777215*0");
    CHECK(c.Topes(1) == "16777215*0");
}

TEST_CASE("of several buttons the last one is shown") {
    Colores c;
    auto otro = Nuevo();
    otro->b->PonColorFondo(Color(0x99));
    otro->b->PonColorDegradeN(u"7*8");
    otro->b->PonAngulo(90);
    c.Mostrar({c.boton->b.get(), otro->b.get()});
    CHECK(c.ColorDe("cbColFondo(0)") == Color(0x99));
    CHECK(c.Topes(0) == "7*8");
    CHECK(c.Topes(1) == "16777215*0");
    CHECK(c.TextoDe("txtAngulo") == u"90");
    CHECK(c.Indice("cmbEstDegrade(0)") == 0);
    c.Mostrar({otro->b.get(), c.boton->b.get()});
    CHECK(c.Topes(0) == "1*2*3");
    CHECK(c.Topes(1) == "4*5*6*7*8");
}

TEST_CASE("applying writes colours, lists, angle and fill, in order") {
    Colores c;
    auto otro = Nuevo();
    c.e.seleccion = {otro->b.get()};
    c.p.ApplyChanges();
    CHECK(otro->Tomar({"PC"}) == Lineas{"PC ColorLetra", "PC ColorLetraSobre", "PC ColorFondo",
                                        "PC ColorFondoSobre", "PC ColorDegradeN",
                                        "PC ColorDegradeS", "PC Angulo", "PC EstilosRell"});
    CHECK(otro->b->ColorLetra() == Color(0x10));
    CHECK(otro->b->ColorLetraSobre() == Color(0x11));
    CHECK(otro->b->ColorFondo() == Color(0x20));
    CHECK(otro->b->ColorFondoSobre() == Color(0x21));
    CHECK(otro->b->ColorDegradeN() == u"1*2*3");
    CHECK(otro->b->ColorDegradeS() == u"4*5*6*7*8");
    CHECK(otro->b->Angulo() == 30);
    CHECK(otro->b->EstilosRell() == TEstilosR::D_Hori);
}

TEST_CASE("applying reaches every selected button") {
    Colores c;
    auto otro = Nuevo();
    c.Mostrar({otro->b.get(), c.boton->b.get()});
    c.e.ElCampo("txtAngulo").Pegar(u"12");
    c.p.ApplyChanges();
    for (Botonazo* b : {otro->b.get(), c.boton->b.get()}) {
        CHECK(b->Angulo() == 12);
        CHECK(b->ColorDegradeS() == u"4*5*6*7*8");
    }
}

TEST_CASE("a solid fill leaves the lists of the button as they are") {
    Colores c;
    c.e.LaLista("cmbEstDegrade(0)").Pulsar(0);
    auto otro = Nuevo();
    otro->b->PonColorDegradeN(u"9*9");
    otro->b->PonEstilosRell(TEstilosR::D_Vert);
    c.e.seleccion = {otro->b.get()};
    otro->Tomar();
    c.p.ApplyChanges();
    CHECK(otro->b->ColorDegradeN() == u"9*9");
    CHECK(otro->b->ColorDegradeS().empty());
    CHECK(otro->b->EstilosRell() == TEstilosR::Solido);
    CHECK(otro->Tomar({"PC ColorDegrade"}).empty());
}

TEST_CASE("colours go through the page as they stand, system colours and none included") {
    Colores c;
    c.boton->b->PonColorLetra(SinColor);
    c.boton->b->PonColorFondo(CaraDeBoton);
    c.boton->b->PonColorDegradeN(u"-1*-2147483633");
    c.p.SelectionChanged();
    auto otro = Nuevo();
    c.e.seleccion = {otro->b.get()};
    c.p.ApplyChanges();
    CHECK(otro->b->ColorLetra() == SinColor);
    CHECK(otro->b->ColorFondo() == CaraDeBoton);
    CHECK(otro->b->ColorDegradeN() == u"-1*-2147483633");
}

TEST_CASE("a selection that changes while it is being shown is not shown twice") {
    Colores c;
    c.boton->b->PonAngulo(200);
    int veces = 0;
    c.e.alInformar = [&] {
        ++veces;
        c.p.SelectionChanged();
        // Nor can stops be added or removed meanwhile.
        c.e.Pulsar("CBMasColor(0)");
        c.e.Pulsar("CBMenColor(1)");
    };
    c.e.seleccion = {c.boton->b.get()};
    c.p.SelectionChanged();
    CHECK(veces == 1);
    CHECK(c.Topes(0) == "1*2*3");
    CHECK(c.Topes(1) == "4*5*6*7*8");
    c.e.alInformar = nullptr;
    c.e.Pulsar("CBMasColor(0)");
    CHECK(c.Topes(0) == "1*2*3*3");
}

TEST_CASE("without selected objects the page opens and writes nothing") {
    PaginaDePrueba<ProPColores> c;
    c.Mostrar({});
    CHECK(c.Items("cmbEstDegrade(0)") == "Solido D_Hori D_Vert D_Pirami D_Diagonal");
    c.p.ApplyChanges();
    CHECK_FALSE(c.e.Changed());
}
