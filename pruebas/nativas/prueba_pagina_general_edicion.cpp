// Editing on the general page: shape and curvature, sliders, the key filter.
#include "paginas/propgeneral.h"
#include "pruebas/nativas/boton_de_prueba.h"
#include "pruebas/nativas/pagina_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

using General = PaginaDePrueba<ProPGeneral>;

const char* const DeCurvatura[] = {"sldX", "sldY", "txtRelX", "txtRelY", "Rel_X", "Rel_Y"};

/// A page that shows one rounded button.
struct Redonda : General {
    explicit Redonda(Regional regional = Espaniol) : General(regional) {
        boton->b->PonEstilos(TEstilos::REDONDEADO);
        boton->b->PonRelX(0.25F);
        boton->b->PonRelY(0.5F);
        Mostrar({boton->b.get()});
    }
    DeslizadorGrabado& Deslizador(const std::string& n) { return e.El<DeslizadorGrabado>(n); }

    Puntero boton = Nuevo();
};

bool Activo(General& g, const std::string& nombre) {
    if (nombre.starts_with("sld"))
        return g.e.El<DeslizadorGrabado>(nombre).Enabled();
    if (nombre.starts_with("txt"))
        return g.e.ElCampo(nombre).Enabled();
    return g.e.El<RotuloGrabado>(nombre).Enabled();
}

} // namespace

TEST_CASE("the curvature is in use for the rounded shape only") {
    Redonda g;
    for (const char* nombre : DeCurvatura)
        CHECK(Activo(g, nombre));
    g.e.LaLista("CobEstilo").Pulsar(0);
    for (const char* nombre : DeCurvatura) {
        INFO(nombre);
        CHECK_FALSE(Activo(g, nombre));
    }
    g.e.LaLista("CobEstilo").Pulsar(1);
    for (const char* nombre : DeCurvatura)
        CHECK(Activo(g, nombre));
}

TEST_CASE("choosing a shape gives it to the preview, then raises the flag") {
    Redonda g;
    g.e.LaLista("CobEstilo").Pulsar(0);
    CHECK(g.Tomar({"Create", "SetW", "Delete", "Changed"}) ==
          Lineas{"CreateRoundRectRgn 0,0 121,41 elipse 0x0", "SetWindowRgn 1021 True",
                 "DeleteObject", "Changed True"});
    g.e.LaLista("CobEstilo").Pulsar(1);
    CHECK(g.Tomar({"Create", "SetW", "Delete", "Changed"}) ==
          Lineas{"CreateRoundRectRgn 0,0 121,41 elipse 30x20", "SetWindowRgn 1021 True",
                 "DeleteObject", "Changed True"});
}

TEST_CASE("the size of the preview is rounded, halves to even") {
    Redonda g;
    g.e.El<CuadroPaginaGrabado>("PicPV").ancho = 100.5F;
    g.e.El<CuadroPaginaGrabado>("PicPV").alto = 51.5F;
    g.e.LaLista("CobEstilo").Pulsar(0);
    CHECK(g.Tomar({"Create"}) == Lineas{"CreateRoundRectRgn 0,0 101,53 elipse 0x0"});
}

TEST_CASE("a typed curvature reshapes the preview and moves the slider") {
    Redonda g;
    g.e.ElCampo("txtRelX").Pegar(u"0,5");
    CHECK(g.Deslizador("sldX").Value() == 50);
    CHECK(g.Tomar({"Create", "sldX.Value", "sldY.Value", "Changed"}) ==
          Lineas{"CreateRoundRectRgn 0,0 121,41 elipse 60x20", "Changed True", "sldX.Value 50"});
    g.e.ElCampo("txtRelY").Pegar(u"1");
    CHECK(g.Deslizador("sldY").Value() == 100);
    CHECK(g.Tomar({"Create", "sldX.Value", "sldY.Value"}) ==
          Lineas{"CreateRoundRectRgn 0,0 121,41 elipse 60x40", "sldY.Value 100"});
}

TEST_CASE("the slider takes a hundred times the curvature, halves to even") {
    Redonda g;
    const std::pair<const char16_t*, int> casos[] = {{u"0,125", 12}, {u"0,375", 38}, {u"0,333", 33},
                                                     {u"0,336", 34}, {u"15", 1500},  {u"0", 0}};
    for (const auto& [texto, valor] : casos) {
        g.e.ElCampo("txtRelX").Pegar(texto);
        CHECK(g.Deslizador("sldX").Value() == valor);
    }
}

TEST_CASE("a moved slider writes its text and stays where it is") {
    Redonda g;
    g.Deslizador("sldX").Mover(1234);
    CHECK(g.TextoDe("txtRelX") == u"12,34");
    CHECK(g.Tomar({"txtRel", "sldX.Value", "sldY.Value", "Create"}) ==
          Lineas{"txtRelX.Text \"12,34\"", "txtRelX.Enabled True", "txtRelY.Enabled True",
                 "CreateRoundRectRgn 0,0 121,41 elipse 1481x20"});
    g.Deslizador("sldY").Mover(7);
    CHECK(g.TextoDe("txtRelY") == u"0,07");
    g.Deslizador("sldY").Mover(150);
    CHECK(g.TextoDe("txtRelY") == u"1,5");
    CHECK(g.e.Changed());
    // Afterwards the text leads the slider again.
    g.e.ElCampo("txtRelX").Pegar(u"1");
    CHECK(g.Deslizador("sldX").Value() == 100);
}

TEST_CASE("an emptied curvature becomes 0 at once") {
    Redonda g;
    for (const char* campo : {"txtRelX", "txtRelY"}) {
        g.e.ElCampo(campo).Pegar(u"");
        CHECK(g.TextoDe(campo) == u"0");
    }
    CHECK(g.Deslizador("sldX").Value() == 0);
    CHECK(g.Deslizador("sldY").Value() == 0);
}

TEST_CASE("what is applied is the curvature of the last refresh, not the text") {
    Redonda g;
    CHECK(ErrorDe([&] { g.e.ElCampo("txtRelX").Pegar(u","); }) == NoCoincide);
    g.p.ApplyChanges();
    CHECK(g.boton->b->RelX() == 0.25F);
    CHECK(g.boton->b->RelY() == 0.5F);
}

TEST_CASE("a curvature takes digits, one comma, which a point becomes, and a space") {
    Redonda g;
    for (const char* nombre : {"txtRelX", "txtRelY"}) {
        CampoGrabado& campo = g.e.ElCampo(nombre);
        campo.Pegar(u"");
        CHECK(campo.Text() == u"0");
        CHECK(campo.Teclear('7') == '7');
        CHECK(campo.Teclear('.') == ',');
        CHECK(campo.Teclear(',') == 0);
        CHECK(campo.Teclear('.') == 0);
        CHECK(campo.Teclear('-') == 0);
        CHECK(campo.Teclear('a') == 0);
        CHECK(campo.Teclear(':') == 0);
        CHECK(campo.Teclear('/') == 0);
        CHECK(campo.Teclear(8) == 8);
        CHECK(campo.Teclear('5') == '5');
        CHECK(campo.Text() == u"07,5");
        CHECK(campo.Teclear(' ') == ' ');
    }
}

TEST_CASE("the steps take digits only") {
    Redonda g;
    CampoGrabado& campo = g.e.ElCampo("txtCamTiem");
    campo.Pegar(u"");
    CHECK(campo.Teclear('2') == '2');
    CHECK(campo.Teclear('.') == 0);
    CHECK(campo.Teclear(',') == 0);
    CHECK(campo.Teclear('-') == 0);
    CHECK(campo.Teclear('5') == '5');
    CHECK(campo.Teclear(13) == 13);
    CHECK(campo.Text() == u"25");
}

TEST_CASE("any other edit raises the flag and does nothing else") {
    Redonda g;
    const auto solo = [&](const std::string& nombre) {
        INFO(nombre);
        CHECK(g.Tomar() == Lineas{"Changed True"});
    };
    for (const char* lista :
         {"CobEfectos", "CobAlinText", "cobAlinImag", "comAnchoB", "ComEstBorde", "comTipoLetra"}) {
        g.e.LaLista(lista).Pulsar(g.Indice(lista) == 0 ? 1 : 0);
        solo(lista);
    }
    for (const char* casilla :
         {"chkProg", "chkFocConMouse", "chkFocoVisi", "chkEstConIma", "ChkEnabled"}) {
        g.e.UnaCasilla(casilla).Pulsar();
        solo(casilla);
    }
    for (const char* campo : {"Texto", "txtCamTiem"}) {
        g.e.ElCampo(campo).Pegar(u"9");
        solo(campo);
    }
}

TEST_CASE("where the decimal separator is a point, point and comma are both understood") {
    Redonda g(Ingles);
    CHECK(g.TextoDe("txtRelX") == u"0.25");
    CampoGrabado& campo = g.e.ElCampo("txtRelX");
    campo.Pegar(u"1");
    CHECK(campo.Teclear('.') == ',');
    campo.Teclear('5');
    CHECK(campo.Text() == u"1,5");
    CHECK(g.Deslizador("sldX").Value() == 150);
    campo.Pegar(u"1.75");
    CHECK(g.Deslizador("sldX").Value() == 175);
    g.Deslizador("sldX").Mover(1234);
    CHECK(g.TextoDe("txtRelX") == u"12.34");
    g.p.ApplyChanges();
    CHECK(g.boton->b->RelX() == 12.34F);
}

TEST_CASE("the page opens in any locale, and what it shows it can read") {
    for (const Regional regional : {Espaniol, Ingles, Regional{u'.', u'\''}, Regional{u',', u' '},
                                    Regional{u'\u066B', u'\u066C'}}) {
        Redonda g(regional);
        g.p.ApplyChanges();
        CHECK(g.boton->b->RelX() == 0.25F);
        CHECK(g.boton->b->RelY() == 0.5F);
        CHECK(g.Deslizador("sldX").Value() == 25);
        g.e.ElCampo("txtRelX").Pegar(u"0,75");
        CHECK(g.Deslizador("sldX").Value() == 75);
    }
}

TEST_CASE("a window made anew gets the shape of the page") {
    Redonda g;
    g.p.Redibujar();
    CHECK(g.Tomar({"Create", "SetW"}) ==
          Lineas{"CreateRoundRectRgn 0,0 121,41 elipse 30x20", "SetWindowRgn 1021 True"});
}
