// The mouse: entering, leaving, pressing, and what the button says of it.
#include "pruebas/cada.h"
#include "pruebas/componente/vivo/banco.h"

using namespace vivo;
using pincela::pruebas::Cada;

namespace {

constexpr COLORREF Rojo = RGB(255, 0, 0), Verde = RGB(0, 255, 0);

/// Red, green under the mouse, with a caption in the middle.
struct BancoDeColores : Banco {
    BancoDeColores() {
        Poner(L"ColorFondo", static_cast<long>(Rojo));
        Poner(L"ColorFondoSobre", static_cast<long>(Verde));
        Poner(L"Caption", L"XXXXXX");
        Esperar();
        Olvidar();
    }
};

} // namespace

TEST_CASE(
    "The first move over the button shows the look under the mouse, and leaving takes it back") {
    BancoDeColores b;
    CHECK(b.Centro() == Rojo);
    b.Entrar(5, 5);
    CHECK(b.Centro() == Verde);
    CHECK(b.Ultimo("MouseMove") == "MouseMove 0 0 5 5");
    CHECK(b.Veces("MouseSale") == 0);
    b.Salir();
    CHECK(b.Centro() == Rojo);
    CHECK(b.Veces("MouseSale") == 1);
}

TEST_CASE("MouseSale comes once for each time the mouse leaves, and not while it moves inside") {
    BancoDeColores b;
    for (int vuelta = 0; vuelta < 3; ++vuelta) {
        for (int x = 2; x < 118; x += 20)
            b.Entrar(x, 3);
        b.Salir();
    }
    CHECK(b.Veces("MouseSale") == 3);
    CHECK(b.Veces("MouseMove") >= 18);
}

TEST_CASE("Over the caption the coordinates are the caption's own") {
    BancoDeColores b;
    b.Entrar(60, 20);
    const std::string enTexto = b.Ultimo("MouseMove");
    // The caption is centred, so the middle of the button is the middle of the caption.
    float x = 0, y = 0;
    REQUIRE(std::sscanf(enTexto.c_str(), "MouseMove 0 0 %f %f", &x, &y) == 2);
    CHECK(x < 50);
    CHECK(y < 15);
    b.Entrar(61, 21);
    float x2 = 0, y2 = 0;
    REQUIRE(std::sscanf(b.Ultimo("MouseMove").c_str(), "MouseMove 0 0 %f %f", &x2, &y2) == 2);
    CHECK(x2 == x + 1);
    CHECK(y2 == y + 1);
}

TEST_CASE("A click gives MouseDown, MouseUp and Click, in that order") {
    BancoDeColores b;
    b.Entrar(4, 6);
    b.Clic();
    CHECK(b.Sucesos() == Hechos{"MouseDown 1 0 4 6", "MouseUp 1 0 4 6", "Click"});
}

TEST_CASE("A click on the caption is a click on the button") {
    BancoDeColores b;
    b.Entrar(60, 20);
    b.Clic();
    const Hechos sucesos = b.Sucesos();
    REQUIRE(sucesos.size() == 3);
    CHECK(sucesos[0].rfind("MouseDown 1 0 ", 0) == 0);
    CHECK(sucesos[1].rfind("MouseUp 1 0 ", 0) == 0);
    CHECK(sucesos[2] == "Click");
}

TEST_CASE("The right button presses and releases without a click") {
    BancoDeColores b;
    b.Entrar(4, 6);
    b.Boton(MOUSEEVENTF_RIGHTDOWN);
    b.Boton(MOUSEEVENTF_RIGHTUP);
    CHECK(b.Sucesos() == Hechos{"MouseDown 2 0 4 6", "MouseUp 2 0 4 6"});
}

TEST_CASE("Shift and control come with the mouse") {
    BancoDeColores b;
    b.Entrar(4, 6);
    Tecla(VK_SHIFT, true);
    Tecla(VK_CONTROL, true);
    b.Clic();
    Tecla(VK_CONTROL, false);
    Tecla(VK_SHIFT, false);
    b.Esperar();
    CHECK(b.Ultimo("MouseDown") == "MouseDown 1 3 4 6");
    CHECK(b.Ultimo("MouseUp") == "MouseUp 1 3 4 6");
}

TEST_CASE("A press released outside is no click, and the mouse has left") {
    BancoDeColores b;
    b.Entrar(4, 6);
    b.Boton(MOUSEEVENTF_LEFTDOWN);
    b.Salir();
    b.Boton(MOUSEEVENTF_LEFTUP);
    CHECK(b.Veces("MouseDown") == 1);
    CHECK(b.Veces("MouseUp") == 1);
    CHECK(b.Veces("Click") == 0);
    b.Esperar();
    CHECK(b.Veces("MouseSale") >= 1);
    CHECK(b.Centro() == Rojo);
}

TEST_CASE("After a click the next move enters again, and leaving is told once") {
    BancoDeColores b;
    b.Entrar(4, 6);
    b.Clic();
    b.Entrar(8, 6);
    b.Olvidar();
    b.Salir();
    CHECK(b.Veces("MouseSale") == 1);
    CHECK(b.Centro() == Rojo);
}

TEST_CASE("A click without another move still gives the normal look back when the mouse leaves") {
    BancoDeColores b;
    b.Entrar(4, 6);
    b.Clic();
    b.Olvidar();
    b.Salir();
    CHECK(b.Veces("MouseSale") == 1);
    CHECK(b.Centro() == Rojo);
}

TEST_CASE("A disabled button says nothing of the mouse and keeps its look") {
    BancoDeColores b;
    b.Poner(L"Enabled", false);
    b.Esperar();
    const Captura antes = Captura::DeVentana(b.Ventana());
    b.Olvidar();
    b.Entrar(4, 6);
    b.Clic();
    b.Entrar(60, 20);
    b.Clic();
    CHECK(b.Veces("MouseMove") == 0);
    CHECK(b.Sucesos() == Hechos{});
    CHECK(Captura::DeVentana(b.Ventana()) == antes);
    b.Salir();
    CHECK(b.Veces("MouseSale") == 0);
}

TEST_CASE("A button disabled under the mouse still tells that the mouse leaves") {
    BancoDeColores b;
    b.Entrar(4, 6);
    b.Poner(L"Enabled", false);
    b.Olvidar();
    b.Salir();
    CHECK(b.Veces("MouseSale") == 1);
    CHECK(b.Veces("MouseMove") == 0);
}

TEST_CASE("A handler of MouseDown that disables the button silences MouseUp and Click") {
    BancoDeColores b;
    b.alOcurrir = [&](Evento& e) {
        if (e.nombre == L"MouseDown")
            b.Poner(L"Enabled", false);
    };
    b.Entrar(4, 6);
    b.Clic();
    CHECK(b.Sucesos() == Hechos{"MouseDown 1 0 4 6"});
}

TEST_CASE("With one look for both states entering and leaving paint the caption's colours alone") {
    Banco b;
    b.Poner(L"ColorFondo", static_cast<long>(Rojo));
    b.Poner(L"ColorFondoSobre", static_cast<long>(Rojo));
    b.Poner(L"ColorLetra", 0L);
    b.Poner(L"ColorLetraSobre", static_cast<long>(Verde));
    b.Poner(L"Caption", L"XXXXXX");
    b.Esperar();
    const RECT todo{0, 0, 120, 40};
    const Captura antes = Captura::DeVentana(b.Ventana());
    CHECK(antes.Contar(todo, Verde) == 0);
    b.Entrar(4, 6);
    const Captura encima = Captura::DeVentana(b.Ventana());
    CHECK(encima.Contar(todo, Verde) > 10);
    const RECT franja{0, 0, 120, 10};
    CHECK(encima.Contar(franja, Rojo) == antes.Contar(franja, Rojo));
    b.Salir();
    CHECK(Captura::DeVentana(b.Ventana()) == antes);
}

TEST_CASE("The pressed button shows another look while it is held") {
    BancoDeColores b;
    b.Entrar(4, 6);
    const Captura suelto = Captura::DeVentana(b.Ventana());
    b.Boton(MOUSEEVENTF_LEFTDOWN);
    const Captura abajo = Captura::DeVentana(b.Ventana());
    CHECK_FALSE(abajo == suelto);
    // The caption has moved right and down by the border's width.
    CHECK(abajo.Pixel(1, 1) != suelto.Pixel(1, 1));
    b.Boton(MOUSEEVENTF_LEFTUP);
}

TEST_CASE("The poll for the mouse runs while it is over the button and stops when it leaves") {
    BancoDeColores b;
    const auto tics = [&] {
        int cuantos = 0;
        for (const ULONGLONG fin = GetTickCount64() + 300; GetTickCount64() < fin; Sleep(1)) {
            MSG mensaje;
            while (PeekMessageW(&mensaje, nullptr, 0, 0, PM_REMOVE)) {
                cuantos += mensaje.message == WM_TIMER && mensaje.lParam != 0;
                DispatchMessageW(&mensaje);
            }
        }
        return cuantos;
    };
    CHECK(tics() == 0);
    b.Entrar(4, 6);
    CHECK(tics() >= 5);
    b.Salir();
    CHECK(tics() == 0);
}

TEST_CASE(
    "A sink sees the variables by reference with their types, and the next one sees its changes") {
    Banco b;
    Hechos segundo;
    b.alOcurrir = [](Evento& e) {
        if (e.nombre != L"MouseDown")
            return;
        REQUIRE(e.argumentos.size() == 4);
        CHECK(e.argumentos[0]->vt == (VT_I2 | VT_BYREF));
        CHECK(e.argumentos[1]->vt == (VT_I2 | VT_BYREF));
        CHECK(e.argumentos[2]->vt == (VT_R4 | VT_BYREF));
        CHECK(e.argumentos[3]->vt == (VT_R4 | VT_BYREF));
        Asignar(*e.argumentos[0], Variante(short{7}));
        Asignar(*e.argumentos[3], Variante(2.5f));
    };
    b.boton->Conectar([&](Evento& e) { segundo.push_back(Describir(e)); });
    b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 4, 6);
    CHECK(segundo == Hechos{"MouseDown 7 0 4 2.5"});
    // What a handler writes into one event stays in that event.
    segundo.clear();
    b.Enviar(WM_LBUTTONUP, 0, 4, 6);
    CHECK(segundo == Hechos{"MouseUp 1 0 4 6", "Click"});
}

TEST_CASE("A sink that spoils its argument list spoils nobody else's") {
    Banco b;
    Hechos segundo;
    b.alOcurrir = [](Evento& e) {
        for (VARIANT* argumento : e.argumentos)
            VariantInit(argumento);
    };
    b.boton->Conectar([&](Evento& e) { segundo.push_back(Describir(e)); });
    b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 4, 6);
    CHECK(segundo == Hechos{"MouseDown 1 0 4 6"});
}
