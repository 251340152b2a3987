// A panel through which its container is seen.
#include "pruebas/cada.h"
#include "pruebas/componente/panel/banco.h"

using namespace panel;

namespace {

struct BancoTransparente : BancoPanel {
    BancoTransparente() {
        Poner(L"EstilosBord", 0);
        Color(L"ColorFondo", Azul);
        Poner(L"BackStyle", 0);
    }
    /// As a form does that is told of a new colour.
    void CambiarFondo(COLORREF color) {
        fondo = color;
        InvalidateRect(forma->Ventana(), nullptr, TRUE);
        Esperar(20);
    }
    int Visible(COLORREF color) { return Ver().Contar({0, 0, W, H}, color); }
};

} // namespace

TEST_CASE("a transparent panel shows its container, and itself again when it is opaque") {
    BancoTransparente b;
    CHECK(b.Visible(Amarillo) == b.W * b.H);
    b.Poner(L"BackStyle", 1);
    CHECK(b.Visible(Azul) == b.W * b.H);
    b.Poner(L"BackStyle", 0);
    CHECK(b.Visible(Amarillo) == b.W * b.H);
}

TEST_CASE("a transparent panel keeps its border and its caption, not its gradient") {
    BancoTransparente b;
    b.Color(L"ColorLetra", Rojo);
    b.Poner(L"EstilosBord", 1);
    b.Poner(L"Caption", L"HHHH");
    b.Poner(L"ColorDegrade", L"16777215*0");
    b.Poner(L"EstilosRell", 1);
    const Captura c = b.Ver();
    CHECK(EnContorno(c, {1, 1, b.W - 1, b.H - 1}, Rojo) == Contorno({1, 1, b.W - 1, b.H - 1}));
    CHECK(c.Contar({50, 40, 150, 80}, Rojo) > 20);
    CHECK(c.Contar({0, 0, b.W, b.H}, Rojo) + c.Contar({0, 0, b.W, b.H}, Amarillo) == b.W * b.H);
}

TEST_CASE("what changes behind a transparent panel is seen through it at once") {
    BancoTransparente b;
    CHECK(b.Visible(Amarillo) == b.W * b.H);
    b.CambiarFondo(Rojo);
    CHECK(b.Visible(Rojo) == b.W * b.H);
    // Also where only a part of the form was painted anew.
    b.fondo = Azul;
    const RECT parte{0, 0, 120, 200};
    InvalidateRect(b.forma->Ventana(), &parte, TRUE);
    b.Esperar(20);
    CHECK(b.Visible(Azul) == 100 * b.H);
    CHECK(b.Visible(Rojo) == 100 * b.H);
}

TEST_CASE("a panel is not painted because its container is, opaque or not") {
    BancoTransparente b;
    const long estilo = pincela::pruebas::Cada({0L, 1L});
    CAPTURE(estilo);
    b.Poner(L"EstilosBord", 1);
    b.Poner(L"BackStyle", estilo);
    b.Esperar(20);
    b.Olvidar();
    b.CambiarFondo(Rojo);
    CHECK(b.Veces("Paint") == 0);
    CHECK((b.Visible(Rojo) > 0) == (estilo == 0));
}

TEST_CASE("a caption on a transparent panel does not keep the background it was painted on") {
    BancoTransparente b;
    b.Color(L"ColorLetra", Blanco);
    b.Poner(L"Caption", L"HHHH");
    const int letras = b.Visible(Blanco);
    REQUIRE(letras > 20);
    b.CambiarFondo(Rojo);
    CHECK(b.Visible(Blanco) == letras);
    CHECK(b.Visible(Amarillo) == 0);
    b.Poner(L"Caption", L"");
    b.Esperar(20);
    CHECK(b.Visible(Rojo) == b.W * b.H);
}

TEST_CASE("what stands on a transparent panel is seen where it moves to, and others' windows too") {
    BancoTransparente b;
    const auto boton = b.Dentro(L"Dentro", {10, 10, 50, 30});
    Poner(boton->Despacho(), L"EstilosBord", 0);
    Poner(boton->Despacho(), L"ColorFondo", static_cast<long>(Rojo));
    b.Esperar(20);
    CHECK(b.Visible(Rojo) == 40 * 20);
    boton->Mover({60, 40, 140, 100});
    b.Esperar(20);
    CHECK(b.Visible(Rojo) == 80 * 60);
    CHECK(b.Visible(Amarillo) == b.W * b.H - 80 * 60);
    const HWND ajena = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE | SS_BLACKRECT, 0,
                                       0, 20, 20, b.Ventana(), nullptr, nullptr, nullptr);
    SetWindowPos(ajena, HWND_TOP, 150, 10, 30, 30, SWP_NOACTIVATE);
    b.Esperar(20);
    const COLORREF negro = GetSysColor(COLOR_3DDKSHADOW);
    CHECK(b.Visible(negro) == 30 * 30);
    MoveWindow(ajena, 10, 80, 50, 30, TRUE);
    b.Esperar(20);
    CHECK(b.Visible(negro) == 50 * 30);
    DestroyWindow(ajena);
    b.Esperar(20);
    CHECK(b.Visible(Amarillo) == b.W * b.H - 80 * 60);
}

TEST_CASE("a transparent panel that moves shows what it covers now") {
    BancoTransparente b;
    b.forma->alPintar = [](HDC hdc, const RECT&) {
        for (int x = 0; x < 300; x += 10) {
            const RECT franja{x, 0, x + 10, 200};
            const HBRUSH brocha = CreateSolidBrush(RGB(x % 256, 0, 0));
            FillRect(hdc, &franja, brocha);
            DeleteObject(brocha);
        }
    };
    InvalidateRect(b.forma->Ventana(), nullptr, TRUE);
    b.Esperar(20);
    CHECK(b.Ver().Pixel(5, 5) == RGB(20, 0, 0));
    b.panel->Mover({40, 50, 240, 170});
    b.Esperar(20);
    CHECK(b.Ver().Pixel(5, 5) == RGB(40, 0, 0));
}

TEST_CASE("panels see through one another, live, with controls standing on them") {
    BancoTransparente b;
    const auto encima = b.Dentro(L"Encima", {20, 20, 120, 100}, L"Pincela.Area");
    Poner(encima->Despacho(), L"EstilosBord", 0);
    Poner(encima->Despacho(), L"BackStyle", 0);
    const auto boton = b.Agregar(L"Boton2", {10, 10, 50, 30}, L"Pincela.Botonazo", encima.get());
    Poner(boton->Despacho(), L"EstilosBord", 0);
    Poner(boton->Despacho(), L"Caption", L"");
    Poner(boton->Despacho(), L"ColorFondo", static_cast<long>(Rojo));
    b.Esperar(20);
    const int todo = b.W * b.H - 40 * 20;
    CHECK(b.Visible(Amarillo) == todo);
    CHECK(b.Visible(Rojo) == 40 * 20);
    b.CambiarFondo(Azul);
    CHECK(b.Visible(Azul) == todo);
    CHECK(b.Visible(Rojo) == 40 * 20);
    // The lower panel becomes opaque: the upper one shows that one now.
    b.Poner(L"BackStyle", 1);
    b.Color(L"ColorFondo", Blanco);
    b.Esperar(20);
    CHECK(b.Visible(Blanco) == todo);
}

TEST_CASE("a parent that prints its children does not go round in circles") {
    BancoTransparente b;
    b.forma->alRecibir = [&](UINT mensaje, WPARAM w, LPARAM, LRESULT&) {
        if (mensaje == WM_PRINTCLIENT)
            SendMessageW(b.Ventana(), WM_PRINT, w, PRF_CLIENT);
        return false;
    };
    InvalidateRect(b.Ventana(), nullptr, FALSE);
    CHECK(b.Visible(Amarillo) == b.W * b.H);
}

TEST_CASE("a transparent panel may go before its container, or with it") {
    BancoTransparente b;
    b.CambiarFondo(Rojo);
    b.boton.reset();
    SUBCASE("before") {
        const auto panel = std::exchange(b.panel, nullptr);
        b.forma->Quitar(*panel);
        b.CambiarFondo(Azul);
        CHECK(b.VerForma().Pixel(100, 100) == Azul);
    }
    SUBCASE("from inside its painting") {
        b.forma->alPintar = [&](HDC, const RECT&) {
            if (const auto panel = std::exchange(b.panel, nullptr))
                b.forma->Quitar(*panel);
        };
        InvalidateRect(b.forma->Ventana(), nullptr, TRUE);
        b.Esperar(20);
        CHECK_FALSE(b.panel);
    }
    b.panel.reset();
    b.forma.reset();
}
