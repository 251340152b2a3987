// What a button on a form looks like.
#include "pruebas/componente/pixeles/banco.h"

using namespace publicado;
using anfitrion::BolsaMemoria;
using anfitrion::Hacer;

namespace {

constexpr COLORREF Claro = RGB(0xC0, 0xC0, 0xC0), Oscuro = RGB(0x90, 0x90, 0x90),
                   Linea = RGB(0xB4, 0xB4, 0xB4);

bool Parecidos(COLORREF a, COLORREF b, int margen) {
    return std::abs(GetRValue(a) - GetRValue(b)) <= margen &&
           std::abs(GetGValue(a) - GetGValue(b)) <= margen &&
           std::abs(GetBValue(a) - GetBValue(b)) <= margen;
}

/// Shows black text on the red button.
RECT CajaDelTexto(BancoDePixeles& b, long alineacion) {
    Poner(b.control->Despacho(), L"AlinText", alineacion);
    return Caja(b.Ver(), RGB(0, 0, 0));
}

} // namespace

TEST_CASE("A solid button without border is its colour from edge to edge") {
    BancoDePixeles b;
    IDispatch* boton = b.AgregarRojo(0);
    CHECK(b.Ver().Contar({0, 0, Ancho, Alto}, Rojo) == Ancho * Alto);
    Poner(boton, L"ColorFondo", static_cast<long>(Azul));
    CHECK(b.Ver().Contar({0, 0, Ancho, Alto}, Azul) == Ancho * Alto);
    Poner(boton, L"ColorFondo", static_cast<long>(0x8000000F)); // button face
    CHECK(b.Ver().Contar({0, 0, Ancho, Alto}, GetSysColor(COLOR_BTNFACE)) == Ancho * Alto);
}

TEST_CASE("A border stands inset by its width, light above and left, dark below and right") {
    BancoDePixeles b;
    IDispatch* boton = b.AgregarRojo(1);
    for (const int m : {1, 2, 3}) {
        INFO("width ", m);
        Poner(boton, L"AnchoBorde", m);
        const Captura c = b.Ver();
        CHECK(c.Pixel(Ancho / 2, m) == Claro);
        CHECK(c.Pixel(m, Alto / 2) == Claro);
        CHECK(c.Pixel(Ancho - 1 - m, Alto / 2) == Oscuro);
        CHECK(c.Pixel(Ancho / 2, Alto - 1 - m) == Oscuro);
        CHECK(c.Pixel(Ancho / 2, 0) == Rojo);
        CHECK(c.Pixel(Ancho / 2, Alto / 2) == Rojo);
        CHECK(c.Contar({Ancho / 2, 0, Ancho / 2 + 1, Alto / 2}, Claro) == m);
        CHECK(c.Contar({Ancho / 2, Alto / 2, Ancho / 2 + 1, Alto}, Oscuro) == m);
    }
}

TEST_CASE("Coloured and graded borders look like the normal one") {
    BancoDePixeles b;
    IDispatch* boton = b.AgregarRojo(1);
    const Captura normal = b.Ver();
    Poner(boton, L"EstilosBord", 3);
    CHECK(b.Ver() == normal);
    Poner(boton, L"EstilosBord", 4);
    CHECK(b.Ver() == normal);
    Poner(boton, L"EstilosBord", 0);
    CHECK_FALSE(b.Ver() == normal);
}

TEST_CASE("A linear border is one grey line of the border's width") {
    BancoDePixeles b;
    IDispatch* boton = b.AgregarRojo(2);
    for (const int m : {1, 2, 3}) {
        INFO("width ", m);
        Poner(boton, L"AnchoBorde", m);
        const Captura c = b.Ver();
        CHECK(c.Contar({Ancho / 2, 0, Ancho / 2 + 1, Alto / 2}, Linea) == m);
        CHECK(c.Contar({Ancho / 2, Alto / 2, Ancho / 2 + 1, Alto}, Linea) == m);
        CHECK(c.Contar({0, 0, Ancho, Alto}, Claro) == 0);
        CHECK(c.Contar({0, 0, Ancho, Alto}, Oscuro) == 0);
    }
}

TEST_CASE("A gradient fills the button with its normal list") {
    BancoDePixeles b;
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->Poner(L"ColorDegradeN", L"16777215*0");
    bolsa->Poner(L"ColorDegradeS", L"255*255");
    bolsa->Poner(L"EstilosBord", 0);
    SUBCASE("horizontally") {
        bolsa->Poner(L"EstilosRell", 1);
        b.Cargar(*bolsa.get());
        const Captura c = b.Ver();
        for (int x = 0; x < Ancho; x += 7) {
            const auto g = static_cast<BYTE>((0xFF00 * (Ancho - x) / Ancho) >> 8);
            CHECK(c.Pixel(x, 3) == RGB(g, g, g));
        }
    }
    SUBCASE("vertically") {
        bolsa->Poner(L"EstilosRell", 2);
        b.Cargar(*bolsa.get());
        const Captura c = b.Ver();
        for (int y = 0; y < Alto; ++y) {
            const auto g = static_cast<BYTE>((0xFF00 * (Alto - y) / Alto) >> 8);
            CHECK(c.Pixel(5, y) == RGB(g, g, g));
        }
    }
    SUBCASE("as a pyramid") {
        bolsa->Poner(L"EstilosRell", 3);
        b.Cargar(*bolsa.get());
        const Captura c = b.Ver();
        CHECK(Parecidos(c.Pixel(Ancho / 2, Alto / 2), RGB(255, 255, 255), 16));
        CHECK(Parecidos(c.Pixel(1, 1), RGB(0, 0, 0), 16));
        CHECK(Parecidos(c.Pixel(Ancho - 2, Alto - 2), RGB(0, 0, 0), 16));
    }
    SUBCASE("diagonally, at its own angle") {
        bolsa->Poner(L"EstilosRell", 4);
        bolsa->Poner(L"Angulo", short{45});
        b.Cargar(*bolsa.get());
        const Captura c = b.Ver();
        CHECK(Parecidos(c.Pixel(0, 0), RGB(255, 255, 255), 6));
        CHECK(Parecidos(c.Pixel(Ancho - 1, Alto - 1), RGB(0, 0, 0), 8));
        CHECK(Parecidos(c.Pixel(40, 30), c.Pixel(60, 10), 6));
    }
}

TEST_CASE("A list that can't be drawn leaves the colour of the button") {
    BancoDePixeles b;
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->Poner(L"ColorDegradeN", L"");
    bolsa->Poner(L"ColorFondo", static_cast<long>(Verde));
    bolsa->Poner(L"EstilosBord", 0);
    bolsa->Poner(L"EstilosRell", 1);
    b.Cargar(*bolsa.get());
    CHECK(b.Ver().Contar({0, 0, Ancho, Alto}, Verde) == Ancho * Alto);
}

TEST_CASE("A disabled button looks different, and enabled again as before") {
    BancoDePixeles b;
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->Poner(L"Caption", L"Aceptar");
    SUBCASE("with a solid colour") {
        bolsa->Poner(L"ColorFondo", static_cast<long>(Rojo));
    }
    SUBCASE("with a gradient") {
        bolsa->Poner(L"EstilosRell", 1);
        bolsa->Poner(L"ColorDegradeN", L"255*16711680");
    }
    SUBCASE("with a picture") {
        bolsa->Poner(L"ImagNormal", Variante(MapaDePrueba(6).get()));
    }
    IDispatch* boton = b.Cargar(*bolsa.get());
    Poner(boton, L"Enabled", true);
    const Captura habilitado = b.Ver();
    Poner(boton, L"Enabled", false);
    const Captura inhabilitado = b.Ver();
    CHECK_FALSE(inhabilitado == habilitado);
    CHECK(inhabilitado.Pixel(10, Alto / 2) != habilitado.Pixel(10, Alto / 2));
    Poner(boton, L"Enabled", true);
    CHECK(b.Ver() == habilitado);
}

TEST_CASE("The caption stands where its alignment says") {
    BancoDePixeles b;
    IDispatch* boton = b.AgregarRojo(0);
    Poner(boton, L"ColorLetra", 0);
    Poner(boton, L"Caption", L"HH");
    for (long a = 0; a < 9; ++a) {
        INFO("alignment ", a);
        const RECT r = CajaDelTexto(b, a);
        REQUIRE(r.right > r.left);
        const int aLaIzquierda = r.left, aLaDerecha = Ancho - r.right;
        const int arriba = r.top, abajo = Alto - r.bottom;
        CHECK(r.right - r.left < Ancho / 2);
        if (a / 3 == 0)
            CHECK(aLaIzquierda <= 4);
        else if (a / 3 == 1)
            CHECK(std::abs(aLaIzquierda - aLaDerecha) <= 5);
        else
            CHECK(aLaDerecha <= 4);
        if (a % 3 == 0)
            CHECK(arriba <= 6);
        else if (a % 3 == 1)
            CHECK(std::abs(arriba - abajo) <= 6);
        else
            CHECK(abajo <= 6);
    }
}

TEST_CASE("An embossed caption has a light copy above left and a dark one below right") {
    BancoDePixeles b;
    IDispatch* boton = b.AgregarRojo(0);
    Poner(boton, L"Caption", L"HH");
    Poner(boton, L"ColorLetra", static_cast<long>(Azul));
    for (const long letra : {1L, 2L}) {
        INFO("lettering ", letra);
        Poner(boton, L"TipoLetra", letra);
        Poner(boton, L"AlinText", 3);
        Poner(boton, L"AlinText", 4);
        const Captura c = b.Ver();
        const RECT texto = Caja(c, Azul), blanco = Caja(c, RGB(255, 255, 255)),
                   negro = Caja(c, RGB(0, 0, 0));
        REQUIRE(texto.right > texto.left);
        const int d = letra == 1 ? -1 : 1;
        if (d < 0) {
            CHECK(blanco.left == texto.left - 1);
            CHECK(blanco.top == texto.top - 1);
            CHECK(negro.right == texto.right + 1);
            CHECK(negro.bottom == texto.bottom + 1);
        } else {
            CHECK(negro.left == texto.left - 1);
            CHECK(negro.top == texto.top - 1);
            CHECK(blanco.right == texto.right + 1);
            CHECK(blanco.bottom == texto.bottom + 1);
        }
    }
}

TEST_CASE("A rounded button lets the form show at its corners") {
    BancoDePixeles b;
    IDispatch* boton = b.AgregarRojo(0);
    Poner(boton, L"RelX", 0.3f);
    Poner(boton, L"RelY", 0.9f);
    Poner(boton, L"Estilos", 1);
    const HRGN region = CreateRectRgn(0, 0, 0, 0);
    REQUIRE(GetWindowRgn(b.control->Ventana(), region) == COMPLEXREGION);
    RECT caja{};
    GetRgnBox(region, &caja);
    CHECK(caja.left == 0);
    CHECK(caja.top == 0);
    CHECK(caja.right == Ancho);
    CHECK(caja.bottom == Alto);
    for (const POINT p : {POINT{0, 0}, POINT{Ancho - 1, 0}, POINT{0, Alto - 1},
                          POINT{Ancho - 1, Alto - 1}, POINT{4, 4}})
        CHECK_FALSE(PtInRegion(region, p.x, p.y));
    for (const POINT p : {POINT{Ancho / 2, 0}, POINT{0, Alto / 2}, POINT{Ancho - 1, Alto / 2},
                          POINT{Ancho / 2, Alto - 1}})
        CHECK(PtInRegion(region, p.x, p.y));
    DeleteObject(region);
    const Captura forma = Captura::DeVentana(b.forma->Ventana());
    CHECK(forma.Pixel(b.Lugar.x, b.Lugar.y) == FondoDeForma);
    CHECK(forma.Pixel(b.Lugar.x + Ancho - 1, b.Lugar.y + Alto - 1) == FondoDeForma);
    CHECK(forma.Pixel(b.Lugar.x + Ancho / 2, b.Lugar.y + Alto / 2) == Rojo);
    Poner(boton, L"Estilos", 0);
    CHECK(Captura::DeVentana(b.forma->Ventana()).Pixel(b.Lugar.x, b.Lugar.y) == Rojo);
}

TEST_CASE("A picture that is not stretched stands two pixels inside its margin") {
    BancoDePixeles b;
    IDispatch* boton = b.AgregarRojo(1);
    const HDC pantalla = CreateCompatibleDC(nullptr);
    BITMAPINFO info{{sizeof(BITMAPINFOHEADER), 8, 8, 1, 24, BI_RGB, 0, 0, 0, 0, 0}, {}};
    void* bits = nullptr;
    const HBITMAP mapa = CreateDIBSection(pantalla, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    DeleteDC(pantalla);
    for (int i = 0; i < 64; ++i) {
        static_cast<BYTE*>(bits)[3 * i] = GetBValue(Verde);
        static_cast<BYTE*>(bits)[3 * i + 1] = GetGValue(Verde);
        static_cast<BYTE*>(bits)[3 * i + 2] = GetRValue(Verde);
    }
    PonerRef(boton, L"ImagNormal", Variante(anfitrion::CrearImagen(mapa).get()));
    Poner(boton, L"Expandir", false);
    // Measured in hundredths of a millimetre it is a trifle wider than its eight pixels.
    const struct {
        long alineacion;
        LONG x, y;
    } lugares[] = {{0, 3, 3},
                   {1, 3, 1 + (Alto - 9) / 2},
                   {3, 1 + (Ancho - 9) / 2, 3},
                   {4, 1 + (Ancho - 9) / 2, 1 + (Alto - 9) / 2}};
    for (const auto& uno : lugares) {
        INFO("alignment ", uno.alineacion);
        Poner(boton, L"AlinImag", uno.alineacion);
        const RECT r = Caja(b.Ver(), Verde);
        CHECK(r.left == uno.x);
        CHECK(r.top == uno.y);
        CHECK(r.right == uno.x + 8);
        CHECK(r.bottom == uno.y + 8);
    }
    // Aligned right and below it is pushed past the edge by its margin.
    Poner(boton, L"EstilosBord", 0);
    Poner(boton, L"AlinImag", 8);
    const RECT r = Caja(b.Ver(), Verde);
    CHECK(r.left == Ancho - 9 + 1);
    CHECK(r.top == Alto - 9 + 1);
    CHECK(r.right == Ancho);
    CHECK(r.bottom == Alto);
    // Stretched without a border it covers everything.
    Poner(boton, L"Expandir", true);
    CHECK(b.Ver().Contar({0, 0, Ancho, Alto}, Verde) == Ancho * Alto);
}
