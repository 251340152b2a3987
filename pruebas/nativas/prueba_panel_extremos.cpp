// Ends, and handlers that interfere.
#include "pruebas/nativas/panel_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

TEST_CASE("a panel can end as often as it comes, also without having been anything") {
    PanelDePrueba p;
    p.a->Terminate();
    p.a->Terminate();
    CHECK(p.Tomar().empty());
}

TEST_CASE("a panel still answers after its end") {
    auto p = PanelNuevo();
    p->a->Terminate();
    p->a->PonTipoLetra(TLetra::InvesoL);
    p->a->PonColorDegrade(u"255*0");
    p->a->PonEstilosRell(TEstilosR::D_Hori);
    CHECK(p->Tomar({"GradientFill"}).size() == 1);
}

TEST_CASE("a panel may be ended and changed from any of its events") {
    struct Caso {
        const char* nombre;
        void (*conectar)(Area&);
        void (*provocar)(PanelDePrueba&);
    };
    static constexpr auto acabar = [](Area& a) {
        a.PonEnabled(false);
        a.PonCaption(u"fin");
        a.Terminate();
    };
    const Caso casos[] = {
        {"Click", [](Area& a) { a.eventos.Click.Conectar([&a] { acabar(a); }); },
         [](PanelDePrueba& p) {
             p.KeyDown(32);
             p.KeyUp(32);
         }},
        {"PresTecla", [](Area& a) { a.eventos.PresTecla.Conectar([&a](auto&...) { acabar(a); }); },
         [](PanelDePrueba& p) { p.KeyDown(65); }},
        {"TocoTecla", [](Area& a) { a.eventos.TocoTecla.Conectar([&a](auto&...) { acabar(a); }); },
         [](PanelDePrueba& p) { p.KeyPress(65); }},
        {"SoltoTecla",
         [](Area& a) { a.eventos.SoltoTecla.Conectar([&a](auto&...) { acabar(a); }); },
         [](PanelDePrueba& p) { p.KeyUp(65); }},
        {"MouseDown", [](Area& a) { a.eventos.MouseDown.Conectar([&a](auto&...) { acabar(a); }); },
         [](PanelDePrueba& p) { p.a->MouseDown(1, 0, 1, 1); }},
        {"MouseMove", [](Area& a) { a.eventos.MouseMove.Conectar([&a](auto&...) { acabar(a); }); },
         [](PanelDePrueba& p) { p.a->MouseMove(1, 0, 1, 1); }},
        {"MouseUp", [](Area& a) { a.eventos.MouseUp.Conectar([&a](auto&...) { acabar(a); }); },
         [](PanelDePrueba& p) { p.a->MouseUp(1, 0, 1, 1); }},
        {"Paint", [](Area& a) { a.eventos.Paint.Conectar([&a] { acabar(a); }); },
         [](PanelDePrueba& p) { p.a->Paint(); }},
        {"Resize", [](Area& a) { a.eventos.Resize.Conectar([&a] { acabar(a); }); },
         [](PanelDePrueba& p) { p.a->Resize(); }},
    };
    for (const Caso& caso : casos) {
        INFO(caso.nombre);
        auto p = PanelNuevo();
        caso.conectar(*p->a);
        caso.provocar(*p);
        CHECK_FALSE(p->a->Enabled());
        CHECK(p->a->Caption() == u"fin");
        CHECK(p->Eventos().empty());
    }
}

TEST_CASE("a panel ended by the news of its size marks nothing more") {
    auto p = PanelNuevo();
    p->e.contenidos.resize(1);
    p->e.modoUsuario = false;
    p->a->eventos.Resize.Conectar([&] { p->a->Terminate(); });
    p->a->Resize();
    CHECK(p->Tomar({"Cuadra"}).empty());
}

TEST_CASE("a container may assign the very property it is told of") {
    auto p = PanelNuevo();
    p->e.alCambiar = [&](VistaTexto clave) {
        if (clave == u"ColorFondo")
            p->a->PonColorFondo(Color(2));
        if (clave == u"Enabled")
            p->a->PonEnabled(true);
        if (clave == u"BackStyle")
            p->a->PonBackStyle(TBack::Opaco);
        if (clave == u"AlinText")
            p->a->PonAlinText(Alineaciones::Der_Inf);
        if (clave == u"ColorLetra" && p->a->ColorLetra() != Color(3))
            p->a->PonColorLetra(Color(3));
        if (clave == u"EstilosRell")
            p->a->PonEstilosRell(TEstilosR::Solido);
    };
    p->a->PonColorFondo(Color(1));
    p->a->PonEnabled(false);
    p->a->PonBackStyle(TBack::Transparente);
    p->a->PonAlinText(Alineaciones::Izq_Sup);
    p->a->PonTipoLetra(TLetra::InvesoL);
    p->a->PonColorLetra(Color(1));
    CHECK(p->a->ColorFondo() == Color(2));
    CHECK(p->e.pantalla.BackColor() == Color(2));
    CHECK(p->a->Enabled());
    CHECK(p->e.LaEtiqueta("lblTitulo").Enabled());
    CHECK(p->e.pantalla.BackStyle() == 1);
    CHECK(p->e.LaEtiqueta("lblTitulo").Left() == 98);
    CHECK(p->e.LaEtiqueta("LblSombra").ForeColor() == Color(0xFFFFFC));
    p->Tomar();
    p->a->PonEstilosRell(TEstilosR::D_Hori);
    CHECK(p->Tomar({"superficie.Refresh"}).empty());
}

TEST_CASE("a panel may be ended or changed while a gradient is shown") {
    auto p = PanelNuevo();
    p->a->PonColorDegrade(u"1*2");
    bool primera = true;
    p->e.pantalla.alRefrescar = [&] {
        if (!std::exchange(primera, false))
            return;
        p->a->PonAlinText(Alineaciones::Izq_Sup);
        p->a->PonEstilosRell(TEstilosR::Solido);
        p->a->Terminate();
    };
    p->a->PonEstilosRell(TEstilosR::D_Vert);
    CHECK(p->a->EstilosRell() == TEstilosR::Solido);
    // The caption stands where the last word put it.
    CHECK(p->e.LaEtiqueta("lblTitulo").Left() == 3);
    CHECK(p->e.LaEtiqueta("lblTitulo").Top() == 1);
}
