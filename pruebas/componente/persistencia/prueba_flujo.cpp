// The button in a stream and in a storage.
#include "pruebas/componente/comun/boton.h"
#include "pruebas/componente/comun/lamina.h"
#include "pruebas/componente/persistencia/flujos.h"

#include <doctest/doctest.h>

using namespace publicado;
using anfitrion::Estrechar;

namespace {

BytesDeFlujo Guardar(const Boton& boton) {
    const Puntero<IStream> flujo = FlujoDe({});
    REQUIRE(boton.Como<IPersistStreamInit>()->Save(flujo.get(), FALSE) == S_OK);
    return BytesDe(flujo.get());
}

HRESULT Cargar(const Boton& boton, const BytesDeFlujo& bytes) {
    return boton.Como<IPersistStreamInit>()->Load(FlujoDe(bytes).get());
}

void CompararRetratos(const Boton& uno, const Boton& otro) {
    const std::vector<std::string> a = Retrato(uno.get()), b = Retrato(otro.get());
    REQUIRE(a.size() == b.size());
    for (std::size_t i = 0; i < a.size(); ++i)
        CHECK(a[i] == b[i]);
}

/// Loads damaged bytes; true when they were refused and the button stayed what it was.
bool SeRechazan(const Boton& boton, const BytesDeFlujo& danados, const BytesDeFlujo& antes) {
    const HRESULT estado = Cargar(boton, danados);
    return FAILED(estado) && Guardar(boton) == antes;
}

/// Sixteen pixels each way: red on the left, half of a blue on the right above, nothing below it.
Puntero<IPictureDisp> IconoConOpacidad() {
    BITMAPINFO info{{sizeof(BITMAPINFOHEADER), 16, -16, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
    void* bits = nullptr;
    ICONINFO partes{};
    partes.fIcon = TRUE;
    partes.hbmColor = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    BYTE mascara[16 * 2] = {};
    for (int i = 0; i < 256; ++i) {
        const bool derecha = i % 16 >= 8, abajo = i >= 128;
        static_cast<DWORD*>(bits)[i] = !derecha ? 0xFFFF0000 : abajo ? 0 : 0x800000FF;
        if (derecha && abajo)
            mascara[i / 8] = 0xFF;
    }
    partes.hbmMask = CreateBitmap(16, 16, 1, 1, mascara);
    const HICON icono = CreateIconIndirect(&partes);
    DeleteObject(partes.hbmColor);
    DeleteObject(partes.hbmMask);
    return anfitrion::CrearImagen(icono);
}

/// The pixels of the button's icon drawn on white.
std::vector<COLORREF> SobreBlanco(const Boton& boton) {
    const Variante valor = Leer(boton.get(), L"ImagNormal");
    const auto imagen = Puntero<IUnknown>(valor.punkVal).Como<IPicture>();
    REQUIRE(imagen);
    OLE_HANDLE manejador = 0;
    REQUIRE(imagen->get_Handle(&manejador) == S_OK);
    Lamina lamina(16, 16);
    lamina.Llenar({0, 0, 16, 16}, RGB(255, 255, 255));
    REQUIRE(DrawIconEx(lamina.Hdc(), 0, 0, static_cast<HICON>(ULongToHandle(manejador)), 16, 16, 0,
                       nullptr, DI_NORMAL));
    std::vector<COLORREF> pixeles;
    for (int i = 0; i < 256; ++i)
        pixeles.push_back(lamina.Pixel(i % 16, i / 16));
    return pixeles;
}

/// Eight pixels each way, all different where there are colours enough.
HBITMAP MapaDe(WORD bits) {
    struct {
        BITMAPINFOHEADER cabecera;
        RGBQUAD paleta[256];
    } info{{sizeof(BITMAPINFOHEADER), 8, 8, 1, bits, BI_RGB, 0, 0, 0, 0, 0}, {}};
    for (BYTE i = 0; RGBQUAD & color : info.paleta)
        color = {static_cast<BYTE>(i * 40), static_cast<BYTE>(255 - i * 3), i, 0}, ++i;
    void* memoria = nullptr;
    const HBITMAP mapa = CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&info),
                                          DIB_RGB_COLORS, &memoria, nullptr, 0);
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ antes = SelectObject(dc, mapa);
    for (int i = 0; i < 64; ++i)
        SetPixel(dc, i % 8, i / 8, i % 3 ? RGB(i * 4, 255 - i * 4, i) : RGB(0, 0, 255));
    SelectObject(dc, antes);
    DeleteDC(dc);
    return mapa;
}

std::vector<COLORREF> PixelesDe(HBITMAP mapa) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ antes = SelectObject(dc, mapa);
    std::vector<COLORREF> pixeles;
    for (int i = 0; i < 64; ++i)
        pixeles.push_back(GetPixel(dc, i % 8, i / 8));
    SelectObject(dc, antes);
    DeleteDC(dc);
    return pixeles;
}

HBITMAP MapaDelBoton(const Boton& boton) {
    const Variante valor = Leer(boton.get(), L"ImagNormal");
    const auto imagen = Puntero<IUnknown>(valor.punkVal).Como<IPicture>();
    REQUIRE(imagen);
    OLE_HANDLE manejador = 0;
    REQUIRE(imagen->get_Handle(&manejador) == S_OK);
    return static_cast<HBITMAP>(LongToHandle(static_cast<LONG>(manejador)));
}

} // namespace

TEST_CASE("Every property of a button survives a stream, fonts and pictures too") {
    const Boton uno, otro;
    CambiarTodo(uno.get());
    SUBCASE("with a bitmap and an icon") {}
    SUBCASE("with an icon in both places") {
        PonerRef(uno.get(), L"ImagNormal", Variante(IconoDePrueba().get()));
    }
    const BytesDeFlujo bytes = Guardar(uno);
    REQUIRE(Cargar(otro, bytes) == S_OK);
    CompararRetratos(uno, otro);
    const Boton tercero; // what was loaded is saved as well as what was assigned
    REQUIRE(Cargar(tercero, Guardar(otro)) == S_OK);
    CompararRetratos(uno, tercero);
}

TEST_CASE("A metafile comes back from a stream record by record") {
    const Boton uno, otro;
    const Puntero<IPictureDisp> imagen = MetaficheroDePrueba();
    PonerRef(uno.get(), L"ImagNormal", Variante(imagen.get()));
    REQUIRE(Cargar(otro, Guardar(uno)) == S_OK);
    const auto contenido = [](IUnknown* objeto) {
        const auto una = Puntero<IUnknown>(objeto).Como<IPicture>();
        REQUIRE(una);
        SHORT clase = 0;
        OLE_HANDLE manejador = 0;
        CHECK(una->get_Type(&clase) == S_OK);
        CHECK(clase == PICTYPE_ENHMETAFILE);
        REQUIRE(una->get_Handle(&manejador) == S_OK);
        const auto metafichero =
            static_cast<HENHMETAFILE>(LongToHandle(static_cast<LONG>(manejador)));
        BytesDeFlujo bytes(GetEnhMetaFileBits(metafichero, 0, nullptr));
        GetEnhMetaFileBits(metafichero, static_cast<UINT>(bytes.size()), bytes.data());
        return bytes;
    };
    const BytesDeFlujo original = contenido(imagen.get());
    CHECK(original.size() > sizeof(ENHMETAHEADER));
    CHECK(contenido(Leer(otro.get(), L"ImagNormal").punkVal) == original);
}

TEST_CASE("An old metafile keeps its size on its way through a stream") {
    const HDC dc = CreateMetaFileW(nullptr);
    SetMapMode(dc, MM_ANISOTROPIC);
    SetWindowExtEx(dc, 100, 50, nullptr);
    Rectangle(dc, 0, 0, 100, 50);
    PICTDESC descripcion{};
    descripcion.cbSizeofstruct = sizeof descripcion;
    descripcion.picType = PICTYPE_METAFILE;
    descripcion.wmf.hmeta = CloseMetaFile(dc);
    descripcion.wmf.xExt = 2000;
    descripcion.wmf.yExt = 1000;
    Puntero<IPictureDisp> imagen;
    REQUIRE(OleCreatePictureIndirect(&descripcion, IID_IPictureDisp, TRUE, imagen.RecibirVoid()) ==
            S_OK);
    const Boton uno, otro;
    PonerRef(uno.get(), L"ImagNormal", Variante(imagen.get()));
    REQUIRE(Cargar(otro, Guardar(uno)) == S_OK);
    const Variante valor = Leer(otro.get(), L"ImagNormal");
    const auto leida = Puntero<IUnknown>(valor.punkVal).Como<IPicture>();
    REQUIRE(leida);
    OLE_XSIZE_HIMETRIC ancho = 0;
    OLE_YSIZE_HIMETRIC alto = 0;
    leida->get_Width(&ancho);
    leida->get_Height(&alto);
    CHECK(ancho >= 1980);
    CHECK(ancho <= 2020);
    CHECK(alto >= 990);
    CHECK(alto <= 1010);
}

TEST_CASE("A picture keeps its pixels on its way through a stream") {
    const Boton uno, otro;
    PonerRef(uno.get(), L"ImagNormal", Variante(MapaDePrueba(6).get()));
    REQUIRE(Cargar(otro, Guardar(uno)) == S_OK);
    const Variante valor = Leer(otro.get(), L"ImagNormal");
    const auto imagen = Puntero<IUnknown>(valor.punkVal).Como<IPicture>();
    REQUIRE(imagen);
    OLE_HANDLE manejador = 0;
    REQUIRE(imagen->get_Handle(&manejador) == S_OK);
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ antes = SelectObject(dc, ULongToHandle(manejador));
    CHECK(GetPixel(dc, 3, 2) == RGB(0xC8, 90, 80));
    CHECK(GetPixel(dc, 5, 5) == RGB(0xC8, 150, 200));
    SelectObject(dc, antes);
    DeleteDC(dc);
}

TEST_CASE("An icon keeps its colours, its opacity and its mask on its way through a stream") {
    const Boton uno, otro;
    PonerRef(uno.get(), L"ImagNormal", Variante(IconoConOpacidad().get()));
    const std::vector<COLORREF> antes = SobreBlanco(uno);
    CHECK(antes[1 * 16 + 1] == RGB(255, 0, 0));
    CHECK(antes[14 * 16 + 14] == RGB(255, 255, 255));
    REQUIRE(Cargar(otro, Guardar(uno)) == S_OK);
    CHECK(SobreBlanco(otro) == antes);
    const Boton tercero; // what was loaded is saved as well as what was made
    REQUIRE(Cargar(tercero, Guardar(otro)) == S_OK);
    CHECK(SobreBlanco(tercero) == antes);
}

TEST_CASE("A bitmap of any depth keeps its pixels on its way through a stream, once and again") {
    for (const WORD bits : {1, 4, 8, 16, 24, 32}) {
        CAPTURE(bits);
        const HBITMAP mapa = MapaDe(bits);
        const std::vector<COLORREF> pixeles = PixelesDe(mapa);
        CHECK(pixeles[0] != pixeles[5]);
        const Boton uno, otro, tercero;
        PonerRef(uno.get(), L"ImagNormal", Variante(anfitrion::CrearImagen(mapa).get()));
        REQUIRE(Cargar(otro, Guardar(uno)) == S_OK);
        CHECK(PixelesDe(MapaDelBoton(otro)) == pixeles);
        REQUIRE(Cargar(tercero, Guardar(otro)) == S_OK);
        CHECK(PixelesDe(MapaDelBoton(tercero)) == pixeles);
    }
}

TEST_CASE("A bitmap in the screen's own format keeps its pixels on its way through a stream") {
    const HDC pantalla = GetDC(nullptr), dc = CreateCompatibleDC(pantalla);
    const HBITMAP mapa = CreateCompatibleBitmap(pantalla, 8, 8);
    SelectObject(dc, mapa);
    for (int i = 0; i < 64; ++i)
        SetPixel(dc, i % 8, i / 8, RGB(i * 4, 255 - i * 4, i));
    DeleteDC(dc);
    ReleaseDC(nullptr, pantalla);
    const std::vector<COLORREF> pixeles = PixelesDe(mapa);
    CHECK(pixeles[0] != pixeles[5]);
    const Boton uno, otro;
    PonerRef(uno.get(), L"ImagNormal", Variante(anfitrion::CrearImagen(mapa).get()));
    REQUIRE(Cargar(otro, Guardar(uno)) == S_OK);
    CHECK(PixelesDe(MapaDelBoton(otro)) == pixeles);
}

TEST_CASE("The size of a button travels in its stream") {
    const Boton uno, otro;
    SIZEL tamanio{5080, 1270}, leido{};
    REQUIRE(uno.Como<IOleObject>()->SetExtent(DVASPECT_CONTENT, &tamanio) == S_OK);
    REQUIRE(Cargar(otro, Guardar(uno)) == S_OK);
    REQUIRE(otro.Como<IOleObject>()->GetExtent(DVASPECT_CONTENT, &leido) == S_OK);
    CHECK(leido.cx == 5080);
    CHECK(leido.cy == 1270);
}

TEST_CASE("Loading takes exactly what was saved and leaves what follows") {
    const Boton uno, otro;
    const Puntero<IStream> flujo = FlujoDe({});
    REQUIRE(uno.Como<IPersistStreamInit>()->Save(flujo.get(), TRUE) == S_OK);
    const ULONGLONG fin = Posicion(flujo.get());
    const char cola[] = "what follows";
    flujo->Write(cola, sizeof cola, nullptr);
    flujo->Seek({}, STREAM_SEEK_SET, nullptr);
    REQUIRE(otro.Como<IPersistStreamInit>()->Load(flujo.get()) == S_OK);
    CHECK(Posicion(flujo.get()) == fin);
}

TEST_CASE("The announced greatest size is enough") {
    const Boton boton;
    CambiarTodo(boton.get());
    ULARGE_INTEGER tamanio{};
    REQUIRE(boton.Como<IPersistStreamInit>()->GetSizeMax(&tamanio) == S_OK);
    CHECK(tamanio.QuadPart >= Guardar(boton).size());
}

TEST_CASE("A stream cut at any length is refused and changes nothing") {
    const Boton guardado, boton;
    CambiarTodo(guardado.get());
    const BytesDeFlujo bytes = Guardar(guardado);
    Poner(boton.get(), L"Caption", L"antes");
    Poner(boton.get(), L"RelX", 0.0f);
    const BytesDeFlujo antes = Guardar(boton);
    for (std::size_t largo = 0; largo < bytes.size(); ++largo) {
        if (SeRechazan(boton, BytesDeFlujo(bytes.begin(), bytes.begin() + static_cast<long>(largo)),
                       antes))
            continue;
        INFO("length ", largo, " of ", bytes.size());
        FAIL_CHECK("taken, or the button changed");
    }
    CHECK(Cargar(boton, bytes) == S_OK);
}

TEST_CASE("A stream with any byte changed is refused and changes nothing") {
    const Boton guardado, boton;
    CambiarTodo(guardado.get());
    const BytesDeFlujo bytes = Guardar(guardado);
    Poner(boton.get(), L"Caption", L"antes");
    const BytesDeFlujo antes = Guardar(boton);
    for (const int mascara : {0xFF, 0x01, 0x80}) {
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            BytesDeFlujo danados = bytes;
            danados[i] = static_cast<unsigned char>(danados[i] ^ mascara);
            if (SeRechazan(boton, danados, antes))
                continue;
            INFO("byte ", i, " mask ", mascara);
            FAIL_CHECK("taken, or the button changed");
        }
    }
}

TEST_CASE("Two neighbouring bytes changed places are refused") {
    const Boton guardado, boton;
    CambiarTodo(guardado.get());
    const BytesDeFlujo bytes = Guardar(guardado), antes = Guardar(boton);
    for (std::size_t i = 0; i + 1 < bytes.size(); ++i) {
        if (bytes[i] == bytes[i + 1])
            continue;
        BytesDeFlujo danados = bytes;
        std::swap(danados[i], danados[i + 1]);
        if (SeRechazan(boton, danados, antes))
            continue;
        INFO("byte ", i);
        FAIL_CHECK("taken, or the button changed");
    }
}

TEST_CASE("A stream of something else is refused") {
    const Boton boton;
    const BytesDeFlujo antes = Guardar(boton);
    CHECK(SeRechazan(boton, BytesDeFlujo(4096, 0), antes));
    CHECK(SeRechazan(boton, BytesDeFlujo(4096, 0xFF), antes));
    const char texto[] = "This is a letter to my aunt, who has no need of buttons at all.";
    CHECK(SeRechazan(boton, BytesDeFlujo(texto, texto + sizeof texto), antes));
}

TEST_CASE("Every property of a button survives a storage") {
    const Boton uno, otro;
    CambiarTodo(uno.get());
    const Puntero<IStorage> almacen = AlmacenNuevo();
    const auto persistente = uno.Como<IPersistStorage>();
    REQUIRE(persistente->InitNew(almacen.get()) == S_OK);
    CambiarTodo(uno.get());
    REQUIRE(persistente->Save(almacen.get(), TRUE) == S_OK);
    REQUIRE(persistente->SaveCompleted(nullptr) == S_OK);
    CHECK(persistente->IsDirty() == S_FALSE);
    REQUIRE(otro.Como<IPersistStorage>()->Load(almacen.get()) == S_OK);
    CompararRetratos(uno, otro);
    CHECK(otro.Como<IPersistStorage>()->HandsOffStorage() == S_OK);
}

TEST_CASE("A storage that holds no button, or half of one, is refused and changes nothing") {
    const Boton guardado, boton;
    CambiarTodo(guardado.get());
    const BytesDeFlujo antes = Guardar(boton);
    const Puntero<IStorage> almacen = AlmacenNuevo();
    CHECK(FAILED(boton.Como<IPersistStorage>()->Load(almacen.get())));
    CHECK(Guardar(boton) == antes);
    REQUIRE(guardado.Como<IPersistStorage>()->Save(almacen.get(), FALSE) == S_OK);
    Puntero<IEnumSTATSTG> lista;
    REQUIRE(almacen->EnumElements(0, nullptr, 0, lista.Recibir()) == S_OK);
    STATSTG estado{};
    REQUIRE(lista->Next(1, &estado, nullptr) == S_OK);
    {
        Puntero<IStream> flujo;
        REQUIRE(almacen->OpenStream(estado.pwcsName, nullptr, STGM_READWRITE | STGM_SHARE_EXCLUSIVE,
                                    0, flujo.Recibir()) == S_OK);
        ULARGE_INTEGER mitad{};
        mitad.QuadPart = estado.cbSize.QuadPart / 2;
        REQUIRE(flujo->SetSize(mitad) == S_OK);
    }
    CoTaskMemFree(estado.pwcsName);
    CHECK(FAILED(boton.Como<IPersistStorage>()->Load(almacen.get())));
    CHECK(Guardar(boton) == antes);
}

TEST_CASE("A stream that can't be read or written gives its own error") {
    // Read-only: a stream of a storage opened for reading refuses every write.
    const Boton boton;
    const Puntero<IStorage> almacen = AlmacenNuevo();
    {
        Puntero<IStream> nuevo;
        REQUIRE(almacen->CreateStream(L"x", STGM_CREATE | STGM_WRITE | STGM_SHARE_EXCLUSIVE, 0, 0,
                                      nuevo.Recibir()) == S_OK);
    }
    Puntero<IStream> flujo;
    REQUIRE(almacen->OpenStream(L"x", nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0,
                                flujo.Recibir()) == S_OK);
    Poner(boton.get(), L"Caption", L"sucio");
    CHECK(FAILED(boton.Como<IPersistStreamInit>()->Save(flujo.get(), TRUE)));
    CHECK(boton.Como<IPersistStreamInit>()->IsDirty() == S_OK);
}

TEST_CASE("Null streams, storages and bags are pointed out") {
    const Boton boton;
    CHECK(boton.Como<IPersistStreamInit>()->Load(nullptr) == E_POINTER);
    CHECK(boton.Como<IPersistStreamInit>()->Save(nullptr, TRUE) == E_POINTER);
    CHECK(boton.Como<IPersistStreamInit>()->GetSizeMax(nullptr) == E_POINTER);
    CHECK(boton.Como<IPersistStorage>()->Load(nullptr) == E_POINTER);
    CHECK(boton.Como<IPersistStorage>()->Save(nullptr, TRUE) == E_POINTER);
    CHECK(boton.Como<IPersistPropertyBag>()->Load(nullptr, nullptr) == E_POINTER);
    CHECK(boton.Como<IPersistPropertyBag>()->Save(nullptr, TRUE, FALSE) == E_POINTER);
}
