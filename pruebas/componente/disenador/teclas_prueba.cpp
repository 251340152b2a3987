// The designer's keys.
#include "pruebas/componente/disenador/banco.h"

using namespace disenador;

TEST_CASE("Arrows move by the grid, with CTRL by a pixel, and with shift they size") {
    Banco b;
    b.Poner(DosBotones);
    b.Elegir(L"Uno");
    const int paso = b.mesa->Paso();
    b.Tecla(VK_RIGHT);
    b.Tecla(VK_DOWN, {VK_CONTROL});
    RECT r = b.Control(L"Uno")->Rectangulo();
    CHECK(r.left == 16 + paso);
    CHECK(r.top == 17);
    b.Tecla(VK_RIGHT, {VK_SHIFT});
    b.Tecla(VK_UP, {VK_SHIFT, VK_CONTROL});
    r = b.Control(L"Uno")->Rectangulo();
    CHECK(r.right - r.left == 80 + paso);
    CHECK(r.bottom - r.top == 31);
}

TEST_CASE("The steps of the arrows are undone at once") {
    Banco b;
    b.Poner(DosBotones);
    const std::string antes = b.Texto();
    b.Elegir(L"Uno");
    for (int i = 0; i < 5; ++i)
        b.Tecla(VK_RIGHT);
    b.Tecla('Z', {VK_CONTROL});
    CHECK(b.Texto() == antes);
    CHECK(b.Elegidos() == "Uno ");
}

TEST_CASE("Copy, cut, paste, delete, undo and redo have their keys") {
    Banco b;
    b.Poner(DosBotones);
    const std::string antes = b.Lugares();
    b.Tecla('A', {VK_CONTROL});
    CHECK(b.Elegidos() == "Uno Dos ");
    b.Tecla('X', {VK_CONTROL});
    CHECK(b.Lugares().empty());
    b.Tecla('V', {VK_CONTROL});
    CHECK(b.Lugares() == antes);
    b.Tecla(VK_DELETE);
    CHECK(b.Lugares().empty());
    b.Tecla('Z', {VK_CONTROL});
    CHECK(b.Lugares() == antes);
    b.Tecla('Y', {VK_CONTROL});
    CHECK(b.Lugares().empty());
}

TEST_CASE("TAB goes through the controls, and escape out to the panel and to none") {
    Banco b;
    b.Poner(DosBotones + UnPanel);
    b.Tecla(VK_TAB);
    CHECK(b.Elegidos() == "Uno ");
    b.Tecla(VK_TAB, {VK_SHIFT});
    CHECK(b.Elegidos() == "Dentro ");
    b.Tecla(VK_ESCAPE);
    CHECK(b.Elegidos() == "Panel ");
    b.Tecla(VK_ESCAPE);
    CHECK(b.Elegidos().empty());
}

TEST_CASE("F5 runs and stops, F4 goes to the properties and F6 around") {
    Banco b;
    b.Poner(DosBotones);
    CHECK(b.Tecla(VK_F4));
    CHECK(GetFocus() == b.pagina->Lista()->Ventana());
    CHECK(b.TeclaEn(b.pagina->Lista()->Ventana(), VK_F6));
    CHECK(GetFocus() != b.pagina->Lista()->Ventana());
    CHECK(b.Tecla(VK_F5));
    CHECK(b.mesa->Ejecutando());
    CHECK(b.Tecla(VK_F5));
    CHECK_FALSE(b.mesa->Ejecutando());
}

TEST_CASE("Undo works from the list of properties too") {
    Banco b;
    b.Poner(DosBotones);
    b.Elegir(L"Uno");
    REQUIRE(b.Escribir(L"Caption", L"Nuevo"));
    SetFocus(b.pagina->Lista()->Ventana());
    CHECK(b.TeclaEn(b.pagina->Lista()->Ventana(), 'Z', {VK_CONTROL}));
    CHECK(b.Valor(L"Caption").empty());
}
