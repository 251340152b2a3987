// Forms in files: saved, opened, and as a picture.
#include "anfitrion/fichero_texto.h"
#include "galeria/pagina_paneles.h"
#include "pruebas/componente/disenador/banco.h"

#include <wincodec.h>

using namespace disenador;

namespace {

std::wstring RutaTemporal(const wchar_t* nombre) {
    wchar_t carpeta[MAX_PATH];
    GetTempPathW(MAX_PATH, carpeta);
    const std::wstring ruta = std::wstring(carpeta) + nombre;
    DeleteFileW(ruta.c_str());
    return ruta;
}

struct BancoArchivos : Banco {
    BancoArchivos() {
        auto& dialogos = pagina->LosDialogos();
        dialogos.abrir = dialogos.guardar =
            dialogos.exportar = [this](HWND) { return std::optional(ruta); };
    }
    std::wstring ruta;
};

/// Pixels of a PNG file.
class Png {
  public:
    explicit Png(const std::wstring& ruta) {
        Puntero<IWICImagingFactory> fabrica;
        Puntero<IWICBitmapDecoder> lector;
        Puntero<IWICBitmapFrameDecode> cuadro;
        REQUIRE(SUCCEEDED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                           IID_IWICImagingFactory, fabrica.RecibirVoid())));
        REQUIRE(SUCCEEDED(fabrica->CreateDecoderFromFilename(ruta.c_str(), nullptr, GENERIC_READ,
                                                             WICDecodeMetadataCacheOnDemand,
                                                             lector.Recibir())));
        REQUIRE(SUCCEEDED(lector->GetFrame(0, cuadro.Recibir())));
        cuadro->GetSize(&ancho, &alto);
        bytes.resize(ancho * alto * 3);
        REQUIRE(SUCCEEDED(
            cuadro->CopyPixels(nullptr, ancho * 3, static_cast<UINT>(bytes.size()), bytes.data())));
    }
    COLORREF Pixel(UINT x, UINT y) const {
        const BYTE* p = &bytes[(y * ancho + x) * 3];
        return RGB(p[2], p[1], p[0]);
    }
    UINT ancho = 0, alto = 0;

  private:
    std::vector<BYTE> bytes;
};

} // namespace

TEST_CASE("A form is saved as readable text and opened again") {
    BancoArchivos b;
    b.ruta = RutaTemporal(L"disenador.formulario");
    b.Poner(DosBotones + UnPanel);
    b.Elegir(L"Uno");
    REQUIRE(b.Escribir(L"Caption", L"Añadir"));
    const std::string guardado = b.Texto();
    b.pagina->Guardarlo();
    CHECK(Estrechar(LeerTexto(b.ruta)) == guardado);
    CHECK(guardado.find("  Caption = \"Añadir\"\r\n") != std::string::npos);
    b.Poner(L"");
    b.pagina->Abrirlo();
    CHECK(b.Texto() == guardado);
    CHECK_FALSE(b.mesa->Puede(Orden::Deshacer));
}

TEST_CASE("A file that is no form, or isn't there, changes nothing and is told") {
    BancoArchivos b;
    b.Poner(DosBotones);
    const std::string antes = b.Texto();
    b.ruta = RutaTemporal(L"no_es.formulario");
    b.pagina->Abrirlo();
    CHECK(b.pagina->Estado().starts_with(L"No se puede abrir «"));
    EscribirTexto(b.ruta, L"Pincela.Botonazo A 1 2 3 4\nFin\nPincela.Nadie B 1 2 3 4\nFin\n");
    b.pagina->Abrirlo();
    CHECK(b.pagina->Estado() ==
          L"Eso no es un formulario. Línea 3: no se conoce la clase Pincela.Nadie");
    b.ruta = L"Z:\\no\\hay\\tal\\carpeta.formulario";
    b.pagina->Guardarlo();
    CHECK(b.pagina->Estado().starts_with(L"No se puede escribir «"));
    CHECK(b.Texto() == antes);
}

TEST_CASE("A dialog that is given up does nothing") {
    BancoArchivos b;
    b.Poner(DosBotones);
    const std::string antes = b.Texto();
    auto& dialogos = b.pagina->LosDialogos();
    dialogos.abrir = dialogos.guardar =
        dialogos.exportar = [](HWND) { return std::optional<std::wstring>(); };
    b.pagina->Abrirlo();
    b.pagina->Guardarlo();
    b.pagina->Exportarlo();
    CHECK(b.Texto() == antes);
}

TEST_CASE("The form is exported as a picture, without the designer's marks") {
    BancoArchivos b;
    b.ruta = RutaTemporal(L"disenador.png");
    b.Poner(L"Pincela.Area Panel 80 80 240 160\r\n  ColorFondo = &H00FFC080\r\n"
            L"  Pincela.Botonazo Dentro 16 32 120 40\r\n    ColorFondo = &H000000FF\r\n  "
            L"Fin\r\nFin\r\n");
    b.Elegir(L"Panel");
    b.pagina->Exportarlo();
    const Png png(b.ruta);
    CHECK(png.ancho == 480);
    CHECK(png.alto == 320);
    CHECK(png.Pixel(200, 220) == RGB(0x80, 0xC0, 0xFF));
    CHECK(png.Pixel(120, 132) == RGB(0xFF, 0, 0));
    for (UINT y = 0; y < 70; ++y)
        for (UINT x = 0; x < png.ancho; ++x)
            if (png.Pixel(x, y) != RGB(255, 255, 255))
                FAIL_CHECK("a mark at " << x << ", " << y);
    CHECK(png.Pixel(77, 77) == RGB(255, 255, 255));
    CHECK(b.Elegidos() == "Panel ");
    CHECK_FALSE(b.mesa->Ejecutando());
}

TEST_CASE("The sample shows panels, boxes and buttons") {
    Banco b;
    b.pagina->Ensayar();
    CHECK(b.mesa->Forma().Controles().size() == 7);
    CHECK(b.Elegidos() == "Aceptar ");
    CHECK(b.Lugares().find("  Pincela.Tbox Nombre 16 40 ") != std::string::npos);
}

TEST_CASE("The form of another page is taken into the designer as it is") {
    Banco b;
    PaginaPaneles paneles(b.componente, b.marco.Ventana());
    paneles.Armar();
    const std::wstring suyo = paneles.ParaDisenar();
    b.pagina->Recibir(suyo);
    CHECK(b.mesa->Forma().Controles().size() == paneles.Forma().Controles().size());
    CHECK(b.Texto() == Estrechar(suyo));
    CHECK(b.pagina->ParaDisenar().empty());
}
