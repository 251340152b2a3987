// Ends and handlers that interfere with a labelled text box.
#include "pruebas/nativas/caja_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

using Prueba = CajaDePrueba<Tbox>;

TEST_CASE("the end stops the poll, as often as it comes") {
    auto p = NuevaCaja<Tbox>();
    p->Entrar();
    REQUIRE(p->sondeo().Enabled());
    p->Tomar();
    p->c->Terminate();
    CHECK(p->Tomar() == Lineas{"Timer.Enabled False"});
    p->c->Terminate();
    CHECK_FALSE(p->sondeo().Enabled());
}

TEST_CASE("a text box can end without having been anything") {
    Prueba p;
    p.c->Terminate();
    CHECK_FALSE(p.sondeo().Enabled());
}

TEST_CASE("no poll starts again after the end") {
    auto p = NuevaCaja<Tbox>();
    p->c->Terminate();
    p->Entrar();
    p->Enfocar();
    p->Desenfocar();
    CHECK_FALSE(p->sondeo().Enabled());
    CHECK(p->Eventos().empty());
}

TEST_CASE("a text box may be ended from any of its events") {
    struct Caso {
        const char* nombre;
        void (*conectar)(Tbox&);
        void (*provocar)(Prueba&);
    };
    const Caso casos[] = {
        {"Change", [](Tbox& c) { c.eventos.Change.Conectar([&c] { c.Terminate(); }); },
         [](Prueba& p) { p.Teclear(u"a"); }},
        {"Click", [](Tbox& c) { c.eventos.Click.Conectar([&c] { c.Terminate(); }); },
         [](Prueba& p) { p.c->Click(); }},
        {"MouseSale", [](Tbox& c) { c.eventos.MouseSale.Conectar([&c] { c.Terminate(); }); },
         [](Prueba& p) {
             p.e.RatonFuera();
             p.sondeo().Tic();
         }},
        {"MouseDown",
         [](Tbox& c) { c.eventos.MouseDown.Conectar([&c](auto&...) { c.Terminate(); }); },
         [](Prueba& p) { p.c->MouseDown(1, 0, 1, 1); }},
        {"MouseMove",
         [](Tbox& c) { c.eventos.MouseMove.Conectar([&c](auto&...) { c.Terminate(); }); },
         [](Prueba& p) { p.Entrar(); }},
        {"PresTecla",
         [](Tbox& c) { c.eventos.PresTecla.Conectar([&c](auto&...) { c.Terminate(); }); },
         [](Prueba& p) {
             std::int16_t tecla = 65;
             p.campo().oyente->KeyDown(tecla, 0);
         }},
        {"TocoTecla",
         [](Tbox& c) { c.eventos.TocoTecla.Conectar([&c](auto&...) { c.Terminate(); }); },
         [](Prueba& p) { p.Teclear(u"a"); }},
        {"SoltoTecla",
         [](Tbox& c) { c.eventos.SoltoTecla.Conectar([&c](auto&...) { c.Terminate(); }); },
         [](Prueba& p) {
             std::int16_t tecla = 65;
             p.campo().oyente->KeyUp(tecla, 0);
         }},
        {"Paint", [](Tbox& c) { c.eventos.Paint.Conectar([&c] { c.Terminate(); }); },
         [](Prueba& p) { p.c->Paint(); }},
        {"Resize", [](Tbox& c) { c.eventos.Resize.Conectar([&c] { c.Terminate(); }); },
         [](Prueba& p) { p.c->Resize(); }},
    };
    for (const Caso& caso : casos) {
        INFO(caso.nombre);
        auto p = NuevaCaja<Tbox>();
        p->Entrar();
        REQUIRE(p->sondeo().Enabled());
        caso.conectar(*p->c);
        caso.provocar(*p);
        CHECK_FALSE(p->sondeo().Enabled());
    }
}

TEST_CASE("a text box ended while its field takes the focus tells nothing more") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonFocoConMouse(true);
    p->e.alEnfocarCampo = [&] { p->c->Terminate(); };
    p->Tomar();
    p->Entrar();
    CHECK(p->Eventos().empty());
    CHECK_FALSE(p->sondeo().Enabled());
}

TEST_CASE("a text box disabled while its field takes the focus tells nothing more") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonFocoConMouse(true);
    p->e.alEnfocarCampo = [&] { p->c->PonEnabled(false); };
    p->Tomar();
    p->Entrar();
    CHECK(p->Eventos().empty());
    CHECK_FALSE(p->sondeo().Enabled());
}

TEST_CASE("a move that arrives while the field takes the focus does not take it again") {
    auto p = NuevaCaja<Tbox>();
    p->c->PonFocoConMouse(true);
    p->e.alEnfocarCampo = [&] {
        p->e.alEnfocarCampo = nullptr;
        p->c->MouseMove(0, 0, 1, 1);
    };
    p->Tomar();
    p->Entrar();
    CHECK(p->Tomar({"txtTexto.SetFocus", "evento"}) ==
          Lineas{"txtTexto.SetFocus", "evento MouseMove 0 0 1 1", "evento MouseMove 0 0 5 6"});
}

TEST_CASE("a text box may be ended while the host attends to what is pending") {
    auto p = NuevaCaja<Tbox>();
    p->Entrar();
    p->e.alAtender = [&] { p->c->Terminate(); };
    p->Teclear(u"a");
    CHECK_FALSE(p->sondeo().Enabled());
    CHECK(p->c->Text() == u"a");
}

TEST_CASE("a handler of the change may assign another text") {
    auto p = NuevaCaja<Tbox>();
    p->c->eventos.Change.Conectar([&] {
        if (p->c->Text() != u"fin")
            p->c->PonText(u"fin");
    });
    p->Tomar();
    p->c->PonText(u"a");
    CHECK(p->c->Text() == u"fin");
    CHECK(p->Tomar({"PC"}) == Lineas{"PC Text", "PC Text"});
}

TEST_CASE("a handler may change the kind of text while a character is told") {
    auto p = NuevaCaja<Tbox>();
    p->c->eventos.TocoTecla.Conectar([&](auto&) {
        p->c->PonTipoTexto(TText::Mayuscula);
        p->c->PonEnabled(true);
        p->c->PonText(u"x");
        p->c->PonAlinTBox(Alineaciones::Der_Med);
    });
    p->Teclear(u"a");
    CHECK(p->c->Text().size() == 2);
    CHECK(p->c->TipoTexto() == TText::Mayuscula);
}

TEST_CASE("a handler may resize the control from its own resize") {
    auto p = NuevaCaja<Tbox>();
    int veces = 0;
    p->c->eventos.Resize.Conectar([&] {
        if (++veces < 3)
            p->Tamano(p->e.pantalla.ancho + 10, 30);
    });
    p->Tomar();
    p->c->Resize();
    CHECK(veces == 3);
    CHECK(p->Tomar({"txtTexto.Move"}).back() == "txtTexto.Move 4,1 112x12");
}

TEST_CASE("a mouse told to have left may come back at once") {
    auto p = NuevaCaja<Tbox>();
    p->Entrar();
    p->e.RatonFuera();
    p->c->eventos.MouseSale.Conectar([&] { p->Entrar(); });
    p->sondeo().Tic();
    CHECK(p->sondeo().Enabled());
}

TEST_CASE("an error from the container's notification leaves the value stored") {
    auto p = NuevaCaja<Tbox>();
    p->e.alCambiar = [](VistaTexto) { Lanzar(NumeroError::PermisoDenegado); };
    const int denegado = static_cast<int>(NumeroError::PermisoDenegado);
    CHECK(ErrorDe([&] { p->c->PonText(u"a"); }) == denegado);
    CHECK(p->c->Text() == u"a");
    CHECK(ErrorDe([&] { p->c->PonTipoSombra(TSombra::Gris); }) == denegado);
    CHECK(p->c->TipoSombra() == TSombra::Gris);
    // An assignment that failed is over: what is typed now is the user's.
    p->e.alCambiar = nullptr;
    CHECK(ErrorDe([&] { p->Teclear(u"b"); }) == 0);
}

TEST_CASE("an error of an event's handler leaves the control usable") {
    auto p = NuevaCaja<Tbox>();
    p->c->eventos.MouseSale.Conectar([] { Lanzar(NumeroError::LlamadaNoValida); });
    p->Entrar();
    p->e.RatonFuera();
    CHECK(ErrorDe([&] { p->sondeo().Tic(); }) == static_cast<int>(NumeroError::LlamadaNoValida));
    CHECK_FALSE(p->sondeo().Enabled());
    p->Entrar();
    CHECK(p->sondeo().Enabled());
}

TEST_CASE("a control without size lays out without errors") {
    auto p = NuevaCaja<Tbox>();
    CHECK(ErrorDe([&] { p->Tamano(0, 0); }) == 0);
}
