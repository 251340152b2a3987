// What a panel on a form looks like: background, border, caption.
#include "pruebas/componente/panel/banco.h"
#include "pruebas/componente/pixeles/caja.h"

#include <cstdlib>

using namespace panel;
using publicado::Caja;

namespace {

struct Perfil {
    COLORREF fuera, exterior, interior, adentro;
    friend bool operator==(const Perfil&, const Perfil&) = default;
};

/// The tones met from one edge inward: around the lines and in the middle of each.
Perfil Desde(const Captura& c, int separa, int ancho, POINT borde, POINT paso) {
    auto en = [&](int d) { return c.Pixel(borde.x + paso.x * d, borde.y + paso.y * d); };
    return {en(separa - 1), en(separa + ancho / 2), en(separa + ancho + ancho / 2),
            en(separa + 2 * ancho)};
}

struct Lados {
    Perfil arriba, izquierda, abajo, derecha;
};

Lados Medir(const Captura& c, int separa, int ancho) {
    const int x = BancoPanel::W / 2, y = BancoPanel::H / 2;
    return {Desde(c, separa, ancho, {x, 0}, {0, 1}), Desde(c, separa, ancho, {0, y}, {1, 0}),
            Desde(c, separa, ancho, {x, BancoPanel::H - 1}, {0, -1}),
            Desde(c, separa, ancho, {BancoPanel::W - 1, y}, {-1, 0})};
}

void ComprobarBorde(BancoPanel& b, COLORREF exteriorArriba, COLORREF interiorArriba,
                    COLORREF exteriorAbajo, COLORREF interiorAbajo) {
    for (int separa = 1; separa <= 3; ++separa)
        for (int ancho = 1; ancho <= 3; ++ancho) {
            INFO("spacing ", separa, ", width ", ancho);
            b.Poner(L"SeparaBorde", separa);
            b.Poner(L"AnchoBorde", ancho);
            const Lados lados = Medir(b.Ver(), separa, ancho);
            const Perfil luz{Azul, exteriorArriba, interiorArriba, Azul};
            const Perfil sombra{Azul, exteriorAbajo, interiorAbajo, Azul};
            CHECK(lados.arriba == luz);
            CHECK(lados.izquierda == luz);
            CHECK(lados.abajo == sombra);
            CHECK(lados.derecha == sombra);
        }
}

struct BancoAzul : BancoPanel {
    BancoAzul() { Color(L"ColorFondo", Azul); }
};

/// A blue panel with a red caption and no border.
struct BancoTitulo : BancoAzul {
    BancoTitulo() {
        Poner(L"EstilosBord", 0);
        Poner(L"Caption", L"HHHH");
        Color(L"ColorLetra", Rojo);
    }
    RECT Titulo() { return Caja(Ver(), Rojo); }
};

} // namespace

TEST_CASE("a new panel is white with a double black line one pixel in") {
    BancoPanel b;
    const Captura c = b.Ver();
    const RECT exterior{1, 1, b.W - 1, b.H - 1}, interior{2, 2, b.W - 2, b.H - 2};
    CHECK(EnContorno(c, exterior, GetSysColor(COLOR_WINDOWTEXT)) == Contorno(exterior));
    CHECK(EnContorno(c, interior, GetSysColor(COLOR_WINDOWTEXT)) == Contorno(interior));
    CHECK(c.Contar({0, 0, b.W, b.H}, Blanco) ==
          b.W * b.H - Contorno(exterior) - Contorno(interior));
}

TEST_CASE("a solid background is its colour, a system colour too") {
    BancoPanel b;
    b.Poner(L"EstilosBord", 0);
    b.Color(L"ColorFondo", Azul);
    CHECK(b.Ver().Contar({0, 0, b.W, b.H}, Azul) == b.W * b.H);
    b.Poner(L"ColorFondo", static_cast<long>(0x8000000F));
    CHECK(b.Ver().Contar({0, 0, b.W, b.H}, GetSysColor(COLOR_BTNFACE)) == b.W * b.H);
}

TEST_CASE("a normal border is two lines in the colour of the letter") {
    BancoAzul b;
    b.Color(L"ColorLetra", Rojo);
    ComprobarBorde(b, Rojo, Rojo, Rojo, Rojo);
    b.Color(L"ColorLetra", Blanco);
    CHECK(b.Ver().Contar({0, 0, b.W, b.H}, Rojo) == 0);
}

TEST_CASE("a linear border is one line in the system's shadow") {
    BancoAzul b;
    b.Poner(L"EstilosBord", 2);
    const COLORREF sombra = GetSysColor(COLOR_BTNSHADOW);
    ComprobarBorde(b, sombra, Azul, sombra, Azul);
}

TEST_CASE("a coloured border is etched like a group box, in the tones of the system") {
    BancoAzul b;
    const COLORREF sombra = GetSysColor(COLOR_BTNSHADOW), luz = GetSysColor(COLOR_BTNHIGHLIGHT);
    for (const int estilo : {3, 9}) { // what is no style looks the same
        b.Poner(L"EstilosBord", estilo);
        ComprobarBorde(b, sombra, luz, luz, sombra);
    }
}

TEST_CASE("a graded border is etched in the ends of the gradient") {
    BancoAzul b;
    b.Poner(L"EstilosBord", 4);
    b.Poner(L"ColorDegrade", std::to_wstring(Rojo) + L"*0*" + std::to_wstring(Amarillo));
    ComprobarBorde(b, Rojo, Amarillo, Amarillo, Rojo);
}

TEST_CASE("no border leaves the panel its colour from edge to edge") {
    BancoAzul b;
    b.Poner(L"EstilosBord", 0);
    CHECK(b.Ver().Contar({0, 0, b.W, b.H}, Azul) == b.W * b.H);
}

TEST_CASE("a gradient fills the whole panel") {
    BancoPanel b;
    b.Poner(L"EstilosBord", 0);
    b.Poner(L"ColorDegrade", L"16777215*0");
    b.Poner(L"EstilosRell", 1);
    const Captura horizontal = b.Ver();
    for (int x = 0; x < b.W; x += 9) {
        const auto g = static_cast<BYTE>((0xFF00 * (b.W - x) / b.W) >> 8);
        CHECK(horizontal.Pixel(x, 3) == RGB(g, g, g));
    }
    b.Poner(L"EstilosRell", 2);
    const Captura vertical = b.Ver();
    for (int y = 0; y < b.H; y += 9) {
        const auto g = static_cast<BYTE>((0xFF00 * (b.H - y) / b.H) >> 8);
        CHECK(vertical.Pixel(5, y) == RGB(g, g, g));
    }
    b.Poner(L"EstilosRell", 4);
    CHECK(b.Ver() == vertical);
    b.Poner(L"EstilosRell", 3);
    const Captura piramide = b.Ver();
    CHECK(GetRValue(piramide.Pixel(b.W / 2, b.H / 2)) > 230);
    CHECK(GetRValue(piramide.Pixel(1, 1)) < 25);
    // An empty list draws nothing: the background colour shows.
    b.Poner(L"ColorDegrade", L"");
    CHECK(b.Ver().Contar({0, 0, b.W, b.H}, Blanco) == b.W * b.H);
}

TEST_CASE("a gradient follows the size of the panel") {
    BancoPanel b;
    b.Poner(L"EstilosBord", 0);
    b.Poner(L"ColorDegrade", L"16777215*0");
    b.Poner(L"EstilosRell", 1);
    b.panel->Mover({20, 20, 120, 100});
    const Captura c = b.Ver();
    REQUIRE(c.Ancho() == 100);
    CHECK(c.Pixel(99, 40) == RGB(2, 2, 2));
    CHECK(c.Pixel(0, 40) == Blanco);
}

TEST_CASE("the caption goes to nine places, with its uneven margins") {
    BancoTitulo b;
    RECT cajas[9];
    for (int a = 0; a < 9; ++a) {
        b.Poner(L"AlinText", a);
        cajas[a] = b.Titulo();
        REQUIRE(cajas[a].right > cajas[a].left);
    }
    // With S = A = 1 the left column lies at 3, 1 and 3.
    CHECK(cajas[0].left == cajas[1].left + 2);
    CHECK(cajas[2].left == cajas[0].left);
    for (const int columna : {0, 3, 6}) { // rows agree across the columns
        CHECK(cajas[columna].top == cajas[0].top);
        CHECK(cajas[columna + 1].top == cajas[1].top);
        CHECK(cajas[columna + 2].top == cajas[2].top);
    }
    CHECK(cajas[3].left == cajas[4].left);
    CHECK(cajas[6].left == cajas[7].left);
    // The letters have some room on their right.
    CHECK(std::abs(cajas[4].left + cajas[4].right - (b.W - 2)) <= 6);
    CHECK(cajas[0].top < 12);
    CHECK(cajas[2].bottom > b.H - 12);
    CHECK(cajas[6].right > b.W - 8);
    b.Poner(L"SeparaBorde", 3);
    b.Poner(L"AnchoBorde", 2);
    const struct {
        int alineacion, x, y;
    } pasos[] = {
        // 2S + A instead of 3; S + A - 1 instead of 1; S + A instead of 2
        {0, 8 - 3, 4 - 1},
        {1, 4 - 1, -1},
        {8, -(5 - 2), -(5 - 2)},
        {3, -1, 4 - 1},
    };
    for (const auto& paso : pasos) {
        INFO("place ", paso.alineacion);
        b.Poner(L"AlinText", paso.alineacion);
        const RECT r = b.Titulo();
        CHECK(r.left == cajas[paso.alineacion].left + paso.x);
        // Halving rounds, so the middle row may lie one pixel further.
        CHECK(std::abs(r.top - cajas[paso.alineacion].top - paso.y) <=
              (paso.alineacion == 1 ? 1 : 0));
    }
}

TEST_CASE("lettering stands out, sinks in, or has copies in the inverse colour") {
    BancoTitulo b;
    const struct {
        int tipo, lado; ///< side of the light copy: -1 above
        COLORREF primera, segunda;
    } casos[] = {{1, -1, Blanco, Negro},
                 {2, 1, Blanco, Negro},
                 {3, -1, 0xFFFFFF ^ Rojo, 0xFFFFFF ^ Rojo},
                 {4, 1, 0xFFFFFF ^ Rojo, 0xFFFFFF ^ Rojo}};
    const RECT r = b.Titulo();
    CHECK(b.Ver().Contar({0, 0, b.W, b.H}, Blanco) == 0);
    for (const auto& caso : casos) {
        INFO("lettering ", caso.tipo);
        b.Poner(L"TipoLetra", caso.tipo);
        const Captura c = b.Ver();
        const RECT primera = Caja(c, caso.primera), segunda = Caja(c, caso.segunda);
        const bool arriba = caso.lado < 0;
        CHECK(primera.left == (arriba ? r.left - 1 : primera.left));
        CHECK((arriba ? primera.top : primera.bottom) == (arriba ? r.top : r.bottom) + caso.lado);
        CHECK((arriba ? segunda.bottom : segunda.top) == (arriba ? r.bottom : r.top) - caso.lado);
    }
    b.Poner(L"TipoLetra", 0);
    CHECK(b.Ver().Contar({0, 0, b.W, b.H}, Blanco) == 0);
}

TEST_CASE("a disabled panel greys its caption") {
    BancoTitulo b;
    b.Poner(L"Enabled", false);
    CHECK(b.Ver().Contar({0, 0, b.W, b.H}, Rojo) == 0);
    b.Poner(L"Enabled", true);
    CHECK(b.Ver().Contar({0, 0, b.W, b.H}, Rojo) > 0);
}

TEST_CASE("a panel that is not in place is drawn as the window shows it") {
    BancoAzul b;
    b.Poner(L"Caption", L"Título");
    b.Poner(L"EstilosBord", 3);
    const Captura ventana = b.Ver();
    const auto vista = b.panel->Como<IViewObject>();
    const Captura dibujo = Captura::DeDibujo(b.W, b.H, [&](HDC hdc) {
        const RECTL lugar{0, 0, b.W, b.H};
        CHECK(vista->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, hdc, &lugar, nullptr,
                          nullptr, 0) == S_OK);
    });
    CHECK(dibujo == ventana);
    CHECK(Captura::Impresa(b.Ventana()) == ventana);
}
