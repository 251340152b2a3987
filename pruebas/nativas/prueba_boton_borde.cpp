// Border lines, tones, effects, rounded outline and focus rectangle.
#include "pruebas/nativas/boton_de_prueba.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::pruebas;

namespace {

/// The border lines of whatever an action draws.
template <class Accion>
Lineas BordeDe(BotonDePrueba& p, Accion accion) {
    p.Tomar();
    accion();
    return p.Tomar({"superficie.Line", "superficie.Contorno"});
}
Lineas EnReposo(BotonDePrueba& p) {
    return BordeDe(p, [&] { p.b->PonExpandir(true); });
}
Lineas AlPulsar(BotonDePrueba& p) {
    return BordeDe(p, [&] { p.b->MouseDown(1, 0, 5, 5); });
}
Lineas AlSoltar(BotonDePrueba& p) {
    return BordeDe(p, [&] { p.b->MouseUp(1, 0, 5, 5); });
}
Lineas AlEntrar(BotonDePrueba& p) {
    return BordeDe(p, [&] { p.Entrar(); });
}
Lineas AlSalirDe(BotonDePrueba& p) {
    return BordeDe(p, [&] { p.Salir(); });
}

} // namespace

TEST_CASE("a raised button is lit from the top left and a pressed one from the bottom right") {
    auto p = Nuevo();
    CHECK(EnReposo(*p) == BordeLevantado);
    CHECK(AlPulsar(*p) == BordeHundido);
    CHECK(AlSoltar(*p) == BordeLevantado);
}

TEST_CASE("the border lies in from the edge by its width and is as wide") {
    auto p = Nuevo();
    p->b->PonAnchoBorde(Tamanio::Grande);
    CHECK(EnReposo(*p) ==
          Lineas{"superficie.Line 3,3 96,3 &HC0C0C0", "superficie.Line 96,3 96,26 &H909090",
                 "superficie.Line 96,26 3,26 &H909090", "superficie.Line 3,26 3,3 &HC0C0C0"});
    CHECK(p->e.pantalla.DrawWidth() == 3);
}

TEST_CASE("all border styles but none and lineal look alike") {
    auto p = Nuevo();
    for (int estilo : {3, 4, 1, 9}) {
        p->b->PonEstilosBord(static_cast<TEstilosB>(estilo));
        CHECK(EnReposo(*p) == BordeLevantado);
        CHECK(AlPulsar(*p) == BordeHundido);
        AlSoltar(*p);
    }
}

TEST_CASE("a lineal border is one line of one grey, pressed or not") {
    auto p = Nuevo();
    p->b->PonEstilosBord(TEstilosB::Lineal);
    const Lineas gris = {"superficie.Line 1,1 98,1 &HB4B4B4", "superficie.Line 98,1 98,28 &HB4B4B4",
                         "superficie.Line 98,28 1,28 &HB4B4B4",
                         "superficie.Line 1,28 1,1 &HB4B4B4"};
    CHECK(EnReposo(*p) == gris);
    CHECK(AlPulsar(*p) == gris);
}

TEST_CASE("a button without a border shows one only while it is pressed") {
    auto p = Nuevo();
    p->b->PonEstilosBord(TEstilosB::Ninguno);
    CHECK(EnReposo(*p).empty());
    CHECK(AlPulsar(*p) == BordeHundido);
    CHECK(AlSoltar(*p).empty());
}

TEST_CASE("BotVisibSobre shows its border only under the mouse or when pressed") {
    auto p = Nuevo();
    p->b->PonEfectoBoton(EfectosBoton::BotVisibSobre);
    CHECK(EnReposo(*p).empty());
    CHECK(AlEntrar(*p) == BordeLevantado);
    CHECK(AlPulsar(*p) == BordeHundido);
    CHECK(AlSoltar(*p) == BordeLevantado);
    CHECK(AlSalirDe(*p).empty());
    // Pressed by key while the mouse is elsewhere.
    CHECK(BordeDe(*p, [&] { p->KeyDown(32); }) == BordeHundido);
    CHECK(BordeDe(*p, [&] { p->KeyUp(32); }).empty());
}

TEST_CASE("BotOculoSobre hides its border under the mouse and when pressed") {
    auto p = Nuevo();
    p->b->PonEfectoBoton(EfectosBoton::BotOculoSobre);
    CHECK(EnReposo(*p) == BordeLevantado);
    CHECK(AlEntrar(*p).empty());
    CHECK(AlPulsar(*p).empty());
    CHECK(AlSoltar(*p).empty());
    CHECK(AlSalirDe(*p) == BordeLevantado);
    CHECK(BordeDe(*p, [&] { p->KeyDown(13); }).empty());
    CHECK(BordeDe(*p, [&] { p->KeyUp(13); }) == BordeLevantado);
}

TEST_CASE("the effects repaint on entry and exit although colours and images are the same") {
    auto p = Nuevo();
    p->b->PonEfectoBoton(EfectosBoton::BotVisibSobre);
    p->Tomar();
    p->Entrar();
    CHECK(p->Tomar({"superficie.Cls"}).size() == 1);
    p->Salir();
    CHECK(p->Tomar({"superficie.Cls"}).size() == 1);
}

TEST_CASE("a rounded button has an outline that follows its shape, tones swapped when pressed") {
    auto p = Nuevo();
    p->b->PonEstilos(TEstilos::REDONDEADO);
    p->b->PonRelX(0.5f);
    p->b->PonRelY(0.5f); // ellipse of the shape: 50 by 15
    CHECK(EnReposo(*p) ==
          Lineas{"superficie.Contorno 1,1 99,29 elipse 48x13 grosor 1 &HC0C0C0 &H909090"});
    CHECK(AlPulsar(*p) ==
          Lineas{"superficie.Contorno 1,1 99,29 elipse 48x13 grosor 1 &H909090 &HC0C0C0"});
    AlSoltar(*p);
    p->b->PonAnchoBorde(Tamanio::Grande);
    CHECK(EnReposo(*p) ==
          Lineas{"superficie.Contorno 3,3 97,27 elipse 44x9 grosor 3 &HC0C0C0 &H909090"});
    p->b->PonEstilosBord(TEstilosB::Lineal);
    CHECK(EnReposo(*p) ==
          Lineas{"superficie.Contorno 3,3 97,27 elipse 44x9 grosor 3 &HB4B4B4 &HB4B4B4"});
    p->b->PonEstilosBord(TEstilosB::Ninguno);
    CHECK(EnReposo(*p).empty());
}

TEST_CASE("any style but the classic one is rounded, and an ellipse is never negative") {
    auto p = Nuevo();
    p->b->PonEstilos(static_cast<TEstilos>(-1));
    p->b->PonRelX(0.02f); // 2 wide: less than two borders
    p->b->PonAnchoBorde(Tamanio::Mediano);
    CHECK(EnReposo(*p) ==
          Lineas{"superficie.Contorno 2,2 98,28 elipse 0x26 grosor 2 &HC0C0C0 &H909090"});
}

TEST_CASE("a rounded button with no room for an outline has none") {
    auto p = Nuevo();
    p->b->PonEstilos(TEstilos::REDONDEADO);
    p->b->PonAnchoBorde(Tamanio::Grande);
    p->e.pantalla.ancho = 6;
    CHECK(BordeDe(*p, [&] { p->b->Resize(); }).empty());
    p->e.pantalla.ancho = 7;
    CHECK(BordeDe(*p, [&] { p->b->Resize(); }).size() == 1);
}

TEST_CASE("Forma is the ellipse of the window's shape, rounded half to even") {
    auto p = Nuevo();
    std::int32_t ancho = -1, alto = -1;
    p->b->Forma(ancho, alto);
    CHECK(ancho == 0);
    CHECK(alto == 0);
    p->b->PonEstilos(TEstilos::REDONDEADO);
    p->e.pantalla.ancho = 20;
    p->b->PonRelX(0.125f); // 2.5
    p->b->PonRelY(0.25f);  // 7.5
    p->b->Forma(ancho, alto);
    CHECK(ancho == 2);
    CHECK(alto == 8);
    const RegionCreada& region = p->e.dibujo.regiones.back();
    CHECK(region.anchoElipse == ancho);
    CHECK(region.altoElipse == alto);
}

TEST_CASE("a curvature beyond every size overflows and leaves the window square") {
    auto p = Nuevo();
    p->b->PonEstilos(TEstilos::REDONDEADO);
    CHECK(ErrorDe([&] { p->b->PonRelX(1e9f); }) == Desborda);
    CHECK(p->b->RelX() == 1e9f);
    std::int32_t ancho = -1, alto = -1;
    p->b->Forma(ancho, alto);
    CHECK(ancho == 0);
    CHECK(alto == 0);
}

TEST_CASE("the border's coordinates are kept in 16 bits") {
    auto p = Nuevo();
    p->e.pantalla.ancho = 32768.4f; // 32767.4 rounds to 32767
    CHECK(EnReposo(*p)[0] == "superficie.Line 1,1 32766,1 &HC0C0C0");
    p->e.pantalla.ancho = 32769;
    CHECK(ErrorDe([&] { p->b->PonExpandir(true); }) == Desborda);
    p->e.pantalla.ancho = 100;
    CHECK(ErrorDe([&] { p->b->PonAnchoBorde(static_cast<Tamanio>(32797)); }) == 0);
    // 29 - 32798 = -32769
    CHECK(ErrorDe([&] { p->b->PonAnchoBorde(static_cast<Tamanio>(32798)); }) == Desborda);
    CHECK(p->b->AnchoBorde() == static_cast<Tamanio>(32798));
    CHECK(ErrorDe([&] { p->b->PonAnchoBorde(static_cast<Tamanio>(-2147483647 - 1)); }) == Desborda);
    CHECK(ErrorDe([&] { p->b->PonAnchoBorde(static_cast<Tamanio>(2147483647)); }) == Desborda);
    // The button can be put right again.
    CHECK(ErrorDe([&] { p->b->PonAnchoBorde(Tamanio::Chico); }) == 0);
    CHECK(EnReposo(*p) == BordeLevantado);
}

TEST_CASE("the focus rectangle is dotted, empty and lies inside the border") {
    EntornoGrabador e;
    e.Nombrar("rectangulo", {"rectFoco"});
    Botonazo boton(e);
    CHECK(e.registro.Tomar({"rectFoco"}) == Lineas{"rectFoco.Visible False",
                                                   "rectFoco.Borde Punteado",
                                                   "rectFoco.FillColor &HFFFFFFFF"});
    boton.InitProperties();
    boton.PonAnchoBorde(Tamanio::Mediano);
    e.registro.Olvidar();
    boton.EnterFocus();
    CHECK(e.registro.Tomar() ==
          Lineas{"rectFoco.Move 5,5 90x20", "rectFoco.Elipse 0x0", "rectFoco.Visible True"});
    boton.ExitFocus();
    CHECK(e.registro.Tomar() == Lineas{"rectFoco.Visible False"});
    e.pantalla.ancho = 4;
    boton.Resize();
    CHECK(e.registro.Tomar({"rectFoco"}) ==
          Lineas{"rectFoco.Move 5,5 0x20", "rectFoco.Elipse 0x0"});
}

TEST_CASE("the focus rectangle of a rounded button is rounded with it") {
    auto p = Nuevo();
    p->b->PonEstilos(TEstilos::REDONDEADO); // 33 by 30
    p->Tomar();
    p->b->EnterFocus();
    CHECK(p->Tomar() ==
          Lineas{"rectFoco.Move 3,3 94x24", "rectFoco.Elipse 27x24", "rectFoco.Visible True"});
}

TEST_CASE("the focus rectangle shows only on an enabled button that wants it") {
    auto p = Nuevo();
    p->b->PonFocoVisible(false);
    p->Tomar();
    p->b->EnterFocus();
    CHECK(p->Tomar().empty());
    p->b->PonFocoVisible(true);
    p->b->PonEnabled(false);
    p->Tomar();
    p->b->EnterFocus();
    CHECK(p->Tomar().empty());
    // Leaving hides it in every case.
    p->b->ExitFocus();
    CHECK(p->Tomar() == Lineas{"rectFoco.Visible False"});
}
