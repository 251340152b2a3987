// A container that owns its window: nobody else writes into it, and what is transparent shows what
// it paints all the same.
#include "anfitrion/captura.h"
#include "pruebas/cada.h"
#include "pruebas/componente/comun/publicado.h"
#include "pruebas/componente/vivo/ajeno.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <array>

using namespace vivo;
using namespace anfitrion;
using pincela::pruebas::Cada;

namespace {

constexpr COLORREF Rojo = RGB(220, 20, 30), Azul = RGB(20, 30, 210), Negro = RGB(0, 0, 0);
constexpr RECT Lugar{20, 20, 140, 60};

/// One way for a container to let a control go.
void Terminar(ControlAjeno& control, int como) {
    switch (como) {
    case 0:
        control.objeto.Como<IOleInPlaceObject>()->InPlaceDeactivate();
        break;
    case 1:
        control.objeto.Como<IOleObject>()->Close(OLECLOSE_NOSAVE);
        break;
    default:
        control.objeto.Como<IOleObject>()->SetClientSite(nullptr);
    }
}

/// A life with the procedure exchanged at the moments that `cuando` has bits for.
void Vivir(const wchar_t* clase, const std::array<int, 3>& final, unsigned cuando) {
    VentanaAjena forma;
    unsigned momento = 0;
    bool bien = true;
    const auto llegar = [&] {
        if (cuando >> momento++ & 1)
            forma.CambiarProcedimiento();
        bien = bien && forma.Intacta();
    };
    {
        ControlAjeno control(clase, forma.ventana, Lugar);
        control.Poner(L"BackStyle", 0);
        llegar();
        control.Activar();
        llegar();
        VentanaAjena::Bombear();
        llegar();
        REQUIRE(forma.Responde());
        for (const int como : final) {
            llegar();
            Terminar(control, como);
            bien = bien && forma.Intacta() && forma.Responde();
        }
        CHECK(GetWindow(forma.ventana, GW_CHILD) == nullptr);
    }
    CHECK(bien);
    CHECK(forma.Intacta());
    CHECK(forma.Responde());
}

/// A transparent panel with a border in red, 120 x 40.
struct BancoPanelAjeno {
    explicit BancoPanelAjeno(DWORD estilo)
        : forma(estilo), panel(L"Pincela.Area", forma.ventana, Lugar) {
        panel.Poner(L"ColorLetra", static_cast<long>(Rojo));
        panel.Poner(L"BackStyle", 0);
        panel.Activar();
        VentanaAjena::Bombear();
    }
    /// Border, and the form everywhere inside of it.
    bool SeVe(COLORREF fondo) {
        VentanaAjena::Bombear();
        const Captura c = Captura::DeVentana(forma.ventana);
        return c.Contar(Lugar, fondo) + c.Contar(Lugar, Rojo) == 120 * 40 &&
               c.Contar(Lugar, Rojo) == borde;
    }

    publicado::SesionOle ole;
    VentanaAjena forma;
    ControlAjeno panel;
    int borde = 0;
};

} // namespace

TEST_CASE("whenever a container exchanges its procedure, nobody else has written into its window") {
    publicado::SesionOle ole;
    const auto* clase = Cada({L"Pincela.TboxSS", L"Pincela.TboxSSML", L"Pincela.Area"});
    std::array<int, 3> final{0, 1, 2};
    do {
        for (unsigned cuando = 0; cuando < 64; ++cuando) {
            const bool alguno = (cuando & (cuando - 1)) == 0 || cuando == 63;
            if (alguno || lstrcmpW(clase, L"Pincela.TboxSS") == 0)
                Vivir(clase, final, cuando);
        }
    } while (std::next_permutation(final.begin(), final.end()));
}

TEST_CASE("what a container paints is seen through at once, and what is drawn stays") {
    const DWORD estilo = Cada<DWORD>({WS_CLIPCHILDREN, 0});
    const UINT como = Cada<UINT>({RDW_INVALIDATE, RDW_INVALIDATE | RDW_ALLCHILDREN,
                                  RDW_INVALIDATE | RDW_UPDATENOW, RDW_INVALIDATE | RDW_ERASE});
    CAPTURE(estilo);
    CAPTURE(como);
    BancoPanelAjeno b(estilo);
    const Captura c = Captura::DeVentana(b.forma.ventana);
    b.borde = c.Contar(Lugar, Rojo);
    REQUIRE(b.borde > 300);
    CHECK(b.SeVe(b.forma.fondo));
    b.forma.fondo = Azul;
    RedrawWindow(b.forma.ventana, nullptr, nullptr, como);
    CHECK(b.SeVe(Azul));
}

TEST_CASE("a container that draws without being asked is seen through a transparent panel too") {
    BancoPanelAjeno b(WS_CLIPCHILDREN);
    b.borde = Captura::DeVentana(b.forma.ventana).Contar(Lugar, Rojo);
    const HDC hdc = GetDC(b.forma.ventana);
    const RECT todo{0, 0, 400, 300};
    SetDCBrushColor(hdc, Azul);
    FillRect(hdc, &todo, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    ReleaseDC(b.forma.ventana, hdc);
    CHECK(b.SeVe(Azul));
}

TEST_CASE("a window below a transparent panel is seen through it whenever that one changes") {
    BancoPanelAjeno b(WS_CLIPCHILDREN);
    VentanaAjena debajo(WS_CLIPSIBLINGS);
    SetWindowLongW(debajo.ventana, GWL_STYLE,
                   static_cast<LONG>(WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS));
    SetParent(debajo.ventana, b.forma.ventana);
    debajo.fondo = Negro;
    SetWindowPos(debajo.ventana, HWND_BOTTOM, 40, 30, 40, 20, SWP_NOACTIVATE);
    VentanaAjena::Bombear();
    CHECK(Captura::DeVentana(b.forma.ventana).Contar(Lugar, Negro) == 40 * 20);
    debajo.fondo = Azul;
    InvalidateRect(debajo.ventana, nullptr, FALSE);
    VentanaAjena::Bombear();
    CHECK(Captura::DeVentana(b.forma.ventana).Contar(Lugar, Azul) == 40 * 20);
    ShowWindow(debajo.ventana, SW_HIDE);
    VentanaAjena::Bombear();
    const Captura c = Captura::DeVentana(b.forma.ventana);
    CHECK(c.Contar(Lugar, b.forma.fondo) + c.Contar(Lugar, Rojo) == 120 * 40);
}

TEST_CASE("a field stays on the screen in a form that does not clip its children") {
    publicado::SesionOle ole;
    VentanaAjena forma(0);
    ControlAjeno caja(L"Pincela.TboxSS", forma.ventana, Lugar);
    caja.Poner(L"BackStyle", Cada({0L, 1L}));
    caja.Poner(L"ColorFonTexto", static_cast<long>(Rojo));
    caja.Activar();
    VentanaAjena::Bombear();
    REQUIRE(Captura::DeVentana(forma.ventana).Contar(Lugar, Rojo) > 110 * 30);
    forma.fondo = Azul;
    InvalidateRect(forma.ventana, nullptr, TRUE);
    VentanaAjena::Bombear();
    CHECK(Captura::DeVentana(forma.ventana).Contar(Lugar, Rojo) > 110 * 30);
}

TEST_CASE("messages to a form and its painting do not reach the transparent controls on it") {
    publicado::SesionOle ole;
    VentanaAjena forma;
    ControlAjeno uno(L"Pincela.TboxSS", forma.ventana, Lugar);
    ControlAjeno otro(L"Pincela.Area", forma.ventana, {20, 80, 140, 120});
    otro.Poner(L"BackStyle", 0);
    uno.Activar();
    otro.Activar();
    VentanaAjena::Bombear();
    CHECK(forma.Responde());
    for (const ControlAjeno* control : {&uno, &otro})
        CHECK_FALSE(GetUpdateRect(control->Ventana(), nullptr, FALSE));
    // Left out of what the form clips, the window itself would be painted over and not be told.
    CHECK((GetWindowLongW(uno.Ventana(), GWL_EXSTYLE) & WS_EX_TRANSPARENT) == 0);
}
