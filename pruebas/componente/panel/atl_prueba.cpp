// The panel in a host that announces nothing, knows no filter and asks for little.
#include "pruebas/componente/vivo/banco_atl.h"

using namespace vivo;

namespace {

struct BancoAtlPanel : BancoAtl {
    BancoAtlPanel() : BancoAtl(L"Pincela.Area") {
        Poner(L"ColorFondo", 0xFF0000L);
        Poner(L"EstilosBord", 0);
        Esperar();
        hechos.clear();
    }
    HWND PonerTexto() {
        return CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 10, 10, 50, 20,
                               ventana, nullptr, nullptr, nullptr);
    }
};

} // namespace

TEST_CASE("the host shows the panel as large as its own window") {
    BancoAtlPanel b;
    REQUIRE(b.ventana != nullptr);
    RECT r{};
    GetClientRect(b.ventana, &r);
    CHECK(r.right == 120);
    CHECK(r.bottom == 40);
    CHECK(Captura::DeVentana(b.ventana).Contar(r, RGB(0, 0, 255)) == 120 * 40);
}

TEST_CASE("mouse and keys reach the panel in the host") {
    BancoAtlPanel b;
    b.Llevar(b.ventana, 4, 6);
    b.Clic();
    b.Teclear(VK_SPACE);
    CHECK(b.Sucesos() ==
          Hechos{"MouseDown 1 0 4 6", "MouseUp 1 0 4 6", "Click", "TocoTecla 32", "Click"});
    CHECK(GetFocus() == b.ventana);
}

TEST_CASE("a window of the host's on the panel has the keys that it has the focus for") {
    BancoAtlPanel b;
    const HWND texto = b.PonerTexto();
    b.Llevar(b.ventana, 100, 30);
    b.Clic();
    CHECK(GetFocus() == b.ventana);
    b.hechos.clear();
    b.Llevar(texto, 5, 5);
    b.Clic();
    b.Teclear('A');
    CHECK(GetFocus() == texto);
    wchar_t escrito[8]{};
    GetWindowTextW(texto, escrito, 8);
    CHECK(std::wstring(escrito) == L"a");
    CHECK(b.Sucesos() == Hechos{});
    CHECK(Captura::DeVentana(b.ventana).Contar({0, 0, 120, 40}, RGB(0, 0, 255)) <= 120 * 40 - 1000);
    b.Llevar(b.ventana, 100, 30);
    b.Clic();
    CHECK(GetFocus() == b.ventana);
}

TEST_CASE("marks and transparency ask the host for what it does not know, and go without") {
    BancoAtlPanel b;
    CHECK_NOTHROW(Llamar(b.objeto.Como<IDispatch>().get(), L"ManAreas", {Variante(true)}));
    CHECK_NOTHROW(Llamar(b.objeto.Como<IDispatch>().get(), L"ManAreas", {Variante(false)}));
    b.Poner(L"BackStyle", 0);
    b.Esperar();
    CHECK(Captura::DeVentana(b.ventana).Contar({0, 0, 120, 40}, GetSysColor(COLOR_BTNFACE)) ==
          120 * 40);
}
