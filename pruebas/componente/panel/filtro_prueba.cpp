// The messages of the panel's window, as its container sees them.
#include "pruebas/componente/panel/banco.h"

using namespace panel;

namespace {

constexpr UINT Propio = WM_APP + 7;

} // namespace

TEST_CASE("the container sees each message before the panel handles it, and may let it pass") {
    BancoPanel b;
    int vistos = 0;
    b.forma->alFiltrar = [&](ControlAlojado& control, UINT mensaje, WPARAM w, LPARAM l, LRESULT&) {
        if (mensaje == WM_LBUTTONDOWN) {
            ++vistos;
            CHECK(&control == b.panel.get());
            CHECK(w == MK_LBUTTON);
            CHECK(l == MAKELPARAM(7, 9));
            CHECK(b.Veces("MouseDown") == 0);
        }
        return false;
    };
    b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 7, 9);
    b.Enviar(WM_LBUTTONUP, 0, 7, 9);
    CHECK(vistos == 1);
    CHECK(b.Sucesos() == Hechos{"MouseDown 1 0 7 9", "MouseUp 1 0 7 9", "Click"});
}

TEST_CASE("a message that the container keeps does not reach the panel, and has its result") {
    BancoPanel b;
    b.forma->alFiltrar = [](ControlAlojado&, UINT mensaje, WPARAM w, LPARAM, LRESULT& resultado) {
        if (mensaje != WM_LBUTTONDOWN && mensaje != Propio)
            return false;
        resultado = static_cast<LRESULT>(w) + 40;
        return true;
    };
    CHECK(b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 7, 9) == MK_LBUTTON + 40);
    CHECK(b.Enviar(Propio, 2, 0, 0) == 42);
    CHECK(b.Veces("MouseDown") == 0);
    CHECK(b.Enviar(Propio + 1, 2, 0, 0) == 0);
}

TEST_CASE("what a window standing on the panel tells its parent reaches the container") {
    BancoPanel b;
    const HWND texto = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 10, 40, 60, 20,
                                       b.Ventana(), reinterpret_cast<HMENU>(5), nullptr, nullptr);
    Hechos vistos;
    b.forma->alFiltrar = [&](ControlAlojado&, UINT mensaje, WPARAM w, LPARAM, LRESULT&) {
        if (mensaje == WM_COMMAND)
            vistos.push_back(std::to_string(LOWORD(w)) + " " + std::to_string(HIWORD(w)));
        return false;
    };
    SetWindowTextW(texto, L"hola");
    CHECK(vistos == Hechos{"5 1024", "5 768"}); // EN_UPDATE, EN_CHANGE
}

TEST_CASE("a site without filter is not asked") {
    OpcionesFormulario opciones;
    opciones.sitio.marcoSimple = false;
    BancoPanel b(opciones);
    int vistos = 0;
    b.forma->alFiltrar = [&](ControlAlojado&, UINT, WPARAM, LPARAM, LRESULT&) {
        return ++vistos > 0;
    };
    b.Enviar(WM_LBUTTONDOWN, MK_LBUTTON, 7, 9);
    CHECK(vistos == 0);
    CHECK(b.Veces("MouseDown") == 1);
}

TEST_CASE("a button has no filter: nothing stands on it") {
    BancoPanel b;
    int vistos = 0;
    const auto boton = b.Agregar(L"Otro", {230, 20, 290, 50});
    b.forma->alFiltrar = [&](ControlAlojado& control, UINT, WPARAM, LPARAM, LRESULT&) {
        vistos += &control == boton.get();
        return false;
    };
    SendMessageW(boton->Ventana(), WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
    CHECK(vistos == 0);
}

TEST_CASE("the container may take the panel away from inside a message") {
    BancoPanel b;
    const HWND ventana = b.Ventana();
    b.boton.reset();
    b.forma->alFiltrar = [&](ControlAlojado& control, UINT mensaje, WPARAM, LPARAM, LRESULT&) {
        if (mensaje == WM_LBUTTONDOWN)
            b.forma->Quitar(control);
        return false;
    };
    SUBCASE("while somebody holds the control") {
        SendMessageW(ventana, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, 9));
        CHECK_FALSE(b.panel->Abierto());
    }
    SUBCASE("with the form") {
        b.panel.reset();
        b.forma->alFiltrar = [&](ControlAlojado&, UINT mensaje, WPARAM, LPARAM, LRESULT&) {
            if (mensaje == WM_LBUTTONDOWN)
                b.forma.reset();
            return false;
        };
        SendMessageW(ventana, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, 9));
        CHECK_FALSE(b.forma);
    }
    CHECK_FALSE(IsWindow(ventana));
    CHECK(b.Veces("MouseDown") == 0);
}

TEST_CASE("a control on the panel that is not in place is drawn there by its container") {
    BancoPanel b;
    const auto uno = b.Dentro(L"Uno", {10, 20, 70, 60});
    Poner(uno->Despacho(), L"EstilosBord", 0);
    Poner(uno->Despacho(), L"Caption", L"");
    Poner(uno->Despacho(), L"ColorFondo", static_cast<long>(Rojo));
    uno->Como<IOleInPlaceObject>()->InPlaceDeactivate();
    REQUIRE(uno->Ventana() == nullptr);
    InvalidateRect(b.Ventana(), nullptr, FALSE);
    CHECK(b.Ver().Contar({0, 0, b.W, b.H}, Rojo) == 60 * 40);
}
