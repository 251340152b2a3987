// The mouse over a text box: colours, events and the poll.
#include "pruebas/cada.h"
#include "pruebas/componente/cajas/banco.h"

#include <commctrl.h>

using namespace cajas;
using pincela::pruebas::Cada;

namespace {

constexpr COLORREF Rojo = RGB(255, 0, 0), Verde = RGB(0, 255, 0);

/// Field above, caption below, in a control of 160 x 60 whose left margin of 4 pixels is surface.
struct BancoDeRaton : BancoDeCaja {
    explicit BancoDeRaton(const wchar_t* clase) : BancoDeCaja(clase) {
        boton->Mover({40, 40, 200, 100});
        Poner(L"BackStyle", 1L);
        Poner(L"ColorFondo", static_cast<long>(Rojo));
        Poner(L"ColorFondoSobre", static_cast<long>(Verde));
        if (anfitrion::Tiene(Caja(), L"Caption"))
            Poner(L"Caption", L"Nombre");
        texto = AgregarTexto(5);
        SetFocus(texto);
        Esperar();
        Olvidar();
    }
    COLORREF Fondo() const { return Captura::DeVentana(Ventana()).Pixel(0, 30); }
    void EntrarEnCampo() {
        LlevarRaton(Campo(), 30, 10);
        Esperar();
    }
    int Tics() {
        int cuantos = 0;
        for (const ULONGLONG fin = GetTickCount64() + 300; GetTickCount64() < fin; Sleep(1)) {
            MSG mensaje;
            if (PeekMessageW(&mensaje, nullptr, 0, 0, PM_REMOVE)) {
                cuantos += mensaje.message == WM_TIMER && mensaje.lParam != 0;
                DispatchMessageW(&mensaje);
            }
        }
        return cuantos;
    }
    HWND texto;
};

const wchar_t* CadaEtiquetada() {
    return Cada({L"Pincela.Tbox", L"Pincela.TBoxML"});
}

} // namespace

TEST_CASE(
    "The mouse over surface, caption or field brings the second colours, leaving is told once") {
    BancoDeRaton b(CadaEtiquetada());
    for (const int donde : {0, 1, 2}) {
        b.Olvidar();
        CHECK(b.Fondo() == Rojo);
        if (donde == 0)
            b.Entrar(1, 30);
        else if (donde == 1)
            b.Entrar(10, 50);
        else
            b.EntrarEnCampo();
        CHECK(b.Fondo() == Verde);
        CHECK(b.Veces("MouseMove") >= 1);
        b.Salir();
        CHECK(b.Fondo() == Rojo);
        CHECK(b.Veces("MouseSale") == 1);
    }
}

TEST_CASE("Moves are told in the coordinates of the element under the mouse") {
    BancoDeRaton b(CadaEtiquetada());
    b.Entrar(1, 30);
    CHECK(b.Ultimo("MouseMove") == "MouseMove 0 0 1 30");
    LlevarRaton(b.Campo(), 30, 10);
    b.Esperar();
    CHECK(b.Ultimo("MouseMove") == "MouseMove 0 0 30 10");
}

TEST_CASE("A press is told on the surface alone, a click everywhere, a release never") {
    BancoDeRaton b(CadaEtiquetada());
    b.Entrar(1, 30);
    b.Clic();
    CHECK(b.Sucesos() == Hechos{"MouseDown 1 0 1 30", "Click"});
    b.Olvidar();
    b.EntrarEnCampo();
    b.Clic();
    CHECK(b.Sucesos() == Hechos{"Click"});
}

TEST_CASE("The colours stay while the field has the focus, and no poll runs for it") {
    BancoDeRaton b(CadaEtiquetada());
    b.EntrarEnCampo();
    b.Clic();
    CHECK(b.Fondo() == Verde);
    b.Salir();
    CHECK(b.Fondo() == Verde);
    CHECK(b.Veces("MouseSale") == 0);
    CHECK(b.Tics() == 0);
    SetFocus(b.texto);
    b.Esperar();
    CHECK(b.Fondo() == Rojo);
}

TEST_CASE("The poll runs while the mouse is over the control and at no other time") {
    BancoDeRaton b(CadaEtiquetada());
    CHECK(b.Tics() == 0);
    b.Entrar(1, 30);
    CHECK(b.Tics() >= 5);
    b.Salir();
    CHECK(b.Tics() == 0);
}

TEST_CASE("FocoConMouse gives the field the focus when the mouse comes") {
    BancoDeRaton b(
        Cada({L"Pincela.Tbox", L"Pincela.TBoxML", L"Pincela.TboxSS", L"Pincela.TboxSSML"}));
    b.EntrarEnCampo();
    CHECK(GetFocus() == b.texto);
    b.Salir();
    b.Poner(L"FocoConMouse", true);
    b.EntrarEnCampo();
    CHECK(GetFocus() == b.Campo());
}

TEST_CASE("A disabled text box tells no click, press or move and keeps its colours") {
    BancoDeRaton b(
        Cada({L"Pincela.Tbox", L"Pincela.TBoxML", L"Pincela.TboxSS", L"Pincela.TboxSSML"}));
    b.Poner(L"Enabled", false);
    b.Esperar();
    b.Olvidar();
    b.Entrar(0, 30);
    b.Clic();
    b.EntrarEnCampo();
    b.Clic();
    b.Salir();
    CHECK(b.Sucesos() == Hechos{});
    CHECK(b.Veces("MouseMove") == 0);
    CHECK(b.Fondo() == Rojo);
    CHECK(GetFocus() != b.Campo());
}

TEST_CASE("The plain pair has no hover: the mouse changes no colour and nobody hears it leave") {
    BancoDeRaton b(Cada({L"Pincela.TboxSS", L"Pincela.TboxSSML"}));
    b.EntrarEnCampo();
    CHECK(b.Fondo() == Rojo);
    CHECK(b.Veces("MouseMove") >= 1);
    CHECK(b.Tics() == 0);
    b.Salir();
    CHECK(b.Veces("MouseSale") == 0);
}

TEST_CASE("Over the field the tip is the one that was assigned") {
    BancoDeRaton b(
        Cada({L"Pincela.Tbox", L"Pincela.TBoxML", L"Pincela.TboxSS", L"Pincela.TboxSSML"}));
    b.Poner(L"ToolTipText", L"Escriba aquí");
    b.EntrarEnCampo();
    std::wstring dicho;
    for (HWND globo = nullptr;
         (globo = FindWindowExW(nullptr, globo, TOOLTIPS_CLASSW, nullptr)) != nullptr;) {
        wchar_t texto[80] = L"";
        TTTOOLINFOW info{};
        info.cbSize = TTTOOLINFOW_V1_SIZE;
        info.hwnd = b.Ventana();
        info.uId = 1;
        info.lpszText = texto;
        if (SendMessageW(globo, TTM_GETTEXTW, 80, reinterpret_cast<LPARAM>(&info)); *texto)
            dicho = texto;
    }
    CHECK(dicho == L"Escriba aquí");
}
