// The designer's mouse: placing, choosing, moving and sizing.
#include "pruebas/componente/disenador/banco.h"
#include "pruebas/componente/vivo/banco.h"

using namespace disenador;

TEST_CASE("A control is placed where the mouse spans its place, on the grid") {
    Banco b;
    b.mesa->TomarHerramienta(L"Pincela.Botonazo");
    b.Arrastrar(17, 15, 119, 50);
    CHECK(b.Lugares() == "Pincela.Botonazo Botonazo1 16 16 104 32|");
    CHECK(b.Elegidos() == "Botonazo1 ");
    CHECK(b.mesa->Herramienta().empty());
    b.mesa->TomarHerramienta(L"Pincela.Tbox");
    b.Clic(200, 100);
    CHECK(b.Lugares() ==
          "Pincela.Botonazo Botonazo1 16 16 104 32|Pincela.Tbox Tbox1 200 104 120 32|");
}

TEST_CASE("A control placed over a panel stands on it") {
    Banco b;
    b.Poner(UnPanel);
    b.mesa->TomarHerramienta(L"Pincela.Botonazo");
    b.Arrastrar(96, 184, 176, 216);
    CHECK(b.Control(L"Botonazo1")->Dentro() == b.Control(L"Panel"));
    CHECK(b.Control(L"Botonazo1")->Rectangulo().left == 16);
    CHECK(b.Control(L"Botonazo1")->Rectangulo().top == 104);
}

TEST_CASE("A click chooses, a click beside takes it back, and one more with CTRL adds") {
    Banco b;
    b.Poner(DosBotones);
    b.Clic(20, 20);
    CHECK(b.Elegidos() == "Uno ");
    b.Clic(170, 20, MK_CONTROL);
    CHECK(b.Elegidos() == "Uno Dos ");
    b.Clic(20, 20, MK_SHIFT);
    CHECK(b.Elegidos() == "Dos ");
    b.Clic(300, 200);
    CHECK(b.Elegidos().empty());
}

TEST_CASE("A rubber band chooses what it touches") {
    Banco b;
    b.Poner(DosBotones + UnPanel);
    b.Arrastrar(4, 60, 165, 20);
    CHECK(b.Elegidos() == "Uno Dos ");
    b.Arrastrar(440, 300, 300, 200, MK_CONTROL);
    CHECK(b.Elegidos() == "Uno Dos Panel ");
}

TEST_CASE("A drag moves what is chosen, and what stands on it") {
    Banco b;
    b.Poner(DosBotones + UnPanel);
    b.Arrastrar(20, 20, 62, 29);
    CHECK(b.Lugares().starts_with("Pincela.Botonazo Uno 56 24 80 32|"));
    b.Clic(170, 20, MK_CONTROL);
    b.Arrastrar(60, 30, 60, 70);
    CHECK(b.Lugares().starts_with(
        "Pincela.Botonazo Uno 56 64 80 32|Pincela.Botonazo Dos 160 56 80 32|"));
    b.Arrastrar(90, 90, 114, 90);
    CHECK(b.Control(L"Panel")->Rectangulo().left == 104);
    CHECK(b.mesa->CajaDe(b.Control(L"Dentro")).izquierda == 120);
}

TEST_CASE("A handle sizes the only one that is chosen") {
    Banco b;
    b.Poner(DosBotones);
    b.Elegir(L"Uno");
    const int medio = Adornos::Lado() / 2;
    b.Arrastrar(96 + medio, 48 + medio, 96 + medio + 25, 48 + medio + 15);
    CHECK(b.Lugares().starts_with("Pincela.Botonazo Uno 16 16 104 48|"));
    b.Arrastrar(16 - medio - 1, 16 + 24, 16 - medio - 9, 300);
    CHECK(b.Lugares().starts_with("Pincela.Botonazo Uno 8 16 112 48|"));
}

TEST_CASE("A drag that is given up leaves everything where it was") {
    Banco b;
    b.Poner(DosBotones);
    const std::string antes = b.Texto();
    b.Raton(WM_LBUTTONDOWN, 20, 20, MK_LBUTTON);
    b.Raton(WM_MOUSEMOVE, 120, 120, MK_LBUTTON);
    CHECK(b.Texto() != antes);
    b.Tecla(VK_ESCAPE);
    CHECK(b.Texto() == antes);
    b.Raton(WM_LBUTTONUP, 120, 120);
    CHECK(b.Texto() == antes);
    CHECK_FALSE(b.mesa->Puede(Orden::Deshacer));
}

TEST_CASE("The buttons of the controls place by a click and a drag, or by a double click") {
    Banco b;
    const HWND boton = FindWindowExW(b.pagina->Forma().Ventana(), nullptr, L"BUTTON", L"TBoxML");
    REQUIRE(boton);
    const auto avisar = [&](WORD que) {
        SendMessageW(b.pagina->Forma().Ventana(), WM_COMMAND, MAKEWPARAM(0, que),
                     reinterpret_cast<LPARAM>(boton));
    };
    avisar(BN_CLICKED);
    CHECK(b.mesa->Herramienta() == L"Pincela.TBoxML");
    b.Arrastrar(8, 8, 200, 72);
    CHECK(b.Lugares() == "Pincela.TBoxML TBoxML1 8 8 192 64|");
    avisar(BN_CLICKED);
    avisar(BN_DBLCLK);
    CHECK(b.mesa->Herramienta().empty());
    CHECK(b.mesa->Forma().Controles().size() == 2);
}

TEST_CASE("The edge of the form sizes it, and that can be undone") {
    Banco b;
    const HWND mirador = GetParent(b.mesa->Forma().Ventana());
    RECT r{};
    GetWindowRect(b.mesa->Forma().Ventana(), &r);
    MapWindowPoints(nullptr, mirador, reinterpret_cast<POINT*>(&r), 2);
    const int medio = Adornos::Lado() / 2;
    const auto raton = [&](UINT mensaje, LONG x, LONG y) {
        SendMessageW(mirador, mensaje, MK_LBUTTON, MAKELPARAM(x, y));
    };
    raton(WM_LBUTTONDOWN, r.right + medio, r.bottom + medio);
    raton(WM_MOUSEMOVE, r.right + medio - 80, r.bottom + medio + 41);
    raton(WM_LBUTTONUP, r.right + medio - 80, r.bottom + medio + 41);
    CHECK(b.Texto().starts_with("Formulario 400 360 "));
    b.mesa->Hacer(Orden::Deshacer);
    CHECK(b.Texto().starts_with("Formulario 480 320 "));
}

TEST_CASE("The user's own mouse moves and sizes: nothing lies between it and the form") {
    Banco b;
    b.Poner(DosBotones + UnPanel);
    SetForegroundWindow(b.marco.Ventana());
    const auto llevar = [&](int x, int y) {
        vivo::LlevarRaton(b.mesa->Forma().Ventana(), x, y);
        b.mesa->Forma().Esperar(60);
    };
    const auto apretar = [&](DWORD que) {
        vivo::Raton(que);
        b.mesa->Forma().Esperar(60);
    };
    llevar(30, 30);
    apretar(MOUSEEVENTF_LEFTDOWN);
    llevar(50, 60);
    llevar(62, 270);
    apretar(MOUSEEVENTF_LEFTUP);
    CHECK(b.Lugares().starts_with("Pincela.Botonazo Uno 48 256 80 32|"));
    CHECK(b.Elegidos() == "Uno ");
    const int medio = Adornos::Lado() / 2;
    llevar(128 + medio, 288 + medio);
    apretar(MOUSEEVENTF_LEFTDOWN);
    llevar(150 + medio, 290 + medio);
    llevar(152 + medio, 296 + medio);
    apretar(MOUSEEVENTF_LEFTUP);
    CHECK(b.Lugares().starts_with("Pincela.Botonazo Uno 48 256 104 40|"));
    // Inside a panel, over a field that is a window of its own.
    llevar(180, 130);
    apretar(MOUSEEVENTF_LEFTDOWN);
    apretar(MOUSEEVENTF_LEFTUP);
    CHECK(b.Elegidos() == "Dentro ");
}
