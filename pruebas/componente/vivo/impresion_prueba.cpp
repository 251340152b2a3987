// The look outside the window: other devices, other scales, metafiles.
#include "pruebas/cada.h"
#include "pruebas/componente/vivo/banco.h"

using namespace vivo;
using pincela::pruebas::Cada;

namespace {

constexpr COLORREF Fondo = RGB(200, 100, 50), Letra = RGB(0, 0, 255);

struct BancoDeVista : Banco {
    explicit BancoDeVista(const OpcionesFormulario& opciones = {}) : Banco(opciones) {
        Poner(L"Caption", L"&Imprimir");
        Poner(L"ColorFondo", static_cast<long>(Fondo));
        Poner(L"ColorLetra", static_cast<long>(Letra));
        Esperar();
    }
    HRESULT Dibujar(HDC dc, const RECTL& limites, DWORD aspecto = DVASPECT_CONTENT) {
        return boton->Como<IViewObject2>()->Draw(aspecto, -1, nullptr, nullptr, nullptr, dc,
                                                 &limites, nullptr, nullptr, 0);
    }
    Captura Vista(int ancho, int alto) {
        return Captura::DeDibujo(ancho, alto, [&](HDC dc) {
            CHECK(Dibujar(dc, {0, 0, ancho, alto}) == S_OK);
        });
    }
};

/// The texts of a metafile, without the help of whoever wrote it.
std::vector<std::wstring> Textos(HENHMETAFILE metafichero) {
    std::vector<std::wstring> textos;
    const auto mirar = [](HDC, HANDLETABLE*, const ENHMETARECORD* registro, int, LPARAM l)
                           WINAPI -> int {
        if (registro->iType == EMR_EXTTEXTOUTW) {
            const auto* texto = reinterpret_cast<const EMREXTTEXTOUTW*>(registro);
            const auto* letras = reinterpret_cast<const wchar_t*>(
                reinterpret_cast<const char*>(registro) + texto->emrtext.offString);
            reinterpret_cast<std::vector<std::wstring>*>(l)->emplace_back(letras,
                                                                          texto->emrtext.nChars);
        }
        return 1;
    };
    EnumEnhMetaFile(nullptr, metafichero, mirar, &textos, nullptr);
    return textos;
}

bool Hay(const std::vector<std::wstring>& textos, const std::wstring& buscado) {
    std::wstring juntos;
    for (const std::wstring& texto : textos)
        juntos += texto;
    return juntos.find(buscado) != std::wstring::npos;
}

} // namespace

TEST_CASE("The drawn view is what the window shows") {
    BancoDeVista b;
    CHECK(b.Vista(120, 40) == Captura::DeVentana(b.Ventana()));
}

TEST_CASE("At any scale the view fills its rectangle and nothing else") {
    const int escala = Cada({1, 2, 3, 7});
    BancoDeVista b;
    const int ancho = 120 * escala, alto = 40 * escala;
    const Captura vista = Captura::DeDibujo(ancho + 20, alto + 20, [&](HDC dc) {
        CHECK(b.Dibujar(dc, {10, 10, 10 + ancho, 10 + alto}) == S_OK);
    });
    CHECK(vista.Contar({0, 0, ancho + 20, 10}, RGB(255, 255, 255)) == (ancho + 20) * 10);
    CHECK(vista.Contar({0, 10 + alto, ancho + 20, alto + 20}, RGB(255, 255, 255)) ==
          (ancho + 20) * 10);
    CHECK(vista.Contar({10, 10, 10 + ancho, 10 + alto}, RGB(255, 255, 255)) == 0);
    CHECK(vista.Contar({10, 10, 10 + ancho, 10 + alto}, Fondo) > ancho * alto / 2);
    CHECK(vista.Contar({10, 10, 10 + ancho, 10 + alto}, Letra) > 20 * escala);
}

TEST_CASE("A smaller view is complete too") {
    BancoDeVista b;
    const Captura vista = b.Vista(30, 10);
    CHECK(vista.Contar({0, 0, 30, 10}, RGB(255, 255, 255)) == 0);
    CHECK(vista.Contar({0, 0, 30, 10}, Fondo) > 100);
}

TEST_CASE("In a metafile the caption is text") {
    BancoDeVista b;
    const HDC dc = CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
    CHECK(b.Dibujar(dc, {0, 0, 120, 40}) == S_OK);
    const HENHMETAFILE metafichero = CloseEnhMetaFile(dc);
    CHECK(Hay(Textos(metafichero), L"Imprimir"));
    const Captura tocado = Captura::DeDibujo(120, 40, [&](HDC destino) {
        const RECT todo{0, 0, 120, 40};
        PlayEnhMetaFile(destino, metafichero, &todo);
    });
    CHECK(tocado.Contar({0, 0, 120, 40}, Fondo) > 2400);
    CHECK(tocado.Contar({0, 0, 120, 40}, Letra) > 20);
    DeleteEnhMetaFile(metafichero);
}

TEST_CASE("The data object gives an enhanced metafile of the control's size, with the caption") {
    BancoDeVista b;
    const auto datos = b.boton->Como<IDataObject>();
    FORMATETC formato{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
    REQUIRE(datos->QueryGetData(&formato) == S_OK);
    STGMEDIUM medio{};
    REQUIRE(datos->GetData(&formato, &medio) == S_OK);
    REQUIRE(medio.tymed == TYMED_ENHMF);
    CHECK(Hay(Textos(medio.hEnhMetaFile), L"Imprimir"));
    ENHMETAHEADER cabecera{};
    GetEnhMetaFileHeader(medio.hEnhMetaFile, sizeof cabecera, &cabecera);
    SIZEL medida{};
    b.boton->Como<IViewObject2>()->GetExtent(DVASPECT_CONTENT, -1, nullptr, &medida);
    CHECK(cabecera.rclFrame.right - cabecera.rclFrame.left == medida.cx);
    CHECK(cabecera.rclFrame.bottom - cabecera.rclFrame.top == medida.cy);
    // Played into a rectangle it fills the rectangle.
    const Captura tocado = Captura::DeDibujo(240, 80, [&](HDC destino) {
        const RECT todo{0, 0, 240, 80};
        PlayEnhMetaFile(destino, medio.hEnhMetaFile, &todo);
    });
    CHECK(tocado.Contar({200, 50, 240, 80}, RGB(255, 255, 255)) < 100);
    CHECK(tocado.Contar({0, 0, 240, 80}, Fondo) > 240 * 80 / 2);
    ReleaseStgMedium(&medio);
}

TEST_CASE("Other formats and aspects are refused with their own status") {
    BancoDeVista b;
    const auto datos = b.boton->Como<IDataObject>();
    STGMEDIUM medio{};
    FORMATETC formato{CF_TEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    CHECK(datos->GetData(&formato, &medio) == DV_E_FORMATETC);
    formato = {CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    CHECK(datos->GetData(&formato, &medio) == DV_E_TYMED);
    formato = {CF_ENHMETAFILE, nullptr, DVASPECT_ICON, -1, TYMED_ENHMF};
    CHECK(datos->GetData(&formato, &medio) == DV_E_DVASPECT);
    CHECK(b.Dibujar(nullptr, {0, 0, 10, 10}) == E_INVALIDARG);
    Captura::DeDibujo(10, 10, [&](HDC dc) {
        CHECK(b.Dibujar(dc, {0, 0, 10, 10}, DVASPECT_ICON) == DV_E_DVASPECT);
    });
}

TEST_CASE("Under a printer's mapping mode the view stands upright and fills its rectangle") {
    BancoDeVista b;
    const int modo = Cada({MM_LOMETRIC, MM_HIMETRIC, MM_ANISOTROPIC, MM_TWIPS});
    CAPTURE(modo);
    const Captura vista = Captura::DeDibujo(240, 80, [&](HDC dc) {
        SetMapMode(dc, modo);
        if (modo == MM_ANISOTROPIC) {
            SetWindowExtEx(dc, 1000, 1000, nullptr);
            SetViewportExtEx(dc, 240, 80, nullptr);
        }
        POINT esquinas[2] = {{0, 0}, {240, 80}};
        DPtoLP(dc, esquinas, 2);
        CHECK(b.Dibujar(dc, {esquinas[0].x, esquinas[0].y, esquinas[1].x, esquinas[1].y}) == S_OK);
    });
    CHECK(vista.Contar({0, 0, 240, 80}, Fondo) > 240 * 80 / 2);
    CHECK(vista.Contar({0, 0, 240, 80}, Letra) > 40);
    // The letters stand in the middle, as they do without a mapping mode.
    CHECK(vista.Contar({60, 15, 180, 65}, Letra) > 40);
    CHECK(vista.Contar({0, 0, 240, 12}, Letra) == 0);
    // Light above, dark below.
    CHECK(vista.Contar({0, 0, 240, 8}, RGB(192, 192, 192)) > 100);
    CHECK(vista.Contar({0, 72, 240, 80}, RGB(144, 144, 144)) > 100);
}

TEST_CASE("Drawing leaves the device as it was") {
    BancoDeVista b;
    Captura::DeDibujo(240, 80, [&](HDC dc) {
        SetTextColor(dc, RGB(1, 2, 3));
        SetBkMode(dc, OPAQUE);
        const HGDIOBJ fuente = GetCurrentObject(dc, OBJ_FONT);
        const HGDIOBJ pluma = GetCurrentObject(dc, OBJ_PEN);
        const HGDIOBJ brocha = GetCurrentObject(dc, OBJ_BRUSH);
        CHECK(b.Dibujar(dc, {0, 0, 120, 40}) == S_OK);
        CHECK(GetTextColor(dc) == RGB(1, 2, 3));
        CHECK(GetBkMode(dc) == OPAQUE);
        CHECK(GetCurrentObject(dc, OBJ_FONT) == fuente);
        CHECK(GetCurrentObject(dc, OBJ_PEN) == pluma);
        CHECK(GetCurrentObject(dc, OBJ_BRUSH) == brocha);
        RECT recorte{};
        GetClipBox(dc, &recorte);
        CHECK(recorte.right == 240);
        CHECK(recorte.bottom == 80);
    });
}

TEST_CASE("A button that was never activated draws itself") {
    AbrirOle();
    const Componente componente = Componente::DeFichero(RutaComponente());
    const auto objeto = componente.Crear(componente.Clase(L"Pincela.Botonazo"));
    const Captura vista = Captura::DeDibujo(100, 30, [&](HDC dc) {
        const RECTL limites{0, 0, 100, 30};
        CHECK(objeto.Como<IViewObject2>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc,
                                                &limites, nullptr, nullptr, 0) == S_OK);
    });
    CHECK(vista.Contar({0, 0, 100, 30}, GetSysColor(COLOR_BTNFACE)) > 1500);
    CHECK(vista.Contar({0, 0, 100, 30}, RGB(255, 255, 255)) == 0);
}
