// What each assignment does.
#include "pruebas/nativas/panel_de_prueba.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <functional>
#include <utility>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

struct Asignacion {
    std::string clave;
    std::function<void(Area&)> hacer;
};

/// With a field of its own, to a value a new panel does not have.
const Asignacion ConCampo[] = {
    {"AlinText", [](Area& a) { a.PonAlinText(Alineaciones::Der_Inf); }},
    {"ColorFondo", [](Area& a) { a.PonColorFondo(Color(0x123456)); }},
    {"EstilosBord", [](Area& a) { a.PonEstilosBord(TEstilosB::Colores); }},
    {"EstilosRell", [](Area& a) { a.PonEstilosRell(TEstilosR::D_Hori); }},
    {"Enabled", [](Area& a) { a.PonEnabled(false); }},
    {"SeparaBorde", [](Area& a) { a.PonSeparaBorde(Tamanio::Grande); }},
    {"ColorDegrade", [](Area& a) { a.PonColorDegrade(u"1*2"); }},
    {"BackStyle", [](Area& a) { a.PonBackStyle(TBack::Transparente); }},
    {"AnchoBorde", [](Area& a) { a.PonAnchoBorde(Tamanio::Mediano); }},
    {"TipoLetra", [](Area& a) { a.PonTipoLetra(TLetra::Undida); }},
};

/// Kept by a label or by the surface.
const Asignacion SinCampo[] = {
    {"Caption", [](Area& a) { a.PonCaption(u"Hola"); }},
    {"Font", [](Area& a) { a.PonFont(a.Font()); }},
    {"ColorLetra", [](Area& a) { a.PonColorLetra(Color(0xFF)); }},
    {"MouseIcon", [](Area& a) { a.PonMouseIcon(nullptr); }},
    {"MousePointer", [](Area& a) { a.PonMousePointer(2); }},
    {"ToolTipText", [](Area& a) { a.PonToolTipText(u"Hola"); }},
};

/// The change is told once, and afterwards the panel is redrawn and its caption placed.
void ComprobarAviso(PanelDePrueba& p, const std::string& clave) {
    const Lineas lineas = p.Tomar({"PC", "superficie.Cls", "lblTitulo.Move"});
    REQUIRE(lineas.size() == 3);
    CHECK(lineas[0] == "PC " + clave);
    CHECK(lineas[1].starts_with("superficie.Cls"));
    CHECK(lineas[2].starts_with("lblTitulo.Move"));
}

} // namespace

TEST_CASE("every assignment tells, then redraws, then places the caption") {
    for (const auto& asignacion : ConCampo) {
        INFO(asignacion.clave);
        auto p = PanelNuevo();
        asignacion.hacer(*p->a);
        ComprobarAviso(*p, asignacion.clave);
    }
    for (const auto& asignacion : SinCampo) {
        INFO(asignacion.clave);
        auto p = PanelNuevo();
        asignacion.hacer(*p->a);
        ComprobarAviso(*p, asignacion.clave);
    }
}

TEST_CASE("the value a property already has changes nothing and is told to nobody") {
    for (const auto& asignacion : ConCampo) {
        INFO(asignacion.clave);
        auto p = PanelNuevo();
        asignacion.hacer(*p->a);
        p->Tomar();
        asignacion.hacer(*p->a);
        CHECK(p->Tomar().empty());
    }
}

TEST_CASE("what a label or the surface keeps is assigned again") {
    for (const auto& asignacion : SinCampo) {
        INFO(asignacion.clave);
        auto p = PanelNuevo();
        asignacion.hacer(*p->a);
        p->Tomar();
        asignacion.hacer(*p->a);
        ComprobarAviso(*p, asignacion.clave);
    }
}

TEST_CASE("while the first colour is assigned nothing is redrawn, whatever else is assigned") {
    PanelDePrueba p;
    MientrasCarga(p, [&] {
        for (const auto& asignacion : ConCampo)
            asignacion.hacer(*p.a);
        for (const auto& asignacion : SinCampo)
            asignacion.hacer(*p.a);
        const Lineas lineas = p.Tomar();
        CHECK(std::count_if(lineas.begin(), lineas.end(), [](const std::string& linea) {
                  return linea.starts_with("PC");
              }) == 16);
        for (const std::string& linea : lineas) {
            INFO(linea);
            CHECK_FALSE(linea.starts_with("superficie.Cls"));
            CHECK_FALSE(linea.starts_with("superficie.Refresh"));
            CHECK(linea.find(".Move") == std::string::npos);
        }
    });
}

TEST_CASE("Caption reaches the three labels") {
    auto p = PanelNuevo();
    p->a->PonCaption(u"&Datos");
    CHECK(p->a->Caption() == u"&Datos");
    for (const char* nombre : {"lblTitulo", "LblSombra", "lblSombra2"})
        CHECK(p->e.LaEtiqueta(nombre).Caption() == u"&Datos");
    // A panel takes no access key of its own.
    CHECK(p->e.pantalla.AccessKeys().empty());
}

TEST_CASE("Font reaches the three labels as the same object") {
    auto p = PanelNuevo();
    const auto fuente = std::make_shared<FuenteGrabada>(AtributosFuente{.Name = u"Courier"});
    p->a->PonFont(fuente);
    CHECK(p->a->Font() == fuente);
    for (const char* nombre : {"lblTitulo", "LblSombra", "lblSombra2"})
        CHECK(p->e.LaEtiqueta(nombre).Font() == fuente);
}

TEST_CASE("a panel can't be left without a font") {
    auto p = PanelNuevo();
    const Fuente antes = p->a->Font();
    CHECK(ErrorDe([&] { p->a->PonFont(nullptr); }) ==
          static_cast<int>(NumeroError::ValorDePropiedad));
    CHECK(p->a->Font() == antes);
    CHECK(p->Tomar().empty());
}

TEST_CASE("Enabled reaches the caption alone") {
    auto p = PanelNuevo();
    p->a->PonEnabled(false);
    CHECK_FALSE(p->a->Enabled());
    CHECK_FALSE(p->e.LaEtiqueta("lblTitulo").Enabled());
    CHECK(p->e.LaEtiqueta("LblSombra").Enabled());
    CHECK(p->e.LaEtiqueta("lblSombra2").Enabled());
    p->a->PonEnabled(true);
    CHECK(p->e.LaEtiqueta("lblTitulo").Enabled());
}

TEST_CASE("pointer, icon and tip are kept by the surface and the caption") {
    auto p = PanelNuevo();
    const auto icono = std::make_shared<ImagenGrabada>("mano", 1, 1);
    p->a->PonMouseIcon(icono);
    p->a->PonMousePointer(99);
    p->a->PonToolTipText(u"Ayuda");
    CHECK(p->e.pantalla.MouseIcon() == icono);
    CHECK(p->a->MouseIcon() == icono);
    CHECK(p->e.pantalla.MousePointer() == 99);
    CHECK(p->a->MousePointer() == 99);
    CHECK(p->e.LaEtiqueta("lblTitulo").ToolTipText() == u"Ayuda");
    CHECK(p->a->ToolTipText() == u"Ayuda");
    CHECK(p->e.LaEtiqueta("LblSombra").ToolTipText().empty());
}

TEST_CASE("a back colour is shown by the clearing that follows it") {
    auto p = PanelNuevo();
    p->a->PonColorFondo(Color(0xFF));
    CHECK(p->Tomar({"superficie", "PC"}) ==
          Lineas{"superficie.BackColor &HFF", "PC ColorFondo", "superficie.Cls &HFF"});
}

TEST_CASE("a colour of the letter tells after caption and border have it, before the copies") {
    auto p = PanelNuevo();
    p->a->PonColorLetra(Color(0xFF));
    const Lineas lineas = p->Tomar();
    REQUIRE(lineas.size() > 12);
    CHECK(Lineas(lineas.begin(), lineas.begin() + 12) ==
          Lineas{"lblTitulo.ForeColor &HFF", "LinSup0.BorderColor &HFF", "LinSup1.BorderColor &HFF",
                 "LinInf0.BorderColor &HFF", "LinInf1.BorderColor &HFF", "LinIzq0.BorderColor &HFF",
                 "LinIzq1.BorderColor &HFF", "LinDer0.BorderColor &HFF", "LinDer1.BorderColor &HFF",
                 "PC ColorLetra", "LblSombra.ForeColor &HFFFFFF", "lblSombra2.ForeColor &H0"});
    CHECK(p->a->ColorLetra() == Color(0xFF));
}

TEST_CASE("a colour of the letter leaves every border but the normal one as it is") {
    for (int estilo : {0, 2, 3, 4, 7, -1}) {
        INFO("style " << estilo);
        auto p = PanelNuevo();
        p->a->PonColorDegrade(u"1*2");
        p->a->PonEstilosBord(static_cast<TEstilosB>(estilo));
        std::vector<Color> antes;
        for (const char* linea : NombresLineas)
            antes.push_back(p->e.LaLinea(linea).BorderColor());
        p->a->PonColorLetra(Color(0xABCDEF));
        std::vector<Color> despues;
        for (const char* linea : NombresLineas)
            despues.push_back(p->e.LaLinea(linea).BorderColor());
        CHECK(antes == despues);
    }
}

TEST_CASE("the copies of the caption are white and black, or both the inverse of the letter") {
    for (int tipo : {0, 1, 2, 3, 4, 5, -1}) {
        INFO("lettering " << tipo);
        auto p = PanelNuevo();
        p->a->PonTipoLetra(static_cast<TLetra>(tipo));
        p->a->PonColorLetra(ColorRGB(255, 16, 1));
        const bool inversa = tipo == 3 || tipo == 4;
        CHECK(p->e.LaEtiqueta("LblSombra").ForeColor() ==
              (inversa ? ColorRGB(0, 239, 254) : Blanco));
        CHECK(p->e.LaEtiqueta("lblSombra2").ForeColor() ==
              (inversa ? ColorRGB(0, 239, 254) : Negro));
    }
}

TEST_CASE("the inverse of no colour is white, and a system colour counts by its low bytes") {
    auto p = PanelNuevo();
    p->a->PonTipoLetra(TLetra::InvesoL);
    p->a->PonColorLetra(SinColor);
    CHECK(p->e.LaEtiqueta("LblSombra").ForeColor() == Blanco);
    p->a->PonColorLetra(TextoDeVentana);
    CHECK(p->e.LaEtiqueta("LblSombra").ForeColor() == Color(0xFFFFF7));
}

TEST_CASE("the copies are coloured even while the first back colour is assigned") {
    PanelDePrueba p;
    MientrasCarga(p, [&] {
        p.a->PonTipoLetra(TLetra::InvesoU);
        p.Tomar();
        p.a->PonColorLetra(Negro);
        CHECK(p.Tomar({"LblSombra", "lblSombra2"}) ==
              Lineas{"LblSombra.ForeColor &HFFFFFF", "lblSombra2.ForeColor &HFFFFFF"});
    });
}

TEST_CASE("values outside their enumeration are kept as they stand") {
    auto p = PanelNuevo();
    for (std::int32_t n : {-1, 9, 0x7FFFFFFF, INT32_MIN}) {
        INFO(n);
        p->a->PonAlinText(static_cast<Alineaciones>(n));
        p->a->PonEstilosBord(static_cast<TEstilosB>(n));
        p->a->PonEstilosRell(static_cast<TEstilosR>(n));
        p->a->PonSeparaBorde(static_cast<Tamanio>(n));
        p->a->PonBackStyle(static_cast<TBack>(n));
        p->a->PonAnchoBorde(static_cast<Tamanio>(n));
        p->a->PonTipoLetra(static_cast<TLetra>(n));
        CHECK(static_cast<std::int32_t>(p->a->AlinText()) == n);
        CHECK(static_cast<std::int32_t>(p->a->EstilosBord()) == n);
        CHECK(static_cast<std::int32_t>(p->a->EstilosRell()) == n);
        CHECK(static_cast<std::int32_t>(p->a->SeparaBorde()) == n);
        CHECK(static_cast<std::int32_t>(p->a->BackStyle()) == n);
        CHECK(static_cast<std::int32_t>(p->a->AnchoBorde()) == n);
        CHECK(static_cast<std::int32_t>(p->a->TipoLetra()) == n);
    }
}
