#include "plataforma/windows/pruebas/banco.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::windows;
using namespace pincela::windows::pruebas;
using Hechos = std::vector<std::string>;

namespace {

struct BancoConEtiqueta : Banco {
    BancoConEtiqueta() {
        etiqueta = entorno->CrearEtiqueta();
        etiqueta->PonCaption(u"Etiqueta");
        etiqueta->Move(20, 8);
        etiqueta->PonOyente(&oyente);
        ventana = Activar();
    }
    void Enviar(UINT mensaje, WPARAM w, int x, int y) {
        ::SendMessageW(ventana, mensaje, w, Punto(x, y));
    }
    OyenteDePrueba oyente{control, "E"};
    std::unique_ptr<Etiqueta> etiqueta;
    HWND ventana;
};

} // namespace

TEST_CASE("A label tells the mouse in its own coordinates, the surface in those of its own") {
    BancoConEtiqueta b;
    b.Enviar(WM_MOUSEMOVE, 0, 25, 10);
    b.Enviar(WM_MOUSEMOVE, MK_RBUTTON | MK_SHIFT, 3, 4);
    CHECK(b.hechos() == Hechos{"E.MouseMove 0 0 5 2", "MouseMove 2 1 3 4"});
}

TEST_CASE("A disabled label lets the mouse through") {
    BancoConEtiqueta b;
    b.etiqueta->PonEnabled(false);
    b.Enviar(WM_MOUSEMOVE, 0, 25, 10);
    CHECK(b.hechos() == Hechos{"MouseMove 0 0 25 10"});
}

TEST_CASE("The front-most label under the mouse is told") {
    BancoConEtiqueta b;
    OyenteDePrueba oyente(b.control, "D");
    auto delante = b.entorno->CrearEtiqueta();
    delante->PonCaption(u"Delante");
    delante->Move(22, 9);
    delante->PonOyente(&oyente);
    b.Enviar(WM_MOUSEMOVE, 0, 25, 10);
    b.Enviar(WM_MOUSEMOVE, 0, 20, 8);
    CHECK(b.hechos() == Hechos{"D.MouseMove 0 0 3 1", "E.MouseMove 0 0 0 0"});
}

TEST_CASE("A press asks for the focus, and its release gives MouseUp and then Click") {
    BancoConEtiqueta b;
    b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 3, 4);
    CHECK(::GetCapture() == b.ventana);
    b.Enviar(WM_LBUTTONUP, 0, 3, 4);
    CHECK(::GetCapture() == nullptr);
    CHECK(b.hechos() == Hechos{"PedirFoco", "MouseDown 1 0 3 4", "MouseUp 1 0 3 4", "Click"});
}

TEST_CASE("The second press of a double click is a press and a click too") {
    BancoConEtiqueta b;
    b.Enviar(WM_LBUTTONDBLCLK, MK_LBUTTON, 25, 10);
    b.Enviar(WM_LBUTTONUP, 0, 25, 10);
    CHECK(b.hechos() == Hechos{"PedirFoco", "E.MouseDown 1 0 5 2", "E.MouseUp 1 0 5 2", "E.Click"});
}

TEST_CASE("A press captures the element that got it, and a release elsewhere is no click") {
    BancoConEtiqueta b;
    b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 25, 10);
    b.Olvidar();
    b.Enviar(WM_MOUSEMOVE, MK_LBUTTON, 90, 28);
    b.Enviar(WM_LBUTTONUP, 0, 90, 28);
    CHECK(b.hechos() == Hechos{"E.MouseMove 1 0 70 20", "E.MouseUp 1 0 70 20"});
    b.Olvidar();
    b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 3, 3);
    b.Enviar(WM_LBUTTONUP, 0, -5, 3);
    CHECK(b.hechos() == Hechos{"PedirFoco", "MouseDown 1 0 3 3", "MouseUp 1 0 -5 3"});
}

TEST_CASE("A caption that moves while pressed is clicked all the same") {
    BancoConEtiqueta b;
    b.control.alOcurrir = [&](const std::string& hecho) {
        if (hecho.rfind("E.MouseDown", 0) == 0)
            b.etiqueta->Move(23, 11);
    };
    b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 20, 8);
    b.Enviar(WM_LBUTTONUP, 0, 20, 8);
    CHECK(b.hechos() ==
          Hechos{"PedirFoco", "E.MouseDown 1 0 0 0", "E.MouseUp 1 0 -3 -3", "E.Click"});
}

TEST_CASE("The right button makes no click and takes no focus") {
    BancoConEtiqueta b;
    b.Enviar(WM_RBUTTONDOWN, MK_RBUTTON | MK_CONTROL, 3, 4);
    b.Enviar(WM_RBUTTONUP, 0, 3, 4);
    CHECK(b.hechos() == Hechos{"MouseDown 2 2 3 4", "MouseUp 2 0 3 4"});
}

TEST_CASE("A surface whose input is frozen tells nothing") {
    BancoConEtiqueta b;
    b.sitio.congelado = true;
    b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 3, 4);
    b.Enviar(WM_LBUTTONUP, 0, 3, 4);
    b.Enviar(WM_MOUSEMOVE, 0, 25, 10);
    ::SendMessageW(b.ventana, WM_KEYDOWN, 'A', 0);
    ::SendMessageW(b.ventana, WM_CHAR, 'a', 0);
    CHECK(b.hechos().empty());
    CHECK(::GetCapture() == nullptr);
}

TEST_CASE("Keys and characters reach the control") {
    BancoConEtiqueta b;
    ::SendMessageW(b.ventana, WM_KEYDOWN, VK_SPACE, 0);
    ::SendMessageW(b.ventana, WM_CHAR, 0xF1, 0);
    ::SendMessageW(b.ventana, WM_KEYUP, VK_SPACE, 0);
    CHECK(b.hechos() == Hechos{"KeyDown 32", "KeyPress 241", "KeyUp 32"});
}

TEST_CASE("Characters and Enter are the control's, TAB and arrows the container's") {
    BancoConEtiqueta b;
    MSG enter{b.ventana, WM_KEYDOWN, VK_RETURN, 0, 0, {}},
        tab{b.ventana, WM_KEYDOWN, VK_TAB, 0, 0, {}};
    const auto codigo = [&](MSG* m) {
        return ::SendMessageW(b.ventana, WM_GETDLGCODE, m ? m->wParam : 0,
                              reinterpret_cast<LPARAM>(m));
    };
    CHECK(codigo(nullptr) == DLGC_WANTCHARS);
    CHECK(codigo(&enter) == (DLGC_WANTCHARS | DLGC_WANTMESSAGE));
    CHECK(codigo(&tab) == DLGC_WANTCHARS);
}

TEST_CASE("The focus enters and leaves once, told to the object and to the control") {
    BancoConEtiqueta b;
    ::SetFocus(b.ventana);
    CHECK(b.entorno->TieneFoco());
    ::SetFocus(b.marco.ventana());
    CHECK_FALSE(b.entorno->TieneFoco());
    CHECK(b.hechos() == Hechos{"FocoCambiado si", "EnterFocus", "ExitFocus", "FocoCambiado no"});
}

TEST_CASE("A label shows its pointer to the user: constants name the platform's pointers") {
    BancoConEtiqueta b;
    b.entorno->superficie().PonMousePointer(2);
    CHECK(::SendMessageW(b.ventana, WM_SETCURSOR, reinterpret_cast<WPARAM>(b.ventana),
                         MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)) == TRUE);
    CHECK(::GetCursor() == ::LoadCursorW(nullptr, IDC_CROSS));
    b.entorno->superficie().PonMousePointer(0);
    ::SendMessageW(b.ventana, WM_SETCURSOR, reinterpret_cast<WPARAM>(b.ventana),
                   MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    CHECK(::GetCursor() == ::LoadCursorW(nullptr, IDC_ARROW));
}

TEST_CASE("The object sees every message first and may keep it") {
    BancoConEtiqueta b;
    b.sitio.alMensaje = [](UINT mensaje, LRESULT* resultado) {
        *resultado = 7;
        return mensaje == WM_MOUSEMOVE;
    };
    CHECK(::SendMessageW(b.ventana, WM_MOUSEMOVE, 0, Punto(3, 3)) == 7);
    CHECK(b.hechos().empty());
}
