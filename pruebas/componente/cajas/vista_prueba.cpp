// What a text box shows: in its window, drawn by its container, and through its own surface.
#include "pruebas/cada.h"
#include "pruebas/componente/cajas/banco.h"

using namespace cajas;
using pincela::pruebas::Cada;

namespace {

constexpr COLORREF Rojo = RGB(255, 0, 0), Verde = RGB(0, 255, 0), Azul = RGB(0, 0, 255);

constexpr int Ancho = 120, Alto = 40;
constexpr RECT Todo{0, 0, Ancho, Alto};

Captura Dibujada(const ControlAlojado& control, int ancho = Ancho, int alto = Alto) {
    return Captura::DeDibujo(ancho, alto, [&](HDC hdc) {
        const RECTL limites{0, 0, ancho, alto};
        REQUIRE(control.Como<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr,
                                                  hdc, &limites, nullptr, nullptr, 0) == S_OK);
    });
}

/// Red surface, white field with blue letters.
struct BancoDeColores : BancoDeCaja {
    explicit BancoDeColores(const wchar_t* clase) : BancoDeCaja(clase) {
        Poner(L"BackStyle", 1L);
        Poner(L"ColorFondo", static_cast<long>(Rojo));
        Poner(L"ColorFonTexto", 0xFFFFFFL);
        Poner(L"ColorLetra", static_cast<long>(Azul));
        Poner(L"Text", L"XXXXXXXX");
        Esperar();
    }
};

/// Adds the text of one record of a metafile.
int CALLBACK Juntar(HDC, HANDLETABLE*, const ENHMETARECORD* r, int, LPARAM salida) {
    if (r->iType == EMR_EXTTEXTOUTW) {
        const auto& t = reinterpret_cast<const EMREXTTEXTOUTW*>(r)->emrtext;
        const auto* letras =
            reinterpret_cast<const wchar_t*>(reinterpret_cast<const char*>(r) + t.offString);
        reinterpret_cast<std::wstring*>(salida)->append(letras, t.nChars);
    }
    return 1;
}

const wchar_t* CadaClase() {
    return Cada({L"Pincela.Tbox", L"Pincela.TBoxML", L"Pincela.TboxSS", L"Pincela.TboxSSML"});
}

} // namespace

TEST_CASE("A view drawn by the container shows the text of the field, in place or not") {
    BancoDeColores b(CadaClase());
    const int enSitio = Dibujada(*b.boton).Contar(Todo, Azul);
    CHECK(enSitio > 40);
    b.boton->Como<IOleInPlaceObject>()->InPlaceDeactivate();
    const Captura inactiva = Dibujada(*b.boton);
    CHECK(inactiva.Contar(Todo, Azul) == enSitio);
    CHECK(inactiva.Pixel(0, Alto - 1) == Rojo);
    b.Poner(L"Text", L"");
    CHECK(Dibujada(*b.boton).Contar(Todo, Azul) == 0);
}

TEST_CASE("The window and the view agree on where field, letters and background are") {
    BancoDeColores b(Cada({L"Pincela.Tbox", L"Pincela.TboxSS"}));
    const Captura ventana = Captura::DeVentana(b.Ventana());
    const Captura vista = Dibujada(*b.boton);
    for (const POINT p : {POINT{0, 0}, {0, 39}, {100, 12}, {3, 0}})
        CHECK(ventana.Pixel(p.x, p.y) == vista.Pixel(p.x, p.y));
    CHECK(ventana.Contar(Todo, Azul) > 40);
    CHECK(vista.Contar(Todo, Azul) == ventana.Contar(Todo, Azul));
}

TEST_CASE("A metafile of the control holds the text as text") {
    BancoDeColores b(CadaClase());
    FORMATETC formato{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
    STGMEDIUM medio{};
    REQUIRE(b.boton->Como<IDataObject>()->GetData(&formato, &medio) == S_OK);
    std::wstring escrito;
    EnumEnhMetaFile(nullptr, medio.hEnhMetaFile, Juntar, &escrito, nullptr);
    ReleaseStgMedium(&medio);
    CHECK(escrito.find(L"XXXXXXXX") != std::wstring::npos);
}

TEST_CASE("Drawn larger, a text box is a larger text box") {
    BancoDeColores b(CadaClase());
    const Captura doble = Dibujada(*b.boton, 2 * Ancho, 2 * Alto);
    // Large letters are smoothed, so not all of them is of the pure colour.
    CHECK(doble.Contar({0, 0, 2 * Ancho, 2 * Alto}, Azul) >
          3 * Dibujada(*b.boton).Contar(Todo, Azul) / 2);
    CHECK(doble.Pixel(0, 2 * Alto - 1) == Rojo);
}

TEST_CASE("Letters are cut at the field's edge, not at the control's") {
    BancoDeColores b(Cada({L"Pincela.Tbox", L"Pincela.TboxSS"}));
    b.Poner(L"Text", std::wstring(200, L'X'));
    const Captura vista = Dibujada(*b.boton);
    const RECT borde{Ancho - 1, 0, Ancho, Alto};
    CHECK(vista.Contar(borde, Azul) == 0);
}

TEST_CASE("A transparent text box shows the form behind it, as the form is at that moment") {
    BancoDeCaja b(CadaClase());
    COLORREF fondo = Verde;
    b.forma->alPintar = [&](HDC hdc, const RECT& r) {
        SetDCBrushColor(hdc, fondo);
        FillRect(hdc, &r, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    };
    const auto repintar = [&] {
        RedrawWindow(b.forma->Ventana(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
        b.Esperar();
        return Captura::DeVentana(b.Ventana()).Pixel(0, Alto - 1);
    };
    b.Poner(L"ColorFondo", static_cast<long>(Rojo));
    b.Poner(L"BackStyle", 1L);
    CHECK(repintar() == Rojo);
    b.Poner(L"BackStyle", 0L);
    b.Esperar();
    CHECK(Captura::DeVentana(b.Ventana()).Pixel(0, Alto - 1) == Verde);
    fondo = Azul;
    CHECK(repintar() == Azul);
    fondo = Verde;
    b.forma->CambiarAmbiente(DISPID_AMBIENT_BACKCOLOR, [](Ambiente&) {});
    b.Esperar();
    CHECK(Captura::DeVentana(b.Ventana()).Pixel(0, Alto - 1) == Verde);
    b.Poner(L"BackStyle", 1L);
    b.Esperar();
    CHECK(Captura::DeVentana(b.Ventana()).Pixel(0, Alto - 1) == Rojo);
}

TEST_CASE("A transparent view leaves what the container has drawn") {
    BancoDeCaja b(CadaClase());
    b.Poner(L"BackStyle", 0L);
    const Captura vista = Captura::DeDibujo(Ancho, Alto, [&](HDC hdc) {
        SetDCBrushColor(hdc, Verde);
        FillRect(hdc, &Todo, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
        const RECTL limites{0, 0, Ancho, Alto};
        b.boton->Como<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, hdc,
                                           &limites, nullptr, nullptr, 0);
    });
    CHECK(vista.Pixel(0, Alto - 1) == Verde);
}

TEST_CASE("Caption, shadow of the caption, field and shadow of the field have their colours") {
    BancoDeCaja b(Cada({L"Pincela.Tbox", L"Pincela.TBoxML"}));
    b.Poner(L"ColorFondo", 0xC0C0C0L);
    b.Poner(L"ColorFonTexto", static_cast<long>(Verde));
    b.Poner(L"Caption", L"XXXX");
    b.Poner(L"ColorLetraE", static_cast<long>(Rojo));
    b.Poner(L"Separa", short{4});
    const auto sombra = [&](long tipo) {
        b.Poner(L"TipoSombra", tipo);
        b.Esperar();
        // Below the field, inside its shadow: the field is laid out at the left margin.
        const Captura c = Captura::DeVentana(b.Ventana());
        RECT campo{};
        GetWindowRect(b.Campo(), &campo);
        MapWindowPoints(HWND_DESKTOP, b.Ventana(), reinterpret_cast<POINT*>(&campo), 2);
        return c.Pixel(campo.left + 10, campo.bottom + 1);
    };
    CHECK(sombra(1) == RGB(0, 0, 0));
    CHECK(sombra(2) == RGB(160, 160, 160));
    CHECK(sombra(3) == RGB(255, 255, 255));
    CHECK(sombra(4) == RGB(255, 0, 255));
    b.Poner(L"ColorFonTexto", static_cast<long>(Azul));
    b.Esperar();
    CHECK(sombra(4) == RGB(255, 255, 0));
    const auto colores = [&](long letra) {
        b.Poner(L"TipoLetra", letra);
        b.Esperar();
        return Captura::DeVentana(b.Ventana());
    };
    CHECK(colores(1).Contar(Todo, Rojo) > 10);
    const int blancosLevantada = colores(1).Contar(Todo, RGB(255, 255, 255));
    CHECK(blancosLevantada > 3);
    // The inverse of red.
    CHECK(colores(3).Contar(Todo, RGB(0, 255, 255)) > 3);
    CHECK(colores(4).Contar(Todo, RGB(0, 255, 255)) > 3);
    CHECK(colores(0).Contar(Todo, RGB(0, 255, 255)) == 0);
}

TEST_CASE("The field lies where its place says, with a shadow of its own size") {
    BancoDeCaja b(Cada({L"Pincela.Tbox", L"Pincela.TBoxML"}));
    b.boton->Mover({10, 10, 210, 110});
    b.Poner(L"Caption", L"Nombre");
    const auto campo = [&](long lugar) {
        b.Poner(L"AlinTBox", lugar);
        RECT r{};
        GetWindowRect(b.Campo(), &r);
        MapWindowPoints(HWND_DESKTOP, b.Ventana(), reinterpret_cast<POINT*>(&r), 2);
        return r;
    };
    for (const long lugar : {0L, 3L, 6L}) { // field above, caption below
        const RECT r = campo(lugar);
        CHECK(r.left == 4);
        CHECK(r.top == 1);
        CHECK(r.right == 196);
    }
    for (const long lugar : {2L, 4L, 5L, 8L}) { // caption above
        const RECT r = campo(lugar);
        CHECK(r.left == 4);
        CHECK(r.top > 8);
        CHECK(r.bottom == 96);
    }
    const RECT derecha = campo(7), izquierda = campo(1);
    CHECK(derecha.left > 20);
    CHECK(izquierda.left == 4);
    CHECK(derecha.right - derecha.left == izquierda.right - izquierda.left);
    CHECK(derecha.bottom == 96);
}
