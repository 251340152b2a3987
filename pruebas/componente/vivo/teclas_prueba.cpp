// The keyboard on a button that has the focus.
#include "pruebas/componente/vivo/banco.h"

using namespace vivo;

namespace {

struct BancoConFoco : Banco {
    BancoConFoco() {
        Poner(L"Caption", L"&Guardar");
        boton->Verbo(OLEIVERB_UIACTIVATE);
        Esperar();
        REQUIRE(GetFocus() == Ventana());
        Olvidar();
    }
};

} // namespace

TEST_CASE("Space down and up is one click, told by nothing else than the character") {
    BancoConFoco b;
    b.Teclear(VK_SPACE);
    CHECK(b.Sucesos() == Hechos{"TocoTecla 32", "Click"});
}

TEST_CASE("Enter down and up is one click on the button with the focus") {
    BancoConFoco b;
    b.Teclear(VK_RETURN);
    CHECK(b.Sucesos() == Hechos{"TocoTecla 13", "Click"});
}

TEST_CASE("Another key gives PresTecla, TocoTecla and SoltoTecla") {
    BancoConFoco b;
    b.Teclear('A');
    CHECK(b.Sucesos() == Hechos{"PresTecla 65 0", "TocoTecla 97", "SoltoTecla 65 0"});
}

TEST_CASE("A key with shift says so, and so does shift itself") {
    BancoConFoco b;
    Tecla(VK_SHIFT, true);
    b.Esperar();
    b.Teclear('A');
    Tecla(VK_SHIFT, false);
    b.Esperar();
    CHECK(b.Sucesos() == Hechos{"PresTecla 16 1", "PresTecla 65 1", "TocoTecla 65",
                                "SoltoTecla 65 1", "SoltoTecla 16 0"});
}

TEST_CASE("A function key has no character") {
    BancoConFoco b;
    b.Teclear(VK_F5);
    CHECK(b.Sucesos() == Hechos{"PresTecla 116 0", "SoltoTecla 116 0"});
}

TEST_CASE("A key pressed between Space down and Space up undoes the press") {
    BancoConFoco b;
    Tecla(VK_SPACE, true);
    b.Esperar();
    b.Teclear('A');
    Tecla(VK_SPACE, false);
    b.Esperar();
    CHECK(b.Veces("Click") == 0);
    CHECK(b.Ultimo("SoltoTecla") == "SoltoTecla 32 0");
}

TEST_CASE("With Space held the release of the caption's letter completes the press") {
    BancoConFoco b;
    SendMessageW(b.Ventana(), WM_KEYDOWN, VK_SPACE, 1);
    SendMessageW(b.Ventana(), WM_KEYUP, 'G', 1);
    CHECK(b.Sucesos() == Hechos{"Click"});
    // The press is over: Space itself is now a key like any other.
    SendMessageW(b.Ventana(), WM_KEYUP, VK_SPACE, 1);
    CHECK(b.Sucesos() == Hechos{"Click", "SoltoTecla 32 0"});
}

TEST_CASE("The release of a key that went down elsewhere is no click") {
    BancoConFoco b;
    SendMessageW(b.Ventana(), WM_KEYUP, VK_SPACE, 1);
    SendMessageW(b.Ventana(), WM_KEYUP, 'G', 1);
    CHECK(b.Sucesos() == Hechos{"SoltoTecla 32 0", "SoltoTecla 71 0"});
}

TEST_CASE("A disabled button tells the characters and nothing else") {
    BancoConFoco b;
    b.Poner(L"Enabled", false);
    b.Olvidar();
    for (const WORD tecla : {WORD{VK_SPACE}, WORD{'A'}, WORD{VK_F5}})
        b.Pulsacion(tecla);
    SendMessageW(b.Ventana(), WM_CHAR, 'a', 1);
    SendMessageW(b.Ventana(), WM_CHAR, ' ', 1);
    CHECK(b.Sucesos() == Hechos{"TocoTecla 97", "TocoTecla 32"});
}

TEST_CASE("A key held down looks pressed, and its release looks normal again") {
    BancoConFoco b;
    const Captura suelto = Captura::DeVentana(b.Ventana());
    Tecla(VK_SPACE, true);
    b.Esperar();
    CHECK_FALSE(Captura::DeVentana(b.Ventana()) == suelto);
    Tecla(VK_SPACE, false);
    b.Esperar();
    CHECK(Captura::DeVentana(b.Ventana()) == suelto);
}

TEST_CASE("A handler that changes the key or the character does not disturb the button") {
    BancoConFoco b;
    b.alOcurrir = [](Evento& e) {
        if (e.nombre == L"PresTecla" || e.nombre == L"TocoTecla" || e.nombre == L"SoltoTecla")
            Asignar(*e.argumentos[0], Variante(short{VK_SPACE}));
    };
    b.Teclear('A');
    b.Teclear('B');
    CHECK(b.Veces("Click") == 0);
    CHECK(b.Sucesos() == Hechos{"PresTecla 65 0", "TocoTecla 97", "SoltoTecla 65 0",
                                "PresTecla 66 0", "TocoTecla 98", "SoltoTecla 66 0"});
}

TEST_CASE("An event that takes the focus away while a key is held leaves the button unpressed") {
    BancoConFoco b;
    const HWND texto = b.AgregarTexto(5);
    const Captura suelto = Captura::DeVentana(b.Ventana());
    Tecla(VK_SPACE, true);
    b.Esperar();
    SetFocus(texto);
    Tecla(VK_SPACE, false);
    b.Esperar();
    CHECK(b.Veces("Click") == 0);
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    CHECK(Captura::DeVentana(b.Ventana()) == suelto);
}
