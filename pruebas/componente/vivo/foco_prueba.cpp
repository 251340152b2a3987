// The focus: its rectangle, and who has it.
#include "pruebas/componente/vivo/banco.h"

using namespace vivo;

namespace {

struct BancoConTexto : Banco {
    BancoConTexto() : texto(AgregarTexto(5)) {
        SetFocus(texto);
        Esperar();
        sinFoco = Captura::DeVentana(Ventana());
        Olvidar();
    }
    HWND texto;
    Captura sinFoco{1, 1};
};

} // namespace

TEST_CASE("The focus shows a rectangle, and losing it takes the rectangle away") {
    BancoConTexto b;
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    CHECK(GetFocus() == b.Ventana());
    CHECK_FALSE(Captura::DeVentana(b.Ventana()) == b.sinFoco);
    SetFocus(b.texto);
    b.Esperar();
    CHECK(Captura::DeVentana(b.Ventana()) == b.sinFoco);
}

TEST_CASE("Without FocoVisible the focus shows nothing") {
    BancoConTexto b;
    b.Poner(L"FocoVisible", false);
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    CHECK(GetFocus() == b.Ventana());
    // The frame of the button that Enter presses lies at the very edge; the rectangle inside it.
    const Captura conFoco = Captura::DeVentana(b.Ventana());
    int distintos = 0;
    for (int y = 1; y < 39; ++y)
        for (int x = 1; x < 119; ++x)
            distintos += conFoco.Pixel(x, y) != b.sinFoco.Pixel(x, y);
    CHECK(distintos == 0);
}

TEST_CASE("A click takes the focus and activates the control") {
    BancoConTexto b;
    b.Entrar(5, 5);
    CHECK(GetFocus() == b.texto);
    b.Clic();
    CHECK(GetFocus() == b.Ventana());
    CHECK(b.forma->Activo() == b.boton.get());
}

TEST_CASE("With FocoConMouse the mouse takes the focus when it enters, and leaves it there") {
    BancoConTexto b;
    b.Poner(L"FocoConMouse", true);
    b.Entrar(5, 5);
    CHECK(GetFocus() == b.Ventana());
    CHECK(b.forma->Activo() == b.boton.get());
    b.Salir();
    CHECK(GetFocus() == b.Ventana());
}

TEST_CASE("A button that took the focus with the mouse gives it up to a text box") {
    BancoConTexto b;
    b.Poner(L"FocoConMouse", true);
    b.Entrar(5, 5);
    LlevarRaton(b.texto, 5, 5);
    b.Esperar();
    b.Clic();
    CHECK(GetFocus() == b.texto);
    b.Teclear('A');
    b.Esperar();
    wchar_t escrito[8]{};
    GetWindowTextW(b.texto, escrito, 8);
    CHECK(std::wstring(escrito) == L"a");
    CHECK(b.Veces("TocoTecla") == 0);
}

TEST_CASE("A text box keeps the keyboard while the mouse crosses a button without FocoConMouse") {
    BancoConTexto b;
    b.Entrar(5, 5);
    b.Teclear('A');
    b.Salir();
    b.Teclear('B');
    wchar_t escrito[8]{};
    GetWindowTextW(b.texto, escrito, 8);
    CHECK(std::wstring(escrito) == L"ab");
    CHECK(b.Veces("TocoTecla") == 0);
}

TEST_CASE("A disabled button neither takes the focus from the mouse nor shows its rectangle") {
    BancoConTexto b;
    b.Poner(L"FocoConMouse", true);
    b.Poner(L"Enabled", false);
    b.Esperar();
    const Captura apagado = Captura::DeVentana(b.Ventana());
    b.Entrar(5, 5);
    CHECK(GetFocus() == b.texto);
    b.Clic();
    CHECK(Captura::DeVentana(b.Ventana()) == apagado);
}
