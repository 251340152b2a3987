#include "plataforma/windows/pruebas/banco.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::windows::pruebas;

namespace {

constexpr Color Rojo{0x0000FF}, Verde{0x00FF00};

HDC Dc(Lienzo& lienzo) {
    return reinterpret_cast<HDC>(lienzo.hDC());
}

// Where a line of a width lands on one axis, as the first and one past the last pixel.
std::pair<int, int> Grosor(int ancho) {
    Banco banco(20, 20);
    Superficie& s = banco.entorno->superficie();
    s.PonBackColor(Blanco);
    s.Cls();
    s.PonDrawWidth(ancho);
    s.Line(10, 10, 10, 10, Rojo);
    int primero = -1, ultimo = -1;
    for (int x = 0; x < 20; ++x)
        if (::GetPixel(Dc(s), x, 10) == 0x0000FF) {
            primero = primero < 0 ? x : primero;
            ultimo = x;
        }
    return {primero, ultimo + 1};
}

} // namespace

TEST_CASE("A surface has an image before it has a size and before it has a window") {
    Banco banco(0, 0);
    Superficie& s = banco.entorno->superficie();
    CHECK(s.hWnd() == 0);
    CHECK(s.ScaleWidth() == 0);
    CHECK(::GetObjectType(Dc(s)) == OBJ_MEMDC);
    CHECK(::SetPixel(Dc(s), 0, 0, RGB(1, 2, 3)) == RGB(1, 2, 3));
}

TEST_CASE("The image keeps what it shows when the surface grows, and the new area is back colour") {
    Banco banco(10, 10);
    Superficie& s = banco.entorno->superficie();
    s.PonBackColor(Blanco);
    s.Cls();
    s.Line(2, 2, 5, 2, Rojo);
    s.PonBackColor(Verde);
    banco.entorno->PonTamano({20, 15}, false);
    CHECK(::GetPixel(Dc(s), 2, 2) == 0x0000FF);
    CHECK(::GetPixel(Dc(s), 5, 2) == 0x0000FF);
    CHECK(::GetPixel(Dc(s), 6, 2) == 0xFFFFFF);
    CHECK(::GetPixel(Dc(s), 12, 2) == 0x00FF00);
    CHECK(::GetPixel(Dc(s), 2, 12) == 0x00FF00);
    banco.entorno->PonTamano({4, 4}, false);
    CHECK(::GetPixel(Dc(s), 3, 2) == 0x0000FF);
}

TEST_CASE("The back colour takes effect when the surface is cleared") {
    Banco banco(10, 10);
    Superficie& s = banco.entorno->superficie();
    s.PonBackColor(Rojo);
    s.Cls();
    s.PonBackColor(Verde);
    CHECK(banco.Fotografiar()(5, 5) == 0xFF0000);
    s.Cls();
    CHECK(banco.Fotografiar()(5, 5) == 0x00FF00);
}

TEST_CASE("A line includes both ends and is centred, with the odd pixel toward lower coordinates") {
    CHECK(Grosor(1) == std::pair(10, 11));
    CHECK(Grosor(2) == std::pair(9, 11));
    CHECK(Grosor(3) == std::pair(9, 12));
    CHECK(Grosor(0) == std::pair(10, 11));

    Banco banco(30, 20);
    Superficie& s = banco.entorno->superficie();
    s.PonBackColor(Blanco);
    s.Cls();
    s.PonDrawWidth(3);
    s.Line(20, 8, 5, 8, Rojo);
    Foto& f = banco.Fotografiar();
    CHECK(f.Cuantos(0xFF0000, {0, 0, 30, 20}) == (20 - 5 + 1 + 2) * 3);
    CHECK(f(4, 7) == 0xFF0000);
    CHECK(f(21, 9) == 0xFF0000);
    CHECK(f(22, 8) == 0xFFFFFF);
}

TEST_CASE("An oblique line reaches both of its ends") {
    Banco banco(30, 30);
    Superficie& s = banco.entorno->superficie();
    s.PonBackColor(Blanco);
    s.Cls();
    s.Line(3, 4, 20, 25, Rojo);
    Foto& f = banco.Fotografiar();
    CHECK(f(3, 4) == 0xFF0000);
    CHECK(f(20, 25) == 0xFF0000);
    s.PonDrawWidth(3);
    s.Line(3, 25, 20, 4, Verde);
    CHECK(banco.Fotografiar()(12, 14) != 0xFFFFFF);
}

TEST_CASE("A square outline is a mitred frame exactly inside its edges") {
    Banco banco(20, 16);
    Superficie& s = banco.entorno->superficie();
    s.PonBackColor(Blanco);
    s.Cls();
    s.Contorno({2, 3, 18, 13, 0, 0, 2, Rojo, Verde});
    Foto& f = banco.Fotografiar();
    CHECK(f.Cuantos(0xFFFFFF, {0, 0, 20, 16}) == 20 * 16 - (16 * 10 - 12 * 6));
    CHECK(f.Cuantos(0xFF0000, {2, 3, 4, 11}) == 2 * 8);
    CHECK(f(10, 3) == 0xFF0000);
    CHECK(f(10, 12) == 0x00FF00);
    CHECK(f(17, 8) == 0x00FF00);
    CHECK(f(1, 8) == 0xFFFFFF);
    CHECK(f(18, 8) == 0xFFFFFF);
}

TEST_CASE(
    "A rounded outline stays inside its edges, smooth at the corners, lit from the top left") {
    Banco banco(60, 40);
    Superficie& s = banco.entorno->superficie();
    s.PonBackColor(Blanco);
    s.Cls();
    s.Contorno({5, 5, 55, 35, 20, 20, 2, Rojo, Verde});
    Foto& f = banco.Fotografiar();
    CHECK(f.Cuantos(0xFFFFFF, {0, 0, 60, 5}) == 60 * 5);
    CHECK(f.Cuantos(0xFFFFFF, {0, 35, 60, 40}) == 60 * 5);
    CHECK(f.Cuantos(0xFFFFFF, {0, 0, 5, 40}) == 5 * 40);
    CHECK(f.Cuantos(0xFFFFFF, {55, 0, 60, 40}) == 5 * 40);
    CHECK(f(5, 5) == 0xFFFFFF);
    CHECK(f(30, 5) == 0xFF0000);
    CHECK(f(5, 20) == 0xFF0000);
    CHECK(f(30, 34) == 0x00FF00);
    CHECK(f(54, 20) == 0x00FF00);
    int suaves = 0;
    for (int y = 5; y < 15; ++y)
        for (int x = 5; x < 15; ++x)
            suaves += f(x, y) != 0xFFFFFF && f(x, y) != 0xFF0000;
    CHECK(suaves > 5);
}

TEST_CASE("A faded image is grey drawn half way to the button face") {
    Banco banco(4, 4);
    Superficie& s = banco.entorno->superficie();
    s.PonBackColor(Rojo);
    s.Cls();
    s.Desvanecer();
    const COLORREF cara = ::GetSysColor(COLOR_BTNFACE);
    const int gris = 255 * 77 >> 8;
    const std::uint32_t querido = ((gris + GetRValue(cara)) / 2) << 16 |
                                  ((gris + GetGValue(cara)) / 2) << 8 |
                                  ((gris + GetBValue(cara)) / 2);
    CHECK(banco.Fotografiar()(1, 1) == querido);
}

TEST_CASE("Sizes in HIMETRIC follow the dots per inch") {
    Banco banco;
    Superficie& s = banco.entorno->superficie();
    CHECK(s.EscalaX(2540) == 96.0f);
    banco.entorno->PonPpp(144);
    CHECK(s.EscalaY(2540) == 144.0f);
}

TEST_CASE("Drawing tells the site once until the view is drawn again") {
    Banco banco(10, 10);
    Superficie& s = banco.entorno->superficie();
    banco.Fotografiar();
    banco.sitio.vistasCambiadas = 0;
    s.Cls();
    s.Line(1, 1, 5, 1, Rojo);
    s.hDC();
    CHECK(banco.sitio.vistasCambiadas == 1);
    banco.Fotografiar();
    s.hDC();
    CHECK(banco.sitio.vistasCambiadas == 2);
}
