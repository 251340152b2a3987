#include "plataforma/windows/objetos_windows.h"
#include "plataforma/windows/pruebas/banco.h"
#include "plataforma/windows/puntero_com.h"

#include <cmath>
#include <olectl.h>

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::windows;
using namespace pincela::windows::pruebas;

namespace {

// A picture of one colour, `lado` pixels square, 24 bits.
Imagen Cuadrado(int lado, COLORREF color) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, lado, lado, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
    void* memoria = nullptr;
    HDC dc = ::CreateCompatibleDC(nullptr);
    HBITMAP mapa = ::CreateDIBSection(dc, &info, DIB_RGB_COLORS, &memoria, nullptr, 0);
    HGDIOBJ original = ::SelectObject(dc, mapa);
    const RECT todo{0, 0, lado, lado};
    HBRUSH pincel = ::CreateSolidBrush(color);
    ::FillRect(dc, &todo, pincel);
    ::DeleteObject(pincel);
    ::SelectObject(dc, original);
    ::DeleteDC(dc);
    PICTDESC descripcion{};
    descripcion.cbSizeofstruct = sizeof descripcion;
    descripcion.picType = PICTYPE_BITMAP;
    descripcion.bmp.hbitmap = mapa;
    PunteroCom<IPicture> imagen;
    REQUIRE(
        SUCCEEDED(::OleCreatePictureIndirect(&descripcion, IID_IPicture, TRUE, imagen.RecibirVacio())));
    return EnvolverImagen(imagen.get());
}

} // namespace

TEST_CASE("A wrapped font is the container's own object and comes back as it was") {
    AtributosFuente atributos;
    atributos.Name = u"Arial";
    atributos.Size = 12;
    atributos.Bold = true;
    atributos.Underline = true;
    const Fuente fuente = CrearFuente(atributos);
    const AtributosFuente leidos = fuente->Atributos();
    CHECK(std::u16string_view(leidos.Name) == std::u16string_view(atributos.Name));
    // The platform rounds to what the device can show.
    CHECK(std::abs(leidos.Size - atributos.Size) <= 1);
    CHECK(leidos.Bold);
    CHECK(leidos.Underline);
    CHECK_FALSE(leidos.Italic);
    CHECK(leidos.Charset == atributos.Charset);
    CHECK(leidos.Strikethrough == false);
    PunteroCom<IFontDisp> disp;
    *disp.Recibir() = DesenvolverFuente(fuente);
    REQUIRE(disp);
    const Fuente otra = EnvolverFuente(disp.get());
    CHECK(MismoObjeto(fuente, otra));
    const Fuente gemela = CrearFuente(atributos);
    CHECK_FALSE(MismoObjeto(fuente, gemela));
    CHECK(fuente->EsIgual(*gemela));
    CHECK(EnvolverFuente(nullptr) == nullptr);
    CHECK(DesenvolverFuente(nullptr) == nullptr);
}

TEST_CASE("An object that is no font or no picture is a type mismatch") {
    const Fuente fuente = CrearFuente({});
    PunteroCom<IFontDisp> disp;
    *disp.Recibir() = DesenvolverFuente(fuente);
    try {
        EnvolverImagen(disp.get());
        FAIL("no error");
    } catch (const ErrorEjecucion& error) {
        CHECK(error.Numero() == NumeroError::TiposNoCoinciden);
    }
}

TEST_CASE("A label follows the changes of the container's font object") {
    Banco banco;
    auto etiqueta = banco.entorno->CrearEtiqueta();
    etiqueta->PonCaption(u"Texto");
    const Fuente fuente = CrearFuente({});
    etiqueta->PonFont(fuente);
    const float antes = etiqueta->Height();
    banco.Fotografiar();
    banco.sitio.vistasCambiadas = 0;
    PunteroCom<IFontDisp> disp;
    *disp.Recibir() = DesenvolverFuente(fuente);
    CY grande;
    grande.int64 = 240000;
    PunteroCom<IFont>::De(disp.get())->put_Size(grande);
    CHECK(banco.sitio.vistasCambiadas == 1);
    CHECK(etiqueta->Height() > 2 * antes);
    etiqueta.reset();
    grande.int64 = 100000;
    PunteroCom<IFont>::De(disp.get())->put_Size(grande);
}

TEST_CASE("A picture is drawn stretched into its rectangle and nowhere else") {
    Banco banco(40, 30);
    Superficie& s = banco.entorno->superficie();
    s.PonBackColor(Blanco);
    s.Cls();
    const Imagen imagen = Cuadrado(16, RGB(0, 0, 200));
    CHECK(std::abs(s.EscalaX(imagen->Width()) - 16) <= 0.05);
    s.PaintPicture(imagen, 5, 6, 20, 10);
    Foto& f = banco.Fotografiar();
    CHECK(f.Cuantos(0x0000C8, {5, 6, 25, 16}) == 20 * 10);
    CHECK(f.Cuantos(0xFFFFFF, {0, 0, 40, 30}) == 40 * 30 - 20 * 10);
    s.PaintPicture(nullptr, 0, 0, 40, 30);
    CHECK(banco.Fotografiar()(0, 0) == 0xFFFFFF);
}

TEST_CASE("The transparent part of an icon leaves the surface as it is") {
    BYTE conservar[32 * 4], forma[32 * 4];
    for (int i = 0; i < 32 * 4; ++i) { // the left half of the icon is opaque white
        const bool opaco = i % 4 < 2;
        conservar[i] = opaco ? 0x00 : 0xFF;
        forma[i] = opaco ? 0xFF : 0x00;
    }
    PICTDESC descripcion{};
    descripcion.cbSizeofstruct = sizeof descripcion;
    descripcion.picType = PICTYPE_ICON;
    descripcion.icon.hicon = ::CreateIcon(nullptr, 32, 32, 1, 1, conservar, forma);
    PunteroCom<IPicture> imagen;
    REQUIRE(
        SUCCEEDED(::OleCreatePictureIndirect(&descripcion, IID_IPicture, TRUE, imagen.RecibirVacio())));
    Banco banco(40, 40);
    Superficie& s = banco.entorno->superficie();
    s.PonBackColor(Color(std::uint32_t{0x00FF00}));
    s.Cls();
    s.PaintPicture(EnvolverImagen(imagen.get()), 2, 2, 32, 32);
    Foto& f = banco.Fotografiar();
    CHECK(f(5, 10) == 0xFFFFFF);
    CHECK(f(25, 10) == 0x00FF00);
    s.PonMouseIcon(EnvolverImagen(imagen.get()));
    s.PonMousePointer(99);
    const HWND ventana = banco.Activar();
    ::SendMessageW(ventana, WM_SETCURSOR, reinterpret_cast<WPARAM>(ventana),
                   MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    CHECK(::GetCursor() == descripcion.icon.hicon);
    ::SetCursor(nullptr);
}

TEST_CASE("A picture box keeps an image of its own and shows a picture at its own size") {
    Banco banco;
    auto cuadro = banco.entorno->CrearCuadroImagen();
    cuadro->PonBackColor(Blanco);
    cuadro->Move(0, 0, 30, 20);
    CHECK(cuadro->ScaleWidth() == 30);
    cuadro->PonPicture(Cuadrado(8, RGB(200, 0, 0)));
    HDC dc = reinterpret_cast<HDC>(cuadro->hDC());
    CHECK(::GetPixel(dc, 7, 7) == RGB(200, 0, 0));
    CHECK(::GetPixel(dc, 9, 9) == 0xFFFFFF);
    cuadro->PonPicture(nullptr);
    CHECK(::GetPixel(dc, 7, 7) == 0xFFFFFF);
}
