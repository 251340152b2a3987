// Access keys, Enter and Escape.
#include "pruebas/componente/vivo/banco.h"

using namespace vivo;

namespace {

struct BancoDeAcceso : Banco {
    BancoDeAcceso() {
        Poner(L"Caption", L"&Guardar");
        texto = AgregarTexto(5);
        otro = Agregar(L"Otro", {170, 40, 290, 80});
        anfitrion::Poner(otro->Despacho(), L"Caption", L"Ca&ncelar");
        otro->Conectar([this](Evento& e) { clicsDeOtro += e.nombre == L"Click"; });
        SetFocus(texto);
        Esperar();
        Olvidar();
    }
    void ConAlt(WORD tecla) {
        Tecla(VK_MENU, true);
        Esperar(20);
        Teclear(tecla);
        Tecla(VK_MENU, false);
        Esperar(20);
    }
    HWND texto;
    std::shared_ptr<ControlAlojado> otro;
    int clicsDeOtro = 0;
};

} // namespace

TEST_CASE("ALT and the letter of the caption click the button, from wherever the focus is") {
    BancoDeAcceso b;
    b.ConAlt('G');
    CHECK(b.Veces("Click") == 1);
    CHECK(b.clicsDeOtro == 0);
    b.ConAlt('N');
    CHECK(b.clicsDeOtro == 1);
    CHECK(b.Veces("Click") == 1);
}

TEST_CASE("ALT and the letter of a disabled button click nothing") {
    BancoDeAcceso b;
    b.Poner(L"Enabled", false);
    b.ConAlt('G');
    CHECK(b.Veces("Click") == 0);
    CHECK(GetFocus() == b.texto);
}

TEST_CASE("A new caption takes its letter with it, and the container is told") {
    BancoDeAcceso b;
    b.Poner(L"Caption", L"&Salvar");
    CHECK(b.registro->Veces("IOleControlSite::OnControlInfoChanged") == 1);
    b.ConAlt('G');
    CHECK(b.Veces("Click") == 0);
    b.ConAlt('S');
    CHECK(b.Veces("Click") == 1);
    b.Poner(L"Caption", L"Sin letra");
    CHECK(b.registro->Veces("IOleControlSite::OnControlInfoChanged") == 2);
    b.ConAlt('S');
    CHECK(b.Veces("Click") == 1);
}

TEST_CASE("A caption with the same letter is no news for the container") {
    BancoDeAcceso b;
    b.Poner(L"Caption", L"&Ganar");
    CHECK(b.registro->Veces("IOleControlSite::OnControlInfoChanged") == 0);
}

TEST_CASE("The control information names the letter and eats neither Enter nor Escape") {
    BancoDeAcceso b;
    CONTROLINFO info{};
    info.cb = sizeof info;
    const auto control = b.boton->Como<IOleControl>();
    REQUIRE(control->GetControlInfo(&info) == S_OK);
    CHECK(info.dwFlags == 0);
    MSG mensaje{b.forma->Ventana(), WM_SYSKEYDOWN, 'G', 0x20000001, 0, {}};
    WORD orden = 0;
    CHECK(IsAccelerator(info.hAccel, info.cAccel, &mensaje, &orden));
    mensaje.wParam = 'X';
    CHECK_FALSE(IsAccelerator(info.hAccel, info.cAccel, &mensaje, &orden));
}

TEST_CASE("An information record that is too small is refused") {
    BancoDeAcceso b;
    CONTROLINFO info{};
    CHECK(b.boton->Como<IOleControl>()->GetControlInfo(&info) == E_INVALIDARG);
    CHECK(b.boton->Como<IOleControl>()->GetControlInfo(nullptr) == E_POINTER);
}

TEST_CASE(
    "Enter presses the default button while a text box has the focus, Escape the cancel button") {
    BancoDeAcceso b;
    b.boton->porDefecto = true;
    b.otro->cancela = true;
    b.Teclear(VK_RETURN);
    CHECK(b.Veces("Click") == 1);
    CHECK(b.clicsDeOtro == 0);
    b.Teclear(VK_ESCAPE);
    CHECK(b.Veces("Click") == 1);
    CHECK(b.clicsDeOtro == 1);
    CHECK(GetFocus() == b.texto);
}

TEST_CASE("Enter presses the button with the focus and not the default button") {
    BancoDeAcceso b;
    b.otro->porDefecto = true;
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    b.Teclear(VK_RETURN);
    CHECK(b.Veces("Click") == 1);
    CHECK(b.clicsDeOtro == 0);
}

TEST_CASE("Escape reaches the cancel button while another button has the focus") {
    BancoDeAcceso b;
    b.otro->cancela = true;
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    b.Olvidar();
    b.Teclear(VK_ESCAPE);
    CHECK(b.clicsDeOtro == 1);
    CHECK(b.Veces("PresTecla") == 0);
}

TEST_CASE("Escape without a cancel button is a key of the button with the focus") {
    BancoDeAcceso b;
    b.boton->Verbo(OLEIVERB_UIACTIVATE);
    b.Esperar();
    b.Olvidar();
    b.Teclear(VK_ESCAPE);
    CHECK(b.Ultimo("PresTecla") == "PresTecla 27 0");
    CHECK(b.Ultimo("SoltoTecla") == "SoltoTecla 27 0");
}

TEST_CASE("A disabled default button is not pressed") {
    BancoDeAcceso b;
    b.boton->porDefecto = true;
    b.Poner(L"Enabled", false);
    b.Teclear(VK_RETURN);
    CHECK(b.Veces("Click") == 0);
}
