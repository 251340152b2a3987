// Ends, handlers that interfere, sizes beyond what coordinates hold.
#include "pruebas/nativas/boton_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

bool NadaCorre(BotonDePrueba& p) {
    return !p.e.ElTemporizador("Timer").Enabled() && !p.e.ElTemporizador("TimProg").Enabled();
}

} // namespace

TEST_CASE("the end stops both timers and lets go of the pictures, as often as it comes") {
    auto p = Nuevo();
    p->b->PonCambioProgre(true);
    p->b->PonCambioProgrePasos(9);
    auto normal = std::make_shared<ImagenGrabada>("normal", 1, 1);
    auto sobre = std::make_shared<ImagenGrabada>("sobre", 1, 1);
    p->b->PonImagNormal(normal);
    p->b->PonImagSobre(sobre);
    p->Entrar();
    REQUIRE(p->e.ElTemporizador("Timer").Enabled());
    REQUIRE(p->e.ElTemporizador("TimProg").Enabled());
    p->Tomar();
    p->b->Terminate();
    CHECK(p->Tomar() ==
          Lineas{"Timer.Enabled False", "TimProg.Enabled False", "AuxImagen.Picture ninguna"});
    CHECK(normal.use_count() == 1);
    CHECK(sobre.use_count() == 1);
    p->b->Terminate();
    CHECK(NadaCorre(*p));
}

TEST_CASE("a button can end without having been anything") {
    BotonDePrueba p;
    p.b->Terminate();
    CHECK(NadaCorre(p));
}

TEST_CASE("no timer starts again after the end") {
    auto p = Nuevo();
    p->b->PonCambioProgre(true);
    p->b->PonCambioProgrePasos(9);
    p->b->PonColorFondoSobre(Color(1));
    p->b->Terminate();
    p->Entrar();
    p->b->PonExpandir(true);
    CHECK(NadaCorre(*p));
}

TEST_CASE("a button may be ended from any of its events") {
    struct Caso {
        const char* nombre;
        void (*conectar)(Botonazo&);
        void (*provocar)(BotonDePrueba&);
    };
    const Caso casos[] = {
        {"Click", [](Botonazo& b) { b.eventos.Click.Conectar([&b] { b.Terminate(); }); },
         [](BotonDePrueba& p) {
             p.KeyDown(32);
             p.KeyUp(32);
         }},
        {"PresTecla",
         [](Botonazo& b) { b.eventos.PresTecla.Conectar([&b](auto&...) { b.Terminate(); }); },
         [](BotonDePrueba& p) { p.KeyDown(65); }},
        {"TocoTecla",
         [](Botonazo& b) { b.eventos.TocoTecla.Conectar([&b](auto&...) { b.Terminate(); }); },
         [](BotonDePrueba& p) { p.KeyPress(65); }},
        {"SoltoTecla",
         [](Botonazo& b) { b.eventos.SoltoTecla.Conectar([&b](auto&...) { b.Terminate(); }); },
         [](BotonDePrueba& p) { p.KeyUp(65); }},
        {"MouseSale", [](Botonazo& b) { b.eventos.MouseSale.Conectar([&b] { b.Terminate(); }); },
         [](BotonDePrueba& p) {
             p.Entrar();
             p.Salir();
         }},
        {"MouseDown",
         [](Botonazo& b) { b.eventos.MouseDown.Conectar([&b](auto&...) { b.Terminate(); }); },
         [](BotonDePrueba& p) { p.b->MouseDown(1, 0, 1, 1); }},
        {"MouseMove",
         [](Botonazo& b) { b.eventos.MouseMove.Conectar([&b](auto&...) { b.Terminate(); }); },
         [](BotonDePrueba& p) { p.Entrar(); }},
        {"MouseUp",
         [](Botonazo& b) { b.eventos.MouseUp.Conectar([&b](auto&...) { b.Terminate(); }); },
         [](BotonDePrueba& p) { p.b->MouseUp(1, 0, 1, 1); }},
        {"Paint", [](Botonazo& b) { b.eventos.Paint.Conectar([&b] { b.Terminate(); }); },
         [](BotonDePrueba& p) { p.b->Paint(); }},
        {"Resize", [](Botonazo& b) { b.eventos.Resize.Conectar([&b] { b.Terminate(); }); },
         [](BotonDePrueba& p) { p.b->Resize(); }},
    };
    for (const Caso& caso : casos) {
        INFO(caso.nombre);
        auto p = Nuevo();
        p->b->PonImagNormal(ImagenDe("normal"));
        p->b->PonImagSobre(ImagenDe("sobre"));
        caso.conectar(*p->b);
        caso.provocar(*p);
        CHECK(p->b->ImagNormal() == nullptr);
        CHECK(NadaCorre(*p));
    }
}

TEST_CASE("a button ended while it shows a step stays ended") {
    auto p = Nuevo();
    p->b->PonCambioProgre(true);
    p->b->PonCambioProgrePasos(9);
    p->b->PonColorFondoSobre(Color(1));
    p->b->PonImagSobre(ImagenDe("sobre"));
    p->e.pantalla.alRefrescar = [&] { p->b->Terminate(); };
    p->Entrar();
    CHECK(NadaCorre(*p));
}

TEST_CASE("a button ended while it takes the focus does nothing more") {
    auto p = Nuevo();
    p->b->PonFocoConMouse(true);
    p->e.pantalla.alEnfocar = [&] { p->b->Terminate(); };
    p->Tomar();
    p->Entrar();
    CHECK(p->Eventos().empty());
    CHECK(NadaCorre(*p));
}

TEST_CASE("a picture replaced while it is shown lives until the drawing ends") {
    auto p = Nuevo();
    p->b->PonCambioProgre(true);
    p->b->PonImagNormal(ImagenDe("vieja"));
    p->e.pantalla.alRefrescar = [&] {
        p->e.pantalla.alRefrescar = nullptr;
        p->b->PonImagNormal(ImagenDe("nueva"));
    };
    p->Tomar();
    p->b->PonExpandir(true);
    CHECK(p->Tomar({"AuxImagen.PaintPicture"}) == Lineas{"AuxImagen.PaintPicture vieja 1,1 98x28",
                                                         "AuxImagen.PaintPicture nueva 1,1 98x28"});
}

TEST_CASE("an event may change the very property it comes from") {
    auto p = Nuevo();
    p->e.alCambiar = [&](VistaTexto clave) {
        if (clave == u"ColorFondo" && p->b->ColorFondo() == Color(1))
            p->b->PonColorFondo(Color(2));
        if (clave == u"ColorLetra" && p->b->ColorLetra() == Color(1))
            p->b->PonColorLetra(Color(2));
    };
    p->b->PonColorFondo(Color(1));
    CHECK(p->e.pantalla.BackColor() == Color(2));
    p->b->PonColorLetra(Color(1));
    CHECK(p->e.LaEtiqueta("lblTitulo").ForeColor() == Color(2));
}

TEST_CASE("a handler may resize the button from its own resize") {
    auto p = Nuevo();
    int veces = 0;
    p->b->eventos.Resize.Conectar([&] {
        if (++veces < 3) {
            p->e.pantalla.ancho += 10;
            p->b->Resize();
        }
    });
    p->b->Resize();
    CHECK(veces == 3);
    CHECK(p->e.ElCuadro("AuxImagen").ancho == 120);
}

TEST_CASE("what a size beyond 16 bits makes impossible is an overflow, and passes") {
    auto p = Nuevo();
    p->b->PonAlinText(Alineaciones::Der_Sup);
    p->e.pantalla.ancho = 40000;
    CHECK(ErrorDe([&] { p->b->Resize(); }) == Desborda);
    CHECK(ErrorDe([&] { p->b->PonCaption(u"x"); }) == Desborda);
    p->e.pantalla.ancho = 100;
    p->Tomar();
    p->b->Resize();
    CHECK(p->Eventos() == Lineas{"evento Resize"});
}

TEST_CASE("a button without size draws without errors") {
    auto p = Nuevo();
    p->b->PonImagNormal(ImagenDe("normal"));
    p->b->PonEstilosRell(TEstilosR::D_Pirami);
    p->b->PonColorDegradeN(u"0*255");
    p->e.pantalla.ancho = p->e.pantalla.alto = 0;
    CHECK(ErrorDe([&] { p->b->Resize(); }) == 0);
    p->b->PonEstilos(TEstilos::REDONDEADO);
    p->b->PonEnabled(false);
    CHECK(ErrorDe([&] { p->b->Resize(); }) == 0);
}

TEST_CASE("a button without a window draws into its image and shapes nothing") {
    BotonDePrueba p;
    p.e.pantalla.ventana = 0;
    p.b->InitProperties();
    p.b->Resize();
    CHECK(p.e.dibujo.puestas.back().ventana == 0);
    CHECK_FALSE(p.Tomar({"superficie.Line"}).empty());
}

TEST_CASE("an error from the container's notification leaves the value stored") {
    auto p = Nuevo();
    p->e.alCambiar = [](VistaTexto) { Lanzar(NumeroError::PermisoDenegado); };
    CHECK(ErrorDe([&] { p->b->PonExpandir(false); }) ==
          static_cast<std::int32_t>(NumeroError::PermisoDenegado));
    CHECK_FALSE(p->b->Expandir());
}
