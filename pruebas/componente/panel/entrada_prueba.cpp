// The mouse, the keyboard and the focus on a panel and on what stands on it, with real input.
#include "pruebas/componente/panel/banco.h"

using namespace panel;

namespace {

struct BancoConFoco : BancoPanel {
    BancoConFoco() {
        Poner(L"Caption", L"&Datos");
        panel->Verbo(OLEIVERB_UIACTIVATE);
        Esperar();
        REQUIRE(GetFocus() == Ventana());
        Olvidar();
    }
};

/// A panel with a button on it that writes its events down too.
struct BancoConBoton : BancoPanel {
    BancoConBoton() {
        uno = Dentro(L"Uno", {10, 20, 70, 60});
        delUno = uno->Conectar([this](Evento& evento) {
            if (evento.nombre == L"Click")
                hechos.push_back("Uno.Click");
        });
        Esperar();
        Olvidar();
    }
    std::shared_ptr<ControlAlojado> uno;
    Puntero<SumideroEventos> delUno;
};

} // namespace

TEST_CASE("a click on the panel gives MouseDown, MouseUp and Click, and takes the focus") {
    BancoPanel b;
    b.Entrar(4, 6);
    b.Clic();
    CHECK(b.Sucesos() == Hechos{"MouseDown 1 0 4 6", "MouseUp 1 0 4 6", "Click"});
    CHECK(b.Ultimo("MouseMove") == "MouseMove 0 0 4 6");
    CHECK(GetFocus() == b.Ventana());
    CHECK(b.forma->Activo() == b.panel.get());
}

TEST_CASE("a transparent panel has the mouse where the form shows through it as well") {
    BancoPanel b;
    b.Poner(L"BackStyle", 0);
    b.Poner(L"ToolTipText", L"Panel");
    b.Poner(L"MousePointer", 2); // a cross
    b.Esperar();
    b.Olvidar();
    b.Entrar(44, 26);
    CHECK(GetCursor() == LoadCursorW(nullptr, IDC_CROSS));
    b.Clic();
    CHECK(b.Sucesos() == Hechos{"MouseDown 1 0 44 26", "MouseUp 1 0 44 26", "Click"});
    CHECK(b.Ultimo("MouseMove") == "MouseMove 0 0 44 26");
    CHECK(GetFocus() == b.Ventana());
    // Of a disabled window, and of one that is gone, the mouse is the form's.
    EnableWindow(b.Ventana(), FALSE);
    b.Olvidar();
    b.Clic();
    CHECK(b.Sucesos() == Hechos{});
    EnableWindow(b.Ventana(), TRUE);
    b.panel->Mover({60, 60, 260, 180});
    b.Esperar();
    b.Olvidar();
    b.Entrar(60, 30);
    b.Clic();
    CHECK(b.Veces("Click") == 1);
}

TEST_CASE("of two transparent panels the upper one has the mouse, and what is under the mouse") {
    BancoPanel b;
    b.Poner(L"BackStyle", 0);
    const auto encima = b.Dentro(L"Encima", {20, 20, 120, 100}, L"Pincela.Area");
    Poner(encima->Despacho(), L"BackStyle", 0);
    const auto delEncima = encima->Conectar(
        [&](Evento& evento) { b.hechos.push_back("Encima." + Describir(evento)); });
    b.Esperar();
    b.Olvidar();
    b.Entrar(60, 60);
    b.Clic();
    CHECK(b.Ultimo("Encima.MouseDown") == "Encima.MouseDown 1 0 40 40");
    CHECK(b.Veces("Encima.Click") == 1);
    CHECK(b.Veces("Click") == 0);
    b.Entrar(160, 60);
    b.Clic();
    CHECK(b.Veces("Click") == 1);
}

TEST_CASE("a click on the caption is told with the caption's coordinates") {
    BancoPanel b;
    b.Poner(L"Caption", L"XXXXXXXXXX");
    b.Esperar();
    b.Olvidar();
    b.Entrar(100, 59);
    b.Clic();
    const Hechos sucesos = b.Sucesos();
    REQUIRE(sucesos.size() == 3);
    float x = 0, y = 0;
    REQUIRE(std::sscanf(sucesos[0].c_str(), "MouseDown 1 0 %f %f", &x, &y) == 2);
    CHECK(x < 60);
    CHECK(y < 15);
    CHECK(sucesos[2] == "Click");
}

TEST_CASE("leaving the panel with the mouse is never told") {
    BancoPanel b;
    b.Entrar();
    b.Salir();
    b.Esperar(150);
    CHECK(b.Veces("MouseMove") >= 1);
    CHECK(b.Veces("MouseSale") == 0);
}

TEST_CASE("a disabled panel tells neither the mouse nor keys but the character") {
    BancoConFoco b;
    b.Poner(L"Enabled", false);
    b.Esperar();
    b.Olvidar();
    b.Entrar(4, 6);
    b.Clic();
    b.Teclear(VK_RETURN);
    b.Teclear('A');
    CHECK(b.Sucesos() == Hechos{"TocoTecla 13", "TocoTecla 97"});
    CHECK(b.Veces("MouseMove") == 0);
}

TEST_CASE("Enter and Space click the panel with the focus") {
    BancoConFoco b;
    b.Teclear(VK_RETURN);
    b.Teclear(VK_SPACE);
    CHECK(b.Sucesos() == Hechos{"TocoTecla 13", "Click", "TocoTecla 32", "Click"});
}

TEST_CASE("the release of Enter without its press is told as a release") {
    BancoConFoco b;
    Tecla(VK_RETURN, false);
    b.Esperar();
    CHECK(b.Sucesos() == Hechos{"SoltoTecla 13 0"});
}

TEST_CASE("another key goes down, is a character and comes up") {
    BancoConFoco b;
    b.Teclear('A');
    CHECK(b.Sucesos() == Hechos{"PresTecla 65 0", "TocoTecla 97", "SoltoTecla 65 0"});
}

TEST_CASE("the letter of the caption clicks only while Enter or Space is held down") {
    BancoConFoco b;
    b.Teclear('D');
    CHECK(b.Veces("Click") == 0);
    b.Olvidar();
    Tecla(VK_SPACE, true);
    b.Esperar();
    Tecla('D', false); // comes up after Space went down
    b.Esperar();
    CHECK(b.Sucesos() == Hechos{"TocoTecla 32", "Click"});
    Tecla(VK_SPACE, false);
    b.Esperar();
    CHECK(b.Ultimo("SoltoTecla") == "SoltoTecla 32 0");
}

TEST_CASE("a handler of the panel may change the key that goes on") {
    BancoConFoco b;
    b.alOcurrir = [](Evento& evento) {
        if (evento.nombre == L"TocoTecla")
            Asignar(*evento.argumentos[0], Variante(short{0}));
    };
    b.Teclear('A');
    CHECK(b.Sucesos() == Hechos{"PresTecla 65 0", "TocoTecla 97", "SoltoTecla 65 0"});
}

TEST_CASE("a click on what stands on the panel is not the panel's") {
    BancoConBoton b;
    LlevarRaton(b.uno->Ventana(), 5, 5);
    b.Esperar();
    b.Clic();
    CHECK(b.Sucesos() == Hechos{"Uno.Click"});
    CHECK(GetFocus() == b.uno->Ventana());
    CHECK(b.forma->Activo() == b.uno.get());
}

TEST_CASE("the focus goes from the panel to what stands on it and back, each told of its own") {
    BancoConBoton b;
    for (int vuelta = 0; vuelta < 2; ++vuelta) {
        b.Entrar(150, 100);
        b.Clic();
        CHECK(GetFocus() == b.Ventana());
        CHECK(b.panel->ConFoco());
        CHECK_FALSE(b.uno->ConFoco());
        CHECK(b.forma->Activo() == b.panel.get());
        LlevarRaton(b.uno->Ventana(), 5, 5);
        b.Esperar();
        b.Clic();
        CHECK(GetFocus() == b.uno->Ventana());
        CHECK_FALSE(b.panel->ConFoco());
        CHECK(b.uno->ConFoco());
        CHECK(b.forma->Activo() == b.uno.get());
    }
}

TEST_CASE("keys of what stands on the panel are not the panel's") {
    BancoConBoton b;
    b.uno->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    b.Olvidar();
    b.Teclear('A');
    b.Teclear(VK_SPACE);
    CHECK(b.Sucesos() == Hechos{"Uno.Click"});
}

TEST_CASE("the tabulator goes through the panel and what stands on it") {
    BancoConBoton b;
    const auto fuera = b.Agregar(L"Fuera", {230, 20, 290, 50});
    b.panel->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    const HWND orden[] = {b.uno->Ventana(), fuera->Ventana(), b.Ventana(), b.uno->Ventana()};
    for (const HWND ventana : orden) {
        b.Teclear(VK_TAB);
        CHECK(GetFocus() == ventana);
    }
}

TEST_CASE("in design mode the panel takes no input") {
    BancoPanel b(EnDiseno());
    b.Entrar(4, 6);
    b.Clic();
    CHECK(b.Sucesos() == Hechos{});
    CHECK(b.forma->Seleccion().size() == 1);
}
