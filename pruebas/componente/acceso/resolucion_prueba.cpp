// The resolution of the screen: fonts and picture sizes follow it, layout numbers stay pixels.
#include "pruebas/componente/acceso/banco.h"

#include "anfitrion/imagenes.h"

#include <olectl.h>

#include <algorithm>

using namespace acceso;

namespace {

int PppDePantalla() {
    HDC dc = GetDC(nullptr);
    const int ppp = GetDeviceCaps(dc, LOGPIXELSY);
    ReleaseDC(nullptr, dc);
    return ppp;
}

/// Rows between the first and the last that are not of the background, within the border.
int AltoDeLetra(const Captura& c) {
    int primera = -1, ultima = -1;
    const COLORREF fondo = c.Pixel(5, 5);
    for (int y = 5; y < c.Alto() - 5; ++y)
        for (int x = 5; x < c.Ancho() - 5; ++x)
            if (c.Pixel(x, y) != fondo) {
                if (primera < 0)
                    primera = y;
                ultima = y;
            }
    return primera < 0 ? 0 : ultima - primera + 1;
}

/// A picture of so many hundredths of a millimetre, red from edge to edge.
Puntero<IPictureDisp> CuadroRojo(LONG lado) {
    const HDC hdc = CreateMetaFileW(nullptr);
    SetMapMode(hdc, MM_ANISOTROPIC);
    SetWindowExtEx(hdc, 100, 100, nullptr);
    const HGDIOBJ rojo = CreateSolidBrush(RGB(255, 0, 0));
    SelectObject(hdc, rojo);
    PatBlt(hdc, 0, 0, 100, 100, PATCOPY);
    const HMETAFILE metaarchivo = CloseMetaFile(hdc);
    DeleteObject(rojo);
    return CrearImagen(metaarchivo, {lado, lado});
}

} // namespace

TEST_CASE("the extent in hundredths of a millimetre follows the resolution") {
    Banco b;
    SIZEL extension{};
    REQUIRE(b.boton->Objeto()->GetExtent(DVASPECT_CONTENT, &extension) == S_OK);
    const int ppp = PppDePantalla();
    CHECK(extension.cx == MulDiv(120, 2540, ppp));
    CHECK(extension.cy == MulDiv(40, 2540, ppp));
}

TEST_CASE("the border lies on whole pixels at any resolution") {
    Banco b;
    b.forma->BombearMensajes();
    const Captura c = Captura::DeVentana(b.boton->Ventana());
    CHECK(c.Pixel(60, 1) == RGB(0xC0, 0xC0, 0xC0));
    CHECK(c.Pixel(60, 38) == RGB(0x90, 0x90, 0x90));
    CHECK(c.Pixel(60, 0) == c.Pixel(60, 2));
}

TEST_CASE("a caption is as tall as its font at the resolution of the screen and is not clipped") {
    Banco b;
    b.Poner(L"Caption", L"Hg");
    b.forma->BombearMensajes();
    const Captura c = Captura::DeVentana(b.boton->Ventana());
    const int alto = AltoDeLetra(c);
    // 8.25 points: eleven pixels at 96 dots per inch, of which the letters H and g fill most.
    const int fuente = MulDiv(11, PppDePantalla(), 96);
    MESSAGE("dots per inch ", PppDePantalla(), ", letters ", alto, " rows of ", fuente);
    CHECK(alto >= fuente * 7 / 10);
    CHECK(alto <= fuente * 13 / 10);
}

TEST_CASE("a picture of a fifth of an inch is a fifth of an inch wide and tall on the screen") {
    Banco b;
    b.Poner(L"EstilosBord", 0L);
    const Puntero<IPictureDisp> imagen = CuadroRojo(508);
    b.Poner(L"Expandir", false);
    PonerRef(b.boton->Despacho(), L"ImagNormal", Variante(imagen.get()));
    b.forma->BombearMensajes();
    const Captura c = Captura::DeVentana(b.boton->Ventana());
    int rojos = 0, izquierda = c.Ancho(), derecha = -1;
    for (int y = 0; y < c.Alto(); ++y)
        for (int x = 0; x < c.Ancho(); ++x)
            if (c.Pixel(x, y) == RGB(255, 0, 0)) {
                ++rojos;
                izquierda = std::min(izquierda, x);
                derecha = std::max(derecha, x);
            }
    const int lado = MulDiv(508, PppDePantalla(), 2540);
    CHECK(derecha - izquierda + 1 >= lado - 1);
    CHECK(derecha - izquierda + 1 <= lado + 1);
    CHECK(rojos >= (lado - 1) * (lado - 1));
    CHECK(rojos <= (lado + 1) * (lado + 1));
}

TEST_CASE("a change of resolution relays the control") {
    Banco b;
    int cambios = 0;
    const auto sumidero =
        b.boton->Conectar([&](Evento& evento) { cambios += evento.nombre == L"Resize"; });
    constexpr UINT cambioDePpp = 0x02E3; // WM_DPICHANGED_AFTERPARENT
    SendMessageW(b.boton->Ventana(), cambioDePpp, 0, 0);
    CHECK(cambios == 1);
}
