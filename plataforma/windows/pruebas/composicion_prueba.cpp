#include "plataforma/windows/objetos_windows.h"
#include "plataforma/windows/pruebas/banco.h"

#include "pruebas/cada.h"

#include <doctest/doctest.h>

using namespace pincela;
using namespace pincela::windows;
using namespace pincela::windows::pruebas;

namespace {

constexpr Color Rojo{0x0000FF}, Verde{0x00FF00}, Azul{0xFF0000};

void FotografiarVentana(HWND ventana, Foto& foto) {
    ::SendMessageW(ventana, WM_PRINT, reinterpret_cast<WPARAM>(foto.dc()),
                   PRF_CLIENT | PRF_CHILDREN);
}

int CALLBACK ContarTextos(HDC, HANDLETABLE*, const ENHMETARECORD* registro, int, LPARAM cuenta) {
    *reinterpret_cast<int*>(cuenta) += registro->iType == EMR_EXTTEXTOUTW;
    return 1;
}

bool HayTinta(const Foto& f, RECT donde, std::uint32_t fondo) {
    return f.Cuantos(fondo, donde) < (donde.right - donde.left) * (donde.bottom - donde.top);
}

} // namespace

TEST_CASE("Widgets made later lie in front, and all lie in front of the image") {
    Banco banco(40, 20);
    banco.entorno->superficie().PonBackColor(Blanco);
    banco.entorno->superficie().Cls();
    auto atras = banco.entorno->CrearRectangulo();
    auto delante = banco.entorno->CrearLinea();
    atras->PonBorde(Rectangulo::Borde::Ninguno);
    atras->PonFillColor(Rojo);
    atras->Move(5, 5, 10, 10);
    delante->PonBorderColor(Azul);
    delante->Move(0, 8, 39, 8);
    Foto& f = banco.Fotografiar();
    CHECK(f.Cuantos(0xFF0000, {0, 0, 40, 20}) == 10 * 9);
    CHECK(f.Cuantos(0x0000FF, {0, 0, 40, 20}) == 40);
    CHECK(f(7, 8) == 0x0000FF);
    delante->PonVisible(false);
    CHECK(banco.Fotografiar()(7, 8) == 0xFF0000);
    atras.reset();
    CHECK(banco.Fotografiar()(7, 7) == 0xFFFFFF);
}

TEST_CASE("A rectangle draws its border on its own edge, solid, dotted or rounded") {
    Banco banco(40, 30);
    banco.entorno->superficie().PonBackColor(Blanco);
    banco.entorno->superficie().Cls();
    auto r = banco.entorno->CrearRectangulo();
    r->PonBorderColor(Rojo);
    r->Move(4, 4, 20, 10);
    CHECK(banco.Fotografiar().Cuantos(0xFF0000, {4, 4, 24, 14}) == 2 * 20 + 2 * 8);
    CHECK(banco.foto->Cuantos(0xFF0000, {0, 0, 40, 30}) == 2 * 20 + 2 * 8);
    r->PonBorde(Rectangulo::Borde::Punteado);
    const int puntos = banco.Fotografiar().Cuantos(0xFF0000, {0, 0, 40, 30});
    CHECK(puntos >= 24);
    CHECK(puntos <= 32);
    r->PonBorde(Rectangulo::Borde::Continuo);
    r->PonElipse(8, 8);
    CHECK(banco.Fotografiar()(4, 4) == 0xFFFFFF);
    CHECK(banco.foto->operator()(14, 4) == 0xFF0000);
}

TEST_CASE("A label measures its caption, one line high when empty and taller with more lines") {
    Banco banco;
    auto e = banco.entorno->CrearEtiqueta();
    const float linea = e->Height();
    CHECK(e->Width() == 0);
    CHECK(linea > 8);
    e->PonCaption(u"Aceptar");
    const float ancho = e->Width();
    CHECK(ancho > 20);
    CHECK(e->Height() == linea);
    e->PonCaption(u"&Aceptar");
    CHECK(e->Width() == ancho);
    e->PonCaption(u"&&Aceptar");
    CHECK(e->Width() > ancho);
    e->PonCaption(u"Aceptar\r\nCancelar");
    CHECK(e->Height() == 2 * linea);
    AtributosFuente grande;
    grande.Size = 20;
    e->PonFont(CrearFuente(grande));
    CHECK(e->Height() > 3 * linea);
    banco.entorno->PonPpp(192);
    CHECK(e->Height() > 7 * linea);
}

TEST_CASE("A label is transparent text in its colour, and readable when disabled") {
    Banco banco(100, 30);
    banco.entorno->superficie().PonBackColor(Blanco);
    banco.entorno->superficie().Cls();
    auto e = banco.entorno->CrearEtiqueta();
    e->PonCaption(u"Hola");
    e->PonForeColor(Rojo);
    e->Move(10, 5);
    const RECT caja{10, 5, 10 + static_cast<LONG>(e->Width()), 5 + static_cast<LONG>(e->Height())};
    Foto& f = banco.Fotografiar();
    CHECK(f.Cuantos(0xFF0000, caja) > 10);
    CHECK(f(caja.left, caja.bottom - 1) == 0xFFFFFF);
    CHECK_FALSE(HayTinta(f, {caja.right + 2, 0, 100, 30}, 0xFFFFFF));
    e->PonEnabled(false);
    CHECK(HayTinta(banco.Fotografiar(), caja, 0xFFFFFF));
    CHECK(banco.foto->Cuantos(0xFF0000, caja) == 0);
    banco.entorno->superficie().PonBackColor(Color(std::uint32_t{0x000000}));
    banco.entorno->superficie().Cls();
    CHECK(HayTinta(banco.Fotografiar(), caja, 0x000000));
}

TEST_CASE("System colours are looked up when they are drawn") {
    Banco banco(10, 10);
    const COLORREF cara = ::GetSysColor(COLOR_BTNFACE);
    CHECK(
        banco.Fotografiar()(5, 5) ==
        static_cast<std::uint32_t>(GetRValue(cara) << 16 | GetGValue(cara) << 8 | GetBValue(cara)));
}

TEST_CASE("The window paints image and widgets and tells Paint afterwards") {
    Banco banco(50, 20);
    banco.entorno->superficie().PonBackColor(Verde);
    banco.entorno->superficie().Cls();
    const HWND ventana = banco.Activar();
    REQUIRE(ventana);
    CHECK(banco.entorno->superficie().hWnd() == reinterpret_cast<Manejador>(ventana));
    banco.entorno->superficie().Line(0, 3, 49, 3, Rojo);
    banco.entorno->superficie().Refresh();
    CHECK(banco.hechos() == std::vector<std::string>{"Paint"});
    HDC dc = ::GetDC(ventana);
    CHECK(::GetPixel(dc, 10, 3) == 0x0000FF);
    CHECK(::GetPixel(dc, 10, 10) == 0x00FF00);
    ::ReleaseDC(ventana, dc);
    Foto f(50, 20);
    FotografiarVentana(ventana, f);
    CHECK(f(10, 3) == 0xFF0000);
    CHECK(f(49, 19) == 0x00FF00);
}

TEST_CASE("A transparent surface shows its container wherever nothing was drawn") {
    Banco banco(50, 20);
    Superficie& s = banco.entorno->superficie();
    s.PonBackStyle(0);
    s.PonBackColor(Verde);
    s.Cls();
    s.Line(5, 5, 20, 5, Rojo);
    const HWND ventana = banco.Activar();
    Foto f(50, 20);
    FotografiarVentana(ventana, f);
    CHECK(f(0, 0) == 0x0A141E);
    CHECK(f(49, 19) == 0x0A141E);
    CHECK(f(10, 5) == 0xFF0000);
    CHECK(f.Cuantos(0xFF0000, {0, 0, 50, 20}) == 16);
    CHECK(f.Cuantos(0x0A141E, {0, 0, 50, 20}) == 50 * 20 - 16);
    s.Refresh();
    HDC dc = ::GetDC(ventana);
    CHECK(::GetPixel(dc, 30, 10) == RGB(10, 20, 30));
    CHECK(::GetPixel(dc, 10, 5) == 0x0000FF);
    ::ReleaseDC(ventana, dc);
    CHECK(banco.Fotografiar()(30, 10) == 0xFF00FF);
    s.PonBackStyle(1);
    CHECK(banco.Fotografiar()(30, 10) == 0x00FF00);
}

TEST_CASE("A transparent surface over another surface shows it") {
    Banco abajo(80, 40);
    abajo.entorno->superficie().PonBackColor(Azul);
    abajo.entorno->superficie().Cls();
    const HWND padre = abajo.Activar();
    SitioDePrueba sitio;
    EntornoWindows arriba(sitio);
    ControlDePrueba control(sitio.hechos);
    arriba.Asociar(&control);
    arriba.superficie().PonBackStyle(0);
    const HWND hija = arriba.CrearVentana(padre, {5, 5, 45, 25});
    REQUIRE(hija);
    ::UpdateWindow(hija);
    HDC dc = ::GetDC(hija);
    CHECK(::GetPixel(dc, 10, 10) == 0xFF0000);
    ::ReleaseDC(hija, dc);
    arriba.Asociar(nullptr);
}

TEST_CASE("The view is drawn at any scale and place, with sharp lines and real text") {
    Banco banco(100, 30);
    Superficie& s = banco.entorno->superficie();
    s.PonBackColor(Verde);
    s.Cls();
    auto e = banco.entorno->CrearEtiqueta();
    e->PonCaption(u"Texto");
    e->Move(20, 8);
    auto l = banco.entorno->CrearLinea();
    l->PonBorderColor(Rojo);
    l->Move(0, 4, 99, 4);
    Foto f(320, 120);
    banco.entorno->Dibujar(f.dc(), {10, 10, 310, 100});
    CHECK(f(9, 50) == 0xFF00FF);
    CHECK(f(310, 50) == 0xFF00FF);
    CHECK(f(10, 99) == 0x00FF00);
    CHECK(f.Cuantos(0xFF0000, {0, 0, 320, 120}) == 300 * 3);
    CHECK(f(100, 10 + 4 * 3) == 0xFF0000);
    const RECT texto{10 + 60, 10 + 24, 10 + 60 + static_cast<LONG>(e->Width()) * 3, 100};
    CHECK(HayTinta(f, texto, 0x00FF00));
    CHECK_FALSE(HayTinta(f, {texto.right + 6, 30, 305, 95}, 0x00FF00));
}

TEST_CASE("A metafile of the view plays back with its background, lines and text") {
    Banco banco(100, 30);
    banco.entorno->superficie().PonBackColor(Verde);
    banco.entorno->superficie().Cls();
    banco.entorno->superficie().Line(0, 2, 99, 2, Azul);
    auto e = banco.entorno->CrearEtiqueta();
    e->PonCaption(u"Texto");
    e->Move(20, 8);
    HDC meta = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    banco.entorno->Dibujar(meta, {0, 0, 200, 60});
    HENHMETAFILE fichero = ::CloseEnhMetaFile(meta);
    int textos = 0;
    ::EnumEnhMetaFile(nullptr, fichero, ContarTextos, &textos, nullptr);
    CHECK(textos >= 1);
    Foto f(200, 60);
    const RECT todo{0, 0, 200, 60};
    ::PlayEnhMetaFile(f.dc(), fichero, &todo);
    CHECK(f(150, 50) == 0x00FF00);
    CHECK(f.Cuantos(0x0000FF, {0, 3, 200, 7}) > 150);
    CHECK(HayTinta(f, {40, 16, 100, 50}, 0x00FF00));
    ::DeleteEnhMetaFile(fichero);
}

TEST_CASE("A sample of everything is painted") {
    Banco banco(220, 120);
    Superficie& s = banco.entorno->superficie();
    s.PonBackColor(Color(std::uint32_t{0xF0F0F0}));
    s.Cls();
    s.Contorno({10, 10, 110, 50, 24, 24, 2, Color(std::uint32_t{0xC0C0C0}),
                Color(std::uint32_t{0x606060})});
    s.Contorno({120, 10, 210, 50, 60, 30, 3, Color(std::uint32_t{0xFFA060}),
                Color(std::uint32_t{0x803000})});
    s.PonDrawWidth(2);
    s.Line(10, 60, 100, 60, Color(std::uint32_t{0xC0C0C0}));
    s.Line(100, 60, 100, 110, Color(std::uint32_t{0x909090}));
    s.Line(100, 110, 10, 110, Color(std::uint32_t{0x909090}));
    s.Line(10, 110, 10, 60, Color(std::uint32_t{0xC0C0C0}));
    s.Line(120, 60, 205, 110, Rojo);
    auto foco = banco.entorno->CrearRectangulo();
    foco->PonBorde(Rectangulo::Borde::Punteado);
    foco->Move(14, 64, 83, 43);
    auto blanca = banco.entorno->CrearEtiqueta(), texto = banco.entorno->CrearEtiqueta(),
         gris = banco.entorno->CrearEtiqueta();
    AtributosFuente fuente;
    fuente.Size = 12;
    fuente.Bold = true;
    for (Etiqueta* e : {blanca.get(), texto.get()}) {
        e->PonFont(CrearFuente(fuente));
        e->PonCaption(u"&Aceptar");
    }
    blanca->PonForeColor(Blanco);
    const float x = (120 - texto->Width()) / 2, y = (60 - texto->Height()) / 2;
    blanca->Move(x - 1, y - 1);
    texto->Move(x, y);
    gris->PonCaption(u"Deshabilitada");
    gris->PonEnabled(false);
    gris->Move(20, 78);
    Foto grande(660, 480);
    banco.entorno->Dibujar(grande.dc(), {0, 0, 220, 120});
    banco.entorno->Dibujar(grande.dc(), {0, 120, 660, 480});
    if (const wchar_t* fichero = ::_wgetenv(L"PINCELA_MUESTRA"))
        grande.Guardar(fichero);
    CHECK(HayTinta(grande, {0, 0, 220, 120}, 0xF0F0F0));
}

TEST_CASE("A refresh paints once, also where somebody validated the window meanwhile") {
    Banco banco;
    const HWND ventana = banco.Activar();
    ::UpdateWindow(ventana);
    Superficie& superficie = banco.entorno->superficie();
    const bool validada = pincela::pruebas::Cada<bool>({false, true});
    CAPTURE(validada);
    superficie.Cls();
    if (validada)
        ::ValidateRect(ventana, nullptr);
    banco.Olvidar();
    superficie.Refresh();
    CHECK(banco.hechos() == std::vector<std::string>{"Paint"});
}
