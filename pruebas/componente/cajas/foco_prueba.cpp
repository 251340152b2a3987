// The focus: who has it, what it selects and which colours it brings.
#include "pruebas/cada.h"
#include "pruebas/componente/cajas/banco.h"

using namespace cajas;
using pincela::pruebas::Cada;

namespace {

constexpr COLORREF Rojo = RGB(255, 0, 0), Verde = RGB(0, 255, 0);

struct BancoDeFoco : BancoDeCaja {
    explicit BancoDeFoco(const wchar_t* clase) : BancoDeCaja(clase) {
        Poner(L"ColorFonTexto", static_cast<long>(Rojo));
        Poner(L"ColorFonTextoS", static_cast<long>(Verde));
        texto = AgregarTexto(5);
        SetFocus(texto);
        Esperar();
        Olvidar();
    }
    /// In the field, to the right of anything that is written there.
    COLORREF Fondo() const {
        RECT r{};
        GetClientRect(Campo(), &r);
        return Captura::DeVentana(Campo()).Pixel(r.right - 30, r.bottom / 2);
    }
    HWND texto;
};

const wchar_t* CadaClase() {
    return Cada({L"Pincela.Tbox", L"Pincela.TBoxML", L"Pincela.TboxSS", L"Pincela.TboxSSML"});
}

} // namespace

TEST_CASE("A click into the field gives it the focus and makes the control the active one") {
    BancoDeFoco b(CadaClase());
    LlevarRaton(b.Campo(), 10, 8);
    b.Esperar();
    b.Clic();
    CHECK(GetFocus() == b.Campo());
    CHECK(b.forma->Activo() == b.boton.get());
    CHECK(b.boton->ConFoco());
    CHECK(b.Veces("Click") == 1);
    CHECK(b.Veces("MouseDown") == 0);
    b.Escribir(L"a");
    CHECK(b.Text() == L"a");
}

TEST_CASE("Another window takes the focus, and the control is active no longer") {
    BancoDeFoco b(CadaClase());
    b.Enfocar();
    CHECK(b.forma->Activo() == b.boton.get());
    SetFocus(b.texto);
    b.Esperar();
    CHECK(b.forma->Activo() == nullptr);
    CHECK_FALSE(b.boton->ConFoco());
}

TEST_CASE("The focus brings the second set of colours, and losing it takes them back") {
    BancoDeFoco b(CadaClase());
    CHECK(b.Fondo() == Rojo);
    b.Enfocar();
    CHECK(b.Fondo() == Verde);
    SetFocus(b.texto);
    b.Esperar();
    CHECK(b.Fondo() == Rojo);
}

TEST_CASE("SelecConFoco selects the whole text when the focus comes and when it goes") {
    BancoDeFoco b(Cada({L"Pincela.TboxSS", L"Pincela.TboxSSML"}));
    b.Poner(L"Text", L"todo esto");
    b.Enfocar();
    CHECK(Texto(b.Leer(L"SelText")) == L"todo esto");
    b.Poner(L"SelStart", short{2});
    SetFocus(b.texto);
    b.Esperar();
    CHECK(Texto(b.Leer(L"SelText")) == L"todo esto");
    b.Poner(L"SelecConFoco", false);
    b.Poner(L"SelStart", short{2});
    b.Enfocar();
    CHECK(Texto(b.Leer(L"SelText")) == L"");
    CHECK(b.Numero(L"SelStart") == 2);
}

TEST_CASE("ALT and the caption's letter lead into the field of a labelled text box") {
    BancoDeFoco b(Cada({L"Pincela.Tbox", L"Pincela.TBoxML"}));
    b.Poner(L"Caption", L"&Nombre");
    b.Con(VK_MENU, 'N');
    CHECK(GetFocus() == b.Campo());
    SetFocus(b.texto);
    b.Poner(L"Enabled", false);
    b.Con(VK_MENU, 'N');
    CHECK(GetFocus() != b.Campo());
}

TEST_CASE("The field and the window of the control count as one focus") {
    BancoDeFoco b(CadaClase());
    b.Enfocar();
    b.registro->Vaciar();
    SetFocus(b.Ventana()); // handed on to the field at once
    b.Esperar();
    CHECK(GetFocus() == b.Campo());
    CHECK(b.registro->Veces("IOleControlSite::OnFocus") == 0);
}
