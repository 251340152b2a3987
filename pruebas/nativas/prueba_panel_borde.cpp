// The four pairs of lines.
#include "pruebas/nativas/panel_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

constexpr Color Sombra{std::uint32_t{0x80000010}};
constexpr Color Luz{std::uint32_t{0x80000014}};

/// Colours of the visible lines: outer and inner of top, bottom, left, right.
std::vector<Color> Colores(PanelDePrueba& p) {
    std::vector<Color> colores;
    for (const char* nombre : NombresLineas)
        if (p.e.LaLinea(nombre).Visible())
            colores.push_back(p.e.LaLinea(nombre).BorderColor());
    return colores;
}

PunteroPanel ConBorde(TEstilosB estilo) {
    auto p = PanelNuevo();
    p->a->PonEstilosBord(estilo);
    return p;
}

Lineas Movidas(PanelDePrueba& p) {
    p.Tomar();
    p.a->Resize();
    Lineas lineas = p.Tomar({"Lin"});
    std::erase_if(lineas, [](const std::string& l) { return l.find(".Move") == l.npos; });
    return lineas;
}

} // namespace

TEST_CASE("no border hides every line") {
    auto p = ConBorde(TEstilosB::Ninguno);
    CHECK(Colores(*p).empty());
    p->a->PonEstilosBord(TEstilosB::Normal);
    CHECK(Colores(*p).size() == 8);
}

TEST_CASE("a normal border draws both lines of each pair in the colour of the letter") {
    auto p = ConBorde(TEstilosB::Normal);
    CHECK(Colores(*p) == std::vector<Color>(8, TextoDeVentana));
    p->a->PonColorLetra(Color(0xFF));
    CHECK(Colores(*p) == std::vector<Color>(8, Color(0xFF)));
    // A colour chosen under another style is there when the style comes back.
    p->a->PonEstilosBord(TEstilosB::Colores);
    p->a->PonColorLetra(Color(0xFF00));
    p->a->PonEstilosBord(TEstilosB::Normal);
    CHECK(Colores(*p) == std::vector<Color>(8, Color(0xFF00)));
}

TEST_CASE("a single border hides the inner line of each pair") {
    auto p = ConBorde(TEstilosB::Lineal);
    for (const char* nombre : {"LinSup1", "LinInf1", "LinIzq1", "LinDer1"})
        CHECK_FALSE(p->e.LaLinea(nombre).Visible());
    CHECK(Colores(*p) == std::vector<Color>(4, Sombra));
}

TEST_CASE("a coloured border is etched: dark outside and light inside above, the reverse below") {
    const std::vector<Color> etched = {Sombra, Luz, Luz, Sombra, Sombra, Luz, Luz, Sombra};
    CHECK(Colores(*ConBorde(TEstilosB::Colores)) == etched);
    // So is one of no known style.
    CHECK(Colores(*ConBorde(static_cast<TEstilosB>(5))) == etched);
    CHECK(Colores(*ConBorde(static_cast<TEstilosB>(-1))) == etched);
}

TEST_CASE("a graded border is etched in the ends of the gradient") {
    auto p = ConBorde(TEstilosB::Degradados);
    const Color uno(1), tres(3);
    p->a->PonColorDegrade(u"1*2*3");
    CHECK(Colores(*p) == std::vector<Color>{uno, tres, tres, uno, uno, tres, tres, uno});
    for (const Texto& lista :
         {Texto(), Texto(u"5"), Texto(u"1*x"), Texto(u"*"), Texto(u"99999999999*1")}) {
        p->a->PonColorDegrade(lista);
        CHECK(Colores(*p) ==
              std::vector<Color>{Sombra, Luz, Luz, Sombra, Sombra, Luz, Luz, Sombra});
    }
}

TEST_CASE("the pairs stand in from the edge by the spacing, one line inside the other") {
    auto p = ConBorde(TEstilosB::Colores);
    // Both ends of a line belong to it: the right line covers column 98 of 0 to 99.
    CHECK(Movidas(*p) == Lineas{"LinSup0.Move 1,1 98,1", "LinInf0.Move 1,28 98,28",
                                "LinIzq0.Move 1,1 1,28", "LinDer0.Move 98,1 98,28",
                                "LinSup1.Move 2,2 97,2", "LinInf1.Move 2,27 97,27",
                                "LinIzq1.Move 2,2 2,27", "LinDer1.Move 97,2 97,27"});
    p->a->PonSeparaBorde(Tamanio::Grande);
    CHECK(Movidas(*p)[3] == "LinDer0.Move 96,3 96,26");
}

TEST_CASE("wider lines keep their distance from the edge and from each other") {
    // A line covers width/2 pixels before its coordinates and the rest from there on.
    auto p = ConBorde(TEstilosB::Normal);
    p->a->PonAnchoBorde(Tamanio::Mediano);
    CHECK(Movidas(*p) == Lineas{"LinSup0.Move 2,2 98,2", "LinInf0.Move 2,28 98,28",
                                "LinIzq0.Move 2,2 2,28", "LinDer0.Move 98,2 98,28",
                                "LinSup1.Move 4,4 96,4", "LinInf1.Move 4,26 96,26",
                                "LinIzq1.Move 4,4 4,26", "LinDer1.Move 96,4 96,26"});
    p->Tomar();
    p->a->PonAnchoBorde(Tamanio::Grande);
    const Lineas lineas = p->Tomar({"LinSup0", "LinSup1"});
    CHECK(lineas == Lineas{"LinSup0.BorderWidth 3", "LinSup0.BorderColor &H80000008",
                           "LinSup0.Move 2,2 97,2", "LinSup0.Visible True", "LinSup1.BorderWidth 3",
                           "LinSup1.BorderColor &H80000008", "LinSup1.Move 5,5 94,5",
                           "LinSup1.Visible True"});
}

TEST_CASE("a width below one is drawn as one") {
    auto p = ConBorde(TEstilosB::Normal);
    for (int ancho : {0, -7}) {
        p->a->PonAnchoBorde(static_cast<Tamanio>(ancho));
        CHECK(Movidas(*p)[4] == "LinSup1.Move 2,2 97,2");
    }
}

TEST_CASE("a panel too small for a frame goes without it") {
    auto p = ConBorde(TEstilosB::Normal);
    p->e.pantalla.ancho = 4; // room for the outer frame and for an inner one of no room inside
    p->a->Resize();
    CHECK(Colores(*p).size() == 4);
    p->e.pantalla.ancho = 3;
    p->a->Resize();
    CHECK(Colores(*p).size() == 4);
    p->e.pantalla.ancho = 2;
    p->a->Resize();
    CHECK(Colores(*p).empty());
    p->e.pantalla.ancho = 0;
    p->a->Resize();
    CHECK(Colores(*p).empty());
    p->e.pantalla.ancho = 100;
    p->a->Resize();
    CHECK(Colores(*p).size() == 8);
    for (int ancho : {0x7FFFFFFF, 1000}) {
        p->a->PonAnchoBorde(static_cast<Tamanio>(ancho));
        CHECK(Colores(*p).empty());
    }
}
