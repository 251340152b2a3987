// Fields of many lines: Enter, TAB and CTRL with TAB.
#include "pruebas/cada.h"
#include "pruebas/componente/cajas/banco.h"

using namespace cajas;
using pincela::pruebas::Cada;

namespace {

struct BancoDeRenglones : BancoDeCaja {
    explicit BancoDeRenglones(const wchar_t* clase) : BancoDeCaja(clase) {
        if (anfitrion::Tiene(Caja(), L"NavConEnter"))
            Poner(L"NavConEnter", false);
        otra = OtraCaja(L"Pincela.Tbox", {40, 100, 160, 140});
        Enfocar();
    }
    std::shared_ptr<ControlAlojado> otra;
};

const wchar_t* CadaMultilinea() {
    return Cada({L"Pincela.TBoxML", L"Pincela.TboxSSML"});
}

} // namespace

TEST_CASE("Enter goes into the text of many lines") {
    BancoDeRenglones b(CadaMultilinea());
    b.Escribir(L"uno");
    b.Teclear(VK_RETURN);
    b.Escribir(L"dos");
    CHECK(b.Text() == L"uno\r\ndos");
    CHECK(b.TieneFoco(*b.boton));
    CHECK(b.Ultimo("TocoTecla") == "TocoTecla 115");
}

TEST_CASE(
    "With NavConEnter Enter leaves the field of many lines, and is not taken out of the text") {
    BancoDeRenglones b(L"Pincela.TboxSSML");
    b.Poner(L"NavConEnter", true);
    b.Poner(L"SelecConFoco", false);
    b.Escribir(L"uno");
    b.Teclear(VK_RETURN);
    CHECK(b.TieneFoco(*b.otra));
    CHECK(b.Text() == L"uno\r\n");
}

TEST_CASE("TAB leaves the field of many lines, CTRL with TAB goes into it") {
    BancoDeRenglones b(CadaMultilinea());
    b.Escribir(L"a");
    b.Con(VK_CONTROL, VK_TAB);
    b.Escribir(L"b");
    CHECK(b.Text() == L"a\tb");
    CHECK(b.TieneFoco(*b.boton));
    b.Teclear(VK_TAB);
    CHECK(b.TieneFoco(*b.otra));
    CHECK(b.Text() == L"a\tb");
}

TEST_CASE("CTRL with TAB respects lock and limit") {
    BancoDeRenglones b(CadaMultilinea());
    b.Poner(L"MaxText", 1L);
    b.Escribir(L"a");
    b.Con(VK_CONTROL, VK_TAB);
    CHECK(b.Text() == L"a");
    b.Poner(L"MaxText", 0L);
    b.Poner(L"Tranca", true);
    b.Con(VK_CONTROL, VK_TAB);
    CHECK(b.Text() == L"a");
}

TEST_CASE("Escape and arrows stay harmless in a field of many lines") {
    BancoDeRenglones b(CadaMultilinea());
    b.Escribir(L"a");
    b.Teclear(VK_RETURN);
    b.Escribir(L"b");
    b.Teclear(VK_UP);
    b.Teclear(VK_HOME);
    b.Escribir(L"x");
    CHECK(b.Text() == L"xa\r\nb");
    b.Teclear(VK_ESCAPE);
    CHECK(IsWindow(b.Ventana()));
    CHECK(b.TieneFoco(*b.boton));
}

TEST_CASE("In a dialog of the platform Escape and Enter go where they should") {
    BancoDeRenglones b(CadaMultilinea());
    const HWND campo = b.Campo();
    MSG enter{campo, WM_KEYDOWN, VK_RETURN, 1, 0, {}};
    const auto codigo = [&](const MSG& mensaje) {
        return SendMessageW(campo, WM_GETDLGCODE, mensaje.wParam,
                            reinterpret_cast<LPARAM>(&mensaje));
    };
    CHECK((codigo(enter) & DLGC_WANTMESSAGE) != 0);
    for (const WPARAM tecla : {WPARAM{VK_TAB}, WPARAM{VK_ESCAPE}}) {
        const MSG otra{campo, WM_KEYDOWN, tecla, 1, 0, {}};
        CHECK((codigo(otra) & (DLGC_WANTMESSAGE | DLGC_WANTALLKEYS | DLGC_WANTTAB)) == 0);
    }
}
