// Editing on the colour page of the button.
#include "pruebas/nativas/pagina_colores_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

TEST_CASE("the preview is a gradient in each style but the solid one") {
    struct Caso {
        TEstilosR estilo;
        const char* dibujo;
    };
    const Caso casos[] = {
        {TEstilosR::Solido, "Picture1(0).BackColor &H20"},
        {TEstilosR::D_Hori,
         "GradientFill Picture1(0) modo 0 figuras 2: 0,0 &H1 60,40 &H2 120,0 &H3"},
        {TEstilosR::D_Vert,
         "GradientFill Picture1(0) modo 1 figuras 2: 0,0 &H1 120,20 &H2 0,40 &H3"},
        {TEstilosR::D_Pirami, "GradientFill Picture1(0) modo 2 figuras 4: 60,20 &H1 0,0 &H2 "
                              "120,0 &H3 0,40 &H3 120,40 &H3"},
    };
    for (const Caso& caso : casos) {
        Colores c(caso.estilo);
        c.p.Redibujar();
        CHECK(c.Tomar() == Lineas{caso.dibujo, "Picture1(0).Refresh"});
    }
}

TEST_CASE("a diagonal preview follows the angle") {
    Colores c(TEstilosR::D_Diagonal);
    c.e.ElCampo("txtAngulo").Pegar(u"90");
    CHECK(c.Tomar() == Lineas{"Changed True",
                              "GradientFill Picture1(0) modo 0 figuras 2: 0,0 &H1 60,40 &H2 "
                              "120,0 &H3",
                              "Picture1(0).Refresh"});
    c.e.ElCampo("txtAngulo").Pegar(u"0");
    CHECK(c.Tomar({"Gradient"}) ==
          Lineas{"GradientFill Picture1(0) modo 1 figuras 2: 0,0 &H1 120,20 &H2 0,40 &H3"});
}

TEST_CASE("the inner size of the preview is rounded, halves to even") {
    Colores c;
    c.e.El<CuadroPaginaGrabado>("Picture1(0)").ancho = 100.5F;
    c.e.El<CuadroPaginaGrabado>("Picture1(0)").alto = 51.5F;
    c.p.Redibujar();
    CHECK(c.Tomar({"Gradient"}) ==
          Lineas{"GradientFill Picture1(0) modo 0 figuras 2: 0,0 &H1 50,52 &H2 100,0 &H3"});
}

TEST_CASE("an angle above 180 is reported and previewed all the same") {
    Colores c(TEstilosR::D_Diagonal);
    c.e.ElCampo("txtAngulo").Pegar(u"200");
    const Lineas lineas = c.Tomar();
    REQUIRE(lineas.size() == 4);
    CHECK(lineas[0] == "Changed True");
    CHECK(lineas[1] == "Informar \"El angulo debe ser entre 0 y 180\"");
    CHECK(lineas[2].starts_with("GradientFill Picture1(0) modo 2"));
    CHECK(lineas[3] == "Picture1(0).Refresh");
    CHECK(c.TextoDe("txtAngulo") == u"200");
    c.p.ApplyChanges();
    CHECK(c.boton->b->Angulo() == 200);
}

TEST_CASE("180 is not above 180, and a negative angle is not reported") {
    Colores c;
    for (const char16_t* angulo : {u"180", u"0", u"-45", u"", u"x"}) {
        c.e.ElCampo("txtAngulo").Pegar(angulo);
        CHECK(c.Tomar({"Informar"}).empty());
    }
    c.e.ElCampo("txtAngulo").Pegar(u"180,4");
    CHECK(c.Tomar({"Informar"}).size() == 1);
}

TEST_CASE("the angle is the number its text begins with, rounded, halves to even") {
    const std::pair<const char16_t*, int> casos[] = {{u"45", 45},   {u"44,5", 44}, {u"45,5", 46},
                                                     {u"45.5", 46}, {u"-30", -30}, {u"", 0},
                                                     {u"12 x", 12}, {u",6", 1}};
    for (const auto& [texto, valor] : casos) {
        Colores c;
        c.e.ElCampo("txtAngulo").Pegar(texto);
        c.p.ApplyChanges();
        CHECK(c.boton->b->Angulo() == valor);
    }
}

TEST_CASE("an angle beyond 16 bits is an overflow, in the preview and on apply") {
    Colores c;
    CHECK(ErrorDe([&] { c.e.ElCampo("txtAngulo").Pegar(u"40000"); }) == Desborda);
    CHECK(c.Tomar({"Informar"}).size() == 1);
    auto otro = Nuevo();
    c.e.seleccion = {c.boton->b.get(), otro->b.get()};
    CHECK(ErrorDe([&] { c.p.ApplyChanges(); }) == Desborda);
    CHECK(otro->Tomar({"PC"}).empty());
    CHECK(c.boton->b->Angulo() == 30);
}

TEST_CASE("the angle takes digits and one comma") {
    Colores c;
    CampoGrabado& campo = c.e.ElCampo("txtAngulo");
    campo.Pegar(u"4");
    CHECK(campo.Teclear('5') == '5');
    CHECK(campo.Teclear('.') == ',');
    CHECK(campo.Teclear(',') == 0);
    CHECK(campo.Teclear('-') == 0);
    CHECK(campo.Teclear('x') == 0);
    CHECK(campo.Text() == u"45,");
}

TEST_CASE("choosing a fill shares it, shows the angle for the diagonal and enables the stops") {
    for (int lista : {0, 1}) {
        for (int estilo : {4, 3, 0, 2, 1, 0, 4}) {
            INFO("list " << lista << " style " << estilo);
            Colores c(estilo == 1 ? TEstilosR::D_Vert : TEstilosR::D_Hori);
            c.e.LaLista("cmbEstDegrade(" + std::to_string(lista) + ")").Pulsar(estilo);
            CHECK(c.Indice("cmbEstDegrade(0)") == estilo);
            CHECK(c.Indice("cmbEstDegrade(1)") == estilo);
            CHECK(c.Previstas() == (lista == 0 ? "01" : "10"));
            CHECK(c.e.ElCampo("txtAngulo").Visible() == (estilo == 4));
            CHECK(c.Visible("lblAngulo") == (estilo == 4));
            for (const char* sufijo : {"(0)", "(1)"}) {
                const std::string s = sufijo;
                CHECK(c.e.El<MarcoGrabado>("FraDegra" + s).Enabled() == (estilo != 0));
                CHECK(c.e.El<BotonGrabado>("CBMasColor" + s).Enabled() == (estilo != 0));
                CHECK(c.e.El<BotonGrabado>("CBMenColor" + s).Enabled() == (estilo != 0));
            }
            CHECK(c.e.Changed());
        }
    }
}

TEST_CASE("choosing a fill works in order, first in its own state and then in the other") {
    Colores c(TEstilosR::D_Vert);
    c.e.LaLista("cmbEstDegrade(1)").Pulsar(4);
    const Lineas lineas = c.Tomar();
    CHECK(lineas == Lineas{"Changed True", "txtAngulo.Visible True", "lblAngulo.Visible True",
                           "FraDegra(1).Enabled True", "CBMasColor(1).Enabled True",
                           "CBMenColor(1).Enabled True", lineas.at(6), "Picture1(1).Refresh",
                           "cmbEstDegrade(0).ListIndex 4", "Changed True", "txtAngulo.Visible True",
                           "lblAngulo.Visible True", "FraDegra(0).Enabled True",
                           "CBMasColor(0).Enabled True", "CBMenColor(0).Enabled True",
                           lineas.at(15), "Picture1(0).Refresh", "cmbEstDegrade(1).ListIndex 4"});
    CHECK(lineas.at(6).starts_with("GradientFill Picture1(1) modo 2"));
    CHECK(lineas.at(15).starts_with("GradientFill Picture1(0) modo 2"));
}

TEST_CASE("an option shows its frame alone and draws its preview") {
    Colores c;
    c.e.El<OpcionGrabada>("OptNorSob(1)").Pulsar();
    CHECK_FALSE(c.Visible("Frame1(0)"));
    CHECK(c.Visible("Frame1(1)"));
    CHECK(c.Previstas() == "1");
    c.e.El<OpcionGrabada>("OptNorSob(0)").Pulsar();
    CHECK(c.Visible("Frame1(0)"));
    CHECK_FALSE(c.Visible("Frame1(1)"));
    CHECK(c.Previstas() == "0");
    CHECK_FALSE(c.e.Changed());
}

TEST_CASE("an angle draws the preview of the state that is shown") {
    Colores c;
    c.e.El<OpcionGrabada>("OptNorSob(1)").Pulsar();
    c.Tomar();
    c.e.ElCampo("txtAngulo").Pegar(u"10");
    CHECK(c.Previstas() == "1");
}

TEST_CASE("a chosen colour is given to its button and raises the flag") {
    for (const char* nombre :
         {"cbColLetra(0)", "cbColLetra(1)", "cbColFondo(0)", "cbColFondo(1)"}) {
        Colores c;
        const Color antes = c.ColorDe(nombre);
        c.e.alElegirColor = [](Color) { return Color(0x0000FF); };
        c.e.El<BotonColorGrabado>(nombre).Pulsar();
        CHECK(c.Tomar() == Lineas{"ElegirColor " + Describir(antes), "Changed True",
                                  std::string(nombre) + ".BackColor &HFF"});
        // No preview yet: it follows at the next redraw.
        c.p.ApplyChanges();
        CHECK(c.ColorDe(nombre) == Color(0xFF));
    }
}

TEST_CASE("a colour chosen for a stop draws the preview of its state") {
    Colores c;
    c.e.alElegirColor = [](Color) { return Color(0x55); };
    c.Tope(0, 1).Pulsar();
    CHECK(c.Topes(0) == "1*85*3");
    CHECK(c.Previstas() == "0");
    c.Tope(1, 4).Pulsar();
    CHECK(c.Topes(1) == "4*5*6*7*85");
    CHECK(c.Previstas() == "1");
    c.e.Pulsar("CBMasColor(1)");
    c.Tope(1, 5).Pulsar();
    CHECK(c.Topes(1) == "4*5*6*7*85*85");
}

TEST_CASE("a cancelled dialog changes neither the colour nor the flag") {
    Colores c;
    c.e.El<BotonColorGrabado>("cbColFondo(0)").Pulsar();
    CHECK(c.ColorDe("cbColFondo(0)") == Color(0x20));
    CHECK_FALSE(c.e.Changed());
    c.e.PonChanged(true);
    c.Tope(0, 0).Pulsar();
    CHECK(c.e.Changed());
    CHECK(c.Topes(0) == "1*2*3");
}

TEST_CASE("inverting the colours does not draw the preview") {
    Colores c;
    c.boton->b->PonColorDegradeN(u"255*0*16777215");
    c.p.SelectionChanged();
    c.e.PonChanged(false);
    c.Tomar();
    c.e.Pulsar("cbInvColores(0)");
    CHECK(c.Tope(0, 0).BackColor() == Color(0xFFFF00));
    CHECK(c.Topes(0) == "16776960*16777215*0");
    CHECK(c.e.Changed());
    CHECK(c.Tomar({"Picture1", "Gradient"}).empty());
    CHECK(c.Topes(1) == "4*5*6*7*8");
    c.e.Pulsar("cbInvColores(1)");
    CHECK(c.Topes(1) == "16777211*16777210*16777209*16777208*16777207");
    c.p.Redibujar();
    CHECK(c.Tomar({"Gradient"}) == Lineas{"GradientFill Picture1(0) modo 0 figuras 2: 0,0 &HFFFF00 "
                                          "60,40 &HFFFFFF 120,0 &H0"});
}

TEST_CASE("the complement of a system colour is that of its low bytes, of no colour white") {
    Colores c;
    c.boton->b->PonColorDegradeN(u"-2147483633*-1");
    c.p.SelectionChanged();
    c.e.Pulsar("cbInvColores(0)");
    CHECK(c.Tope(0, 0).BackColor() == Color(0xFFFFF0));
    CHECK(c.Tope(0, 1).BackColor() == Blanco);
}

TEST_CASE("inverting the order draws the preview") {
    Colores c;
    c.e.Pulsar("cbInvOrden(0)");
    CHECK(c.Topes(0) == "3*2*1");
    CHECK(c.Topes(1) == "4*5*6*7*8");
    CHECK(c.e.Changed());
    CHECK(c.Previstas() == "0");
    c.e.Pulsar("cbInvOrden(1)");
    CHECK(c.Topes(1) == "8*7*6*5*4");
    CHECK(c.Previstas() == "1");
}

TEST_CASE("equalising gives the state with the mouse over the colours of the normal one") {
    Colores c;
    c.e.Pulsar("cbIgual");
    CHECK(c.ColorDe("cbColLetra(1)") == Color(0x10));
    CHECK(c.ColorDe("cbColFondo(1)") == Color(0x20));
    CHECK(c.Topes(0) == "1*2*3");
    CHECK(c.Topes(1) == "1*2*3");
    CHECK(c.Indice("cmbEstDegrade(1)") == 1);
    const Lineas lineas = c.Tomar();
    REQUIRE_FALSE(lineas.empty());
    CHECK(lineas.back() == "Changed True");
}

TEST_CASE("equalising lengthens a shorter row") {
    Colores c;
    c.boton->b->PonColorDegradeN(u"1*2*3*4*5*6");
    c.boton->b->PonColorDegradeS(u"9*9");
    c.p.SelectionChanged();
    c.e.Pulsar("cbIgual");
    CHECK(c.Topes(1) == "1*2*3*4*5*6");
    CHECK(c.Fila(1).Tope(5).Width() == 600);
}
