// What the general page shows of the selected buttons, and what it writes back.
#include "paginas/propgeneral.h"
#include "pruebas/nativas/boton_de_prueba.h"
#include "pruebas/nativas/pagina_de_prueba.h"

#include <doctest/doctest.h>

#include <functional>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

using General = PaginaDePrueba<ProPGeneral>;

const char* const Listas[] = {"CobEstilo", "CobEfectos",  "CobAlinText", "cobAlinImag",
                              "comAnchoB", "ComEstBorde", "comTipoLetra"};

/// Nothing in it has the value of a new button.
void Llenar(Botonazo& b) {
    b.PonCaption(u"&Otro");
    b.PonCambioProgrePasos(200);
    b.PonCambioProgre(true);
    b.PonEnabled(false);
    b.PonExpandir(false);
    b.PonAlinImag(Alineaciones::Der_Inf);
    b.PonAlinText(Alineaciones::Izq_Med);
    b.PonEfectoBoton(EfectosBoton::BotVisibSobre);
    b.PonEstilos(TEstilos::REDONDEADO);
    b.PonAnchoBorde(Tamanio::Grande);
    b.PonEstilosBord(TEstilosB::Degradados);
    b.PonFocoVisible(false);
    b.PonFocoConMouse(true);
    b.PonTipoLetra(TLetra::InvesoL);
    b.PonRelX(0.25F);
    b.PonRelY(1.5F);
}

} // namespace

TEST_CASE("every list has its items in order") {
    General g;
    g.Mostrar({});
    CHECK(g.Items("CobEstilo") == "CLASICO REDONDEADO");
    CHECK(g.Items("CobEfectos") == "Boton BotOculoSobre BotVisibSobre");
    CHECK(g.Items("CobAlinText") ==
          "Izq_Sup Izq_Med Izq_Inf Med_Sup Medio Med_Inf Der_Sup Der_Med Der_Inf");
    CHECK(g.Items("cobAlinImag") == g.Items("CobAlinText"));
    CHECK(g.Items("comAnchoB") == "Chico Medio Grande");
    CHECK(g.Items("ComEstBorde") == "Ninguno Normal Lineal Colores Degradados");
    CHECK(g.Items("comTipoLetra") == "Normal Levantado Undido InvesoL InvesoU");
}

TEST_CASE("a new selection fills the lists again, in their order, before anything else") {
    General g;
    auto b = Nuevo();
    g.Mostrar({b->b.get()});
    g.p.SelectionChanged();
    const Lineas lineas = g.Tomar();
    REQUIRE(lineas.size() > std::size(Listas));
    for (std::size_t i = 0; i < std::size(Listas); ++i)
        CHECK(lineas[i] == std::string(Listas[i]) + ".Clear");
    for (const char* lista : Listas)
        CHECK(g.e.LaLista(lista).items.size() < 10);
}

TEST_CASE("a button is shown in order, and the flag is lowered at the end") {
    General g;
    auto b = Nuevo();
    Llenar(*b->b);
    g.e.seleccion = {b->b.get()};
    g.p.SelectionChanged();
    const Lineas lineas =
        g.Tomar({"Texto.Text", "txtCamTiem.Text", "chkProg.V", "ChkEnabled.V", "chkEstConIma.V",
                 "cobAlinImag.L", "CobAlinText.L", "CobEfectos.L", "CobEstilo.L", "comAnchoB.L",
                 "ComEstBorde.L", "chkFocoVisi.V", "chkFocConMouse.V", "comTipoLetra.L",
                 "txtRelX.Text", "txtRelY.Text", "Changed False"});
    CHECK(lineas == Lineas{"Texto.Text \"&Otro\"", "txtCamTiem.Text \"200\"", "chkProg.Value 1",
                           "ChkEnabled.Value 0", "chkEstConIma.Value 0", "cobAlinImag.ListIndex 8",
                           "CobAlinText.ListIndex 1", "CobEfectos.ListIndex 2",
                           "CobEstilo.ListIndex 1",
                           // The refresh of the shape finds the empty texts of a new page.
                           "txtRelX.Text \"0\"", "txtRelY.Text \"0\"", "comAnchoB.ListIndex 2",
                           "ComEstBorde.ListIndex 4", "chkFocoVisi.Value 0",
                           "chkFocConMouse.Value 1", "comTipoLetra.ListIndex 3",
                           "txtRelX.Text \"0,25\"", "txtRelY.Text \"1,5\"", "Changed False"});
    CHECK_FALSE(g.e.Changed());
}

TEST_CASE("filling the page raises the flag, opening it leaves it down") {
    General g;
    auto b = Nuevo();
    g.e.seleccion = {b->b.get()};
    g.p.SelectionChanged();
    const Lineas banderas = g.Tomar({"Changed"});
    REQUIRE(banderas.size() > 1);
    CHECK(banderas.front() == "Changed True");
    CHECK(banderas.back() == "Changed False");
    CHECK_FALSE(g.e.Changed());
}

TEST_CASE("opening the page writes nothing to the button") {
    General g;
    auto b = Nuevo();
    g.Mostrar({b->b.get()});
    CHECK(b->Tomar({"PC"}).empty());
}

TEST_CASE("of several buttons the last one is shown, and all get the page") {
    General g;
    auto uno = Nuevo();
    auto dos = Nuevo();
    uno->b->PonCaption(u"Uno");
    Llenar(*dos->b);
    g.Mostrar({uno->b.get(), dos->b.get()});
    CHECK(g.TextoDe("Texto") == u"&Otro");
    CHECK(g.Indice("comAnchoB") == 2);
    g.e.ElCampo("Texto").Pegar(u"Los dos");
    g.p.ApplyChanges();
    for (const Puntero& b : {std::ref(uno), std::ref(dos)}) {
        CHECK(b->b->Caption() == u"Los dos");
        CHECK(b->b->AnchoBorde() == Tamanio::Grande);
        CHECK(b->b->RelX() == 0.25F);
        CHECK(b->b->CambioProgrePasos() == 200);
    }
}

TEST_CASE("applying writes every property once, in order") {
    General g;
    auto b = Nuevo();
    auto modelo = Nuevo();
    Llenar(*modelo->b);
    g.Mostrar({modelo->b.get()});
    g.e.seleccion = {b->b.get()};
    b->Tomar();
    g.p.ApplyChanges();
    CHECK(b->Tomar({"PC"}) == Lineas{"PC Enabled", "PC Caption", "PC Expandir", "PC CambioProgre",
                                     "PC RelX", "PC RelY", "PC Estilos", "PC AlinImag",
                                     "PC AlinText", "PC EfectoBoton", "PC AnchoBorde",
                                     "PC EstilosBord", "PC FocoVisible", "PC FocoConMouse",
                                     "PC TipoLetra", "PC CambioProgrePasos"});
    CHECK_FALSE(b->b->Enabled());
    CHECK(b->b->Caption() == u"&Otro");
    CHECK_FALSE(b->b->Expandir());
    CHECK(b->b->CambioProgre());
    CHECK(b->b->RelX() == 0.25F);
    CHECK(b->b->RelY() == 1.5F);
    CHECK(b->b->Estilos() == TEstilos::REDONDEADO);
    CHECK(b->b->AlinImag() == Alineaciones::Der_Inf);
    CHECK(b->b->AlinText() == Alineaciones::Izq_Med);
    CHECK(b->b->EfectoBoton() == EfectosBoton::BotVisibSobre);
    CHECK(b->b->AnchoBorde() == Tamanio::Grande);
    CHECK(b->b->EstilosBord() == TEstilosB::Degradados);
    CHECK_FALSE(b->b->FocoVisible());
    CHECK(b->b->FocoConMouse());
    CHECK(b->b->TipoLetra() == TLetra::InvesoL);
    CHECK(b->b->CambioProgrePasos() == 200);
    CHECK(g.Tomar() == Lineas{"Changed False"});
}

TEST_CASE("each item of a list stands for the value of its place") {
    struct Caso {
        const char* lista;
        int primero; // value of the first item
        std::function<std::int32_t(const Botonazo&)> leer;
    };
    const Caso casos[] = {
        {"CobEstilo", 0, [](const Botonazo& b) { return std::int32_t(b.Estilos()); }},
        {"CobEfectos", 0, [](const Botonazo& b) { return std::int32_t(b.EfectoBoton()); }},
        {"CobAlinText", 0, [](const Botonazo& b) { return std::int32_t(b.AlinText()); }},
        {"cobAlinImag", 0, [](const Botonazo& b) { return std::int32_t(b.AlinImag()); }},
        {"comAnchoB", 1, [](const Botonazo& b) { return std::int32_t(b.AnchoBorde()); }},
        {"ComEstBorde", 0, [](const Botonazo& b) { return std::int32_t(b.EstilosBord()); }},
        {"comTipoLetra", 0, [](const Botonazo& b) { return std::int32_t(b.TipoLetra()); }},
    };
    for (const Caso& caso : casos) {
        General g;
        auto b = Nuevo();
        g.Mostrar({b->b.get()});
        const auto cuantos = static_cast<int>(g.e.LaLista(caso.lista).items.size());
        for (int i = 0; i < cuantos; ++i) {
            INFO(caso.lista << " item " << i);
            g.e.LaLista(caso.lista).Pulsar(i);
            g.p.ApplyChanges();
            CHECK(caso.leer(*b->b) == i + caso.primero);
            g.p.SelectionChanged();
            CHECK(g.Indice(caso.lista) == i);
        }
    }
}

TEST_CASE("each check box shows and writes its own property") {
    struct Caso {
        const char* casilla;
        std::function<void(Botonazo&, bool)> poner;
        std::function<bool(const Botonazo&)> leer;
    };
    const Caso casos[] = {
        {"chkProg", [](Botonazo& b, bool v) { b.PonCambioProgre(v); },
         [](const Botonazo& b) { return b.CambioProgre(); }},
        {"ChkEnabled", [](Botonazo& b, bool v) { b.PonEnabled(v); },
         [](const Botonazo& b) { return b.Enabled(); }},
        {"chkEstConIma", [](Botonazo& b, bool v) { b.PonExpandir(v); },
         [](const Botonazo& b) { return b.Expandir(); }},
        {"chkFocoVisi", [](Botonazo& b, bool v) { b.PonFocoVisible(v); },
         [](const Botonazo& b) { return b.FocoVisible(); }},
        {"chkFocConMouse", [](Botonazo& b, bool v) { b.PonFocoConMouse(v); },
         [](const Botonazo& b) { return b.FocoConMouse(); }},
    };
    for (const Caso& caso : casos) {
        INFO(caso.casilla);
        for (bool valor : {false, true}) {
            General g;
            auto b = Nuevo();
            caso.poner(*b->b, valor);
            g.Mostrar({b->b.get()});
            CHECK(g.Marca(caso.casilla) == (valor ? 1 : 0));
            g.e.UnaCasilla(caso.casilla).Pulsar();
            CHECK(g.e.Changed());
            g.p.ApplyChanges();
            CHECK(caso.leer(*b->b) == !valor);
        }
        General g;
        auto b = Nuevo();
        caso.poner(*b->b, true);
        g.Mostrar({b->b.get()});
        g.e.UnaCasilla(caso.casilla).PonValue(2);
        g.p.ApplyChanges();
        CHECK_FALSE(caso.leer(*b->b));
    }
}
