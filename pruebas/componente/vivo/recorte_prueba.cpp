// The container's clip rectangle: what is seen of a control is what the clip and the shape share.
#include "anfitrion/captura.h"
#include "pruebas/cada.h"
#include "pruebas/componente/comun/publicado.h"
#include "pruebas/componente/vivo/ajeno.h"

#include <doctest/doctest.h>

using namespace vivo;
using namespace anfitrion;
using pincela::pruebas::Cada;

namespace {

constexpr COLORREF Rojo = RGB(220, 20, 30);
constexpr RECT Lugar{100, 50, 220, 90}; // 120 x 40
constexpr int W = 120, H = 40;

struct Region {
    Region() : h(CreateRectRgn(0, 0, 0, 0)) {}
    explicit Region(const RECT& r) : h(CreateRectRgnIndirect(&r)) {}
    Region(const Region&) = delete;
    Region& operator=(const Region&) = delete;
    ~Region() { DeleteObject(h); }
    HRGN h;
};

/// What is seen of a window of W x H with this region is exactly `esperada`.
bool SeVe(HWND ventana, const Region& esperada, const RECT& todo = {0, 0, W, H}) {
    const Region toda(todo);
    Region vista;
    if (GetWindowRgn(ventana, vista.h) == ERROR)
        CombineRgn(vista.h, toda.h, nullptr, RGN_COPY);
    CombineRgn(vista.h, vista.h, toda.h, RGN_AND);
    return CombineRgn(vista.h, vista.h, esperada.h, RGN_XOR) == NULLREGION;
}

bool SinRegion(HWND ventana) {
    const Region vista;
    return GetWindowRgn(ventana, vista.h) == ERROR;
}

/// The rounded shape of a button and the part of it inside `recorte`, in pixels of the button.
struct Redonda : Region {
    Redonda(int ancho, int alto, double x, double y, const RECT& recorte) : Region(recorte) {
        const HRGN forma = CreateRoundRectRgn(
            0, 0, ancho + 1, alto + 1, static_cast<int>(ancho * x), static_cast<int>(alto * y));
        CombineRgn(h, h, forma, RGN_AND);
        DeleteObject(forma);
        const Region toda(RECT{0, 0, ancho, alto});
        CombineRgn(h, h, toda.h, RGN_AND);
    }
};

struct BancoDeRecorte {
    explicit BancoDeRecorte(const wchar_t* clase, const RECT& recorte = {0, 0, 2000, 2000})
        : control(clase, forma.ventana, Lugar, recorte) {}
    HWND Ventana() const { return control.Ventana(); }
    void Mover(const RECT& lugar, const RECT& recorte) {
        control.Mover(lugar, &recorte);
        VentanaAjena::Bombear();
    }

    publicado::SesionOle ole;
    VentanaAjena forma;
    ControlAjeno control;
};

/// A rounded red button.
struct BancoRedondo : BancoDeRecorte {
    explicit BancoRedondo(const RECT& recorte = {0, 0, 2000, 2000})
        : BancoDeRecorte(L"Pincela.Botonazo", recorte) {
        control.Poner(L"Estilos", 1);
        control.Poner(L"RelX", 0.5f);
        control.Poner(L"RelY", 0.5f);
    }
};

} // namespace

TEST_CASE("the clip a control finds when it is activated holds from the first moment") {
    BancoDeRecorte b(Cada({L"Pincela.Botonazo", L"Pincela.Area", L"Pincela.Tbox"}),
                     {110, 40, 300, 70});
    b.control.Activar();
    CHECK(SeVe(b.Ventana(), Region(RECT{10, 0, W, 20})));
    VentanaAjena::Bombear();
    CHECK(SeVe(b.Ventana(), Region(RECT{10, 0, W, 20})));
}

TEST_CASE("a clip that hides nothing, or none at all, needs no region") {
    BancoDeRecorte b(L"Pincela.Area");
    b.control.sitio->daRecorte = Cada<bool>({true, false});
    b.control.Activar();
    VentanaAjena::Bombear();
    CHECK(SinRegion(b.Ventana()));
    b.Mover(Lugar, {0, 0, 150, 300});
    CHECK(SeVe(b.Ventana(), Region(RECT{0, 0, 50, H})));
    const RECT amplio{0, 0, 2000, 2000};
    b.control.Mover(Lugar, Cada<const RECT*>({nullptr, &amplio, &Lugar}));
    CHECK(SinRegion(b.Ventana()));
    // Containers give the place as its own clip and move the window without another word.
    SetWindowPos(b.Ventana(), nullptr, 150, 100, 200, 100, SWP_NOZORDER);
    CHECK(SinRegion(b.Ventana()));
}

TEST_CASE("what is seen of a rounded button is what its shape and the clip share") {
    BancoRedondo b({0, 0, 160, 75});
    b.control.Activar();
    const RECT visible{0, 0, 60, 25};
    CHECK(SeVe(b.Ventana(), Redonda(W, H, 0.5, 0.5, visible)));
    b.control.Poner(L"RelX", 0.25f);
    CHECK(SeVe(b.Ventana(), Redonda(W, H, 0.25, 0.5, visible)));
    b.control.Poner(L"Estilos", 0);
    CHECK(SeVe(b.Ventana(), Region(visible)));
    b.control.Poner(L"Estilos", 1);
    CHECK(SeVe(b.Ventana(), Redonda(W, H, 0.25, 0.5, visible)));
    b.Mover({100, 50, 180, 130}, {0, 0, 160, 75}); // 80 x 80
    CHECK(SeVe(b.Ventana(), Redonda(80, 80, 0.25, 0.5, visible), {0, 0, 80, 80}));
    b.Mover({100, 50, 180, 130}, {0, 0, 2000, 2000});
    CHECK(SeVe(b.Ventana(), Redonda(80, 80, 0.25, 0.5, {0, 0, 80, 80}), {0, 0, 80, 80}));
}

TEST_CASE("a control that is scrolled out of sight and back is seen as it was") {
    BancoRedondo b;
    b.control.Activar();
    const RECT ventanilla{50, 20, 300, 200};
    for (int y = 50; y > -60; y -= 15) {
        const RECT lugar{100, y, 220, y + H};
        b.Mover(lugar, ventanilla);
        RECT visible{0, std::max(0, 20 - y), W, H};
        if (visible.top >= H)
            visible = {};
        CHECK(SeVe(b.Ventana(), Redonda(W, H, 0.5, 0.5, visible)));
    }
    b.Mover({100, -40, 220, 0}, {0, 0, 0, 0}); // as the intersection of what does not meet is told
    CHECK(SeVe(b.Ventana(), Region()));
    b.Mover(Lugar, ventanilla);
    CHECK(SeVe(b.Ventana(), Redonda(W, H, 0.5, 0.5, {0, 0, W, H})));
}

TEST_CASE("a scrolling container paints what a clip hides, and its control no pixel of it") {
    BancoDeRecorte b(L"Pincela.Area", {0, 0, 400, 70});
    b.control.Poner(L"ColorFondo", static_cast<long>(Rojo));
    b.control.Poner(L"EstilosBord", 0);
    b.control.Poner(L"BackStyle", 1);
    b.control.Activar();
    VentanaAjena::Bombear();
    const RECT todo{0, 0, 400, 300};
    const auto rojos = [&](const RECT& r) {
        return Captura::DeVentana(b.forma.ventana).Contar(r, Rojo);
    };
    CHECK(rojos({100, 50, 220, 70}) == W * 20);
    CHECK(rojos(todo) == W * 20);
    b.Mover({100, 40, 220, 80}, {0, 0, 400, 70});
    CHECK(rojos({100, 40, 220, 70}) == W * 30);
    CHECK(rojos(todo) == W * 30);
    b.Mover({100, 140, 220, 180}, {0, 0, 400, 70});
    CHECK(rojos(todo) == 0);
    b.control.Mover({100, 140, 220, 180}, nullptr);
    VentanaAjena::Bombear();
    CHECK(rojos(todo) == W * H);
}

TEST_CASE("a transparent control is cut by its container's clip like any other") {
    BancoDeRecorte b(L"Pincela.TboxSS", {0, 0, 160, 70});
    b.control.Activar();
    VentanaAjena::Bombear();
    CHECK(SeVe(b.Ventana(), Region(RECT{1, 1, 60, 20})));
    const HWND bajo = WindowFromPoint(POINT{200, 60});
    CHECK(bajo == b.forma.ventana);
    b.Mover(Lugar, {0, 0, 2000, 2000});
    CHECK(SeVe(b.Ventana(), Region(RECT{1, 1, W, H})));
}

namespace {

int cambiosDeRegion = 0;
WNDPROC procedimientoDelControl = nullptr;

/// The platform tells a window of a new region as it tells it of a new place.
LRESULT CALLBACK ContarCambios(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) {
    cambiosDeRegion += mensaje == WM_WINDOWPOSCHANGED;
    return CallWindowProcW(procedimientoDelControl, ventana, mensaje, w, l);
}

} // namespace

TEST_CASE("a region is not set again where nothing changed") {
    BancoRedondo b({0, 0, 160, 75});
    b.control.Activar();
    VentanaAjena::Bombear();
    procedimientoDelControl = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(b.Ventana(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ContarCambios)));
    cambiosDeRegion = 0;
    const RECT mismo{0, 0, 160, 75};
    b.Mover(Lugar, mismo);
    b.Mover(Lugar, {0, 0, 160, 75});
    CHECK(cambiosDeRegion == 0);
    b.Mover(Lugar, {0, 0, 160, 80});
    CHECK(cambiosDeRegion == 1);
    SetWindowLongPtrW(b.Ventana(), GWLP_WNDPROC,
                      reinterpret_cast<LONG_PTR>(procedimientoDelControl));
}
