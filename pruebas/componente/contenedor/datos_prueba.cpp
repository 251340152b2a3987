// The picture that a control hands out (IDataObject), and who is told when it changes.
#include "anfitrion/avisos.h"
#include "anfitrion/captura.h"
#include "pruebas/cada.h"
#include "pruebas/componente/contenedor/terco.h"

using namespace contenedor;
using anfitrion::Captura;
using pincela::pruebas::Cada;

namespace {

constexpr FORMATETC Mejorado{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
constexpr FORMATETC Clasico{CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};

struct Objeto {
    explicit Objeto(const wchar_t* clase)
        : componente(anfitrion::Componente::DeFichero(publicado::RutaDelComponente())),
          objeto(publicado::Crear(componente, clase)), datos(objeto.Como<IDataObject>()) {
        REQUIRE(objeto.Como<IPersistStreamInit>()->InitNew() == S_OK);
        SIZEL tamano{3175, 1058}; // 120 x 40 pixels
        REQUIRE(objeto.Como<IOleObject>()->SetExtent(DVASPECT_CONTENT, &tamano) == S_OK);
    }
    void Poner(const wchar_t* nombre, const anfitrion::Variante& valor) {
        anfitrion::Poner(objeto.Como<IDispatch>().get(), nombre, valor);
    }

    publicado::SesionOle ole;
    anfitrion::Componente componente;
    Puntero<IUnknown> objeto;
    Puntero<IDataObject> datos;
};

const wchar_t* CadaClase() {
    return Cada({L"Botonazo", L"Area", L"Tbox", L"TBoxML", L"TboxSS", L"TboxSSML"});
}

void Empapelar(HDC dc, int ancho, int alto, COLORREF papel) {
    const RECT todo{0, 0, ancho, alto};
    const HBRUSH brocha = CreateSolidBrush(papel);
    FillRect(dc, &todo, brocha);
    DeleteObject(brocha);
}

/// Plays a picture as containers do: its mapping mode, and the rectangle to fill.
Captura Tocar(const METAFILEPICT& imagen, int ancho, int alto, COLORREF papel) {
    return Captura::DeDibujo(ancho, alto, [&](HDC dc) {
        Empapelar(dc, ancho, alto, papel);
        SetMapMode(dc, imagen.mm);
        SetViewportExtEx(dc, ancho, alto, nullptr);
        CHECK(PlayMetaFile(dc, imagen.hMF));
    });
}

/// The picture in the classic format, with what is to be freed.
struct Imagen {
    explicit Imagen(const Objeto& o) {
        FORMATETC formato = Clasico;
        REQUIRE(o.datos->GetData(&formato, &medio) == S_OK);
        REQUIRE(medio.tymed == TYMED_MFPICT);
        const auto* p = static_cast<METAFILEPICT*>(GlobalLock(medio.hMetaFilePict));
        REQUIRE(p);
        imagen = *p;
        GlobalUnlock(medio.hMetaFilePict);
    }
    Imagen(const Imagen&) = delete;
    Imagen& operator=(const Imagen&) = delete;
    ~Imagen() { ReleaseStgMedium(&medio); }
    STGMEDIUM medio{};
    METAFILEPICT imagen{};
};

Captura VistaDe(const Objeto& o, int ancho, int alto, COLORREF papel) {
    return Captura::DeDibujo(ancho, alto, [&](HDC dc) {
        Empapelar(dc, ancho, alto, papel);
        const RECTL limites{0, 0, ancho, alto};
        CHECK(o.objeto.Como<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr,
                                                 dc, &limites, nullptr, nullptr, 0) == S_OK);
    });
}

} // namespace

TEST_CASE("The classic picture says its size and shows what the control shows") {
    const Objeto o(CadaClase());
    const Imagen i(o);
    CHECK(i.imagen.mm == MM_ANISOTROPIC);
    CHECK(i.imagen.xExt == 3175);
    CHECK(i.imagen.yExt == 1058);
    CHECK(Tocar(i.imagen, 120, 40, RGB(255, 255, 255)) == VistaDe(o, 120, 40, RGB(255, 255, 255)));
    // Of any size, the whole of it is filled.
    const Captura doble = Tocar(i.imagen, 240, 80, RGB(7, 8, 9));
    CHECK(doble.Colores() > 1);
}

TEST_CASE("Through the classic picture of a transparent control the paper is seen") {
    Objeto o(Cada({L"Area", L"Tbox", L"TboxSS"}));
    o.Poner(L"BackStyle", 0L);
    const Imagen i(o);
    const Captura tocada = Tocar(i.imagen, 120, 40, RGB(10, 200, 30));
    CHECK(tocada == VistaDe(o, 120, 40, RGB(10, 200, 30)));
    CHECK(tocada.Contar({0, 0, 120, 40}, RGB(10, 200, 30)) > 0);
}

TEST_CASE("The corners of a rounded button are not in its classic picture") {
    Objeto o(L"Botonazo");
    o.Poner(L"Estilos", 1L);
    o.Poner(L"RelX", 0.5);
    const Imagen i(o);
    const Captura tocada = Tocar(i.imagen, 120, 40, RGB(10, 200, 30));
    CHECK(tocada.Pixel(0, 0) == RGB(10, 200, 30));
    CHECK(tocada.Pixel(119, 39) == RGB(10, 200, 30));
    CHECK(tocada.Pixel(60, 10) != RGB(10, 200, 30));
}

TEST_CASE("A control lists the formats that it gives, and gives those that it lists") {
    const Objeto o(CadaClase());
    Puntero<IEnumFORMATETC> lista;
    REQUIRE(o.datos->EnumFormatEtc(DATADIR_GET, lista.Recibir()) == S_OK);
    std::vector<CLIPFORMAT> vistos;
    FORMATETC formato{};
    while (lista->Next(1, &formato, nullptr) == S_OK) {
        vistos.push_back(formato.cfFormat);
        CHECK(o.datos->QueryGetData(&formato) == S_OK);
        STGMEDIUM medio{};
        CHECK(o.datos->GetData(&formato, &medio) == S_OK);
        CHECK(medio.tymed == formato.tymed);
        ReleaseStgMedium(&medio);
    }
    CHECK(vistos == std::vector<CLIPFORMAT>{CF_ENHMETAFILE, CF_METAFILEPICT});
}

TEST_CASE("A caller that takes either medium gets the one of its format") {
    const Objeto o(CadaClase());
    for (FORMATETC formato : {Clasico, Mejorado}) {
        const DWORD querido = formato.tymed;
        formato.tymed = TYMED_MFPICT | TYMED_ENHMF | TYMED_HGLOBAL;
        STGMEDIUM medio{};
        REQUIRE(o.datos->GetData(&formato, &medio) == S_OK);
        CHECK(medio.tymed == querido);
        ReleaseStgMedium(&medio);
    }
}

TEST_CASE("What is asked for in another way is refused with the status that says so") {
    const Objeto o(CadaClase());
    const auto avisos = Hacer<anfitrion::Avisos>();
    const struct {
        FORMATETC formato;
        HRESULT estado;
    } casos[] = {
        {{CF_TEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL}, DV_E_FORMATETC},
        {{0, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF}, DV_E_FORMATETC},
        {{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT}, DV_E_TYMED},
        {{CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF}, DV_E_TYMED},
        {{CF_ENHMETAFILE, nullptr, DVASPECT_ICON, -1, TYMED_ENHMF}, DV_E_DVASPECT},
        {{CF_METAFILEPICT, nullptr, DVASPECT_THUMBNAIL, -1, TYMED_MFPICT}, DV_E_DVASPECT},
        {{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, 0, TYMED_ENHMF}, DV_E_LINDEX},
        {{CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, 5, TYMED_MFPICT}, DV_E_LINDEX},
    };
    for (const auto& caso : casos) {
        FORMATETC formato = caso.formato;
        INFO("format ", formato.cfFormat, " index ", formato.lindex, " aspect ", formato.dwAspect);
        CHECK(o.datos->QueryGetData(&formato) == caso.estado);
        STGMEDIUM medio{};
        CHECK(o.datos->GetData(&formato, &medio) == caso.estado);
        CHECK(medio.tymed == TYMED_NULL);
        DWORD galleta = 9;
        CHECK(o.datos->DAdvise(&formato, 0, avisos.get(), &galleta) == caso.estado);
        CHECK(galleta == 0);
    }
}

TEST_CASE("Whoever asks for a format is told of each change until he takes his leave") {
    Objeto o(CadaClase());
    const auto avisos = Hacer<anfitrion::Avisos>();
    int veces = 0;
    avisos->alLlamar = [&](const char* llamada) {
        veces += std::string(llamada) == "IAdviseSink::OnDataChange";
    };
    // The last one is the way in which the platform writes "all of them".
    long color = 0;
    for (FORMATETC formato : {Mejorado, Clasico, FORMATETC{0, nullptr, DWORD(-1), -1, DWORD(-1)}}) {
        CAPTURE(formato.cfFormat);
        DWORD galleta = 0;
        REQUIRE(o.datos->DAdvise(&formato, ADVF_NODATA, avisos.get(), &galleta) == S_OK);
        CHECK(galleta != 0);
        const int antes = veces;
        o.Poner(L"ColorFondo", ++color);
        CHECK(veces > antes);
        CHECK(o.datos->DUnadvise(galleta) == S_OK);
        const int alFinal = veces;
        VistaDe(o, 120, 40, RGB(255, 255, 255));
        o.Poner(L"ColorFondo", ++color);
        CHECK(veces == alFinal);
        CHECK(o.datos->DUnadvise(galleta) == OLE_E_NOCONNECTION);
        VistaDe(o, 120, 40, RGB(255, 255, 255));
    }
    avisos->Callar();
}

TEST_CASE("Nobody can be told of what nobody shows") {
    const Objeto o(CadaClase());
    const auto vista = o.objeto.Como<IViewObject>();
    const auto avisos = Hacer<anfitrion::Avisos>();
    Puntero<IAdviseSink> suyo;
    REQUIRE(vista->SetAdvise(DVASPECT_CONTENT, 0, avisos.get()) == S_OK);
    const auto otro = Hacer<anfitrion::Avisos>();
    for (const DWORD aspecto : {DWORD(DVASPECT_ICON), DWORD(DVASPECT_THUMBNAIL), DWORD(0)})
        CHECK(vista->SetAdvise(aspecto, 0, otro.get()) == DV_E_DVASPECT);
    REQUIRE(vista->GetAdvise(nullptr, nullptr, suyo.Recibir()) == S_OK);
    CHECK(suyo.get() == static_cast<IAdviseSink*>(avisos.get())); // who was there stays
    CHECK(vista->SetAdvise(DVASPECT_CONTENT | DVASPECT_ICON, 0, otro.get()) == S_OK);
    CHECK(vista->SetAdvise(DVASPECT_ICON, 0, nullptr) == S_OK); // nobody, whatever the aspect
    REQUIRE(vista->GetAdvise(nullptr, nullptr, suyo.Recibir()) == S_OK);
    CHECK_FALSE(suyo);
}

TEST_CASE("A connection needs somebody at its other end") {
    const Objeto o(CadaClase());
    DWORD galleta = 9;
    FORMATETC formato = Mejorado;
    CHECK(o.datos->DAdvise(&formato, 0, nullptr, &galleta) == E_POINTER);
    CHECK(galleta == 0);
    const auto avisos = Hacer<anfitrion::Avisos>();
    galleta = 9;
    CHECK(o.datos->DAdvise(nullptr, 0, avisos.get(), &galleta) == E_POINTER);
    CHECK(galleta == 0);
    const auto ole = o.objeto.Como<IOleObject>();
    galleta = 9;
    CHECK(ole->Advise(nullptr, &galleta) == E_POINTER);
    CHECK(galleta == 0);
    CHECK(ole->Advise(avisos.get(), &galleta) == S_OK);
    CHECK(galleta != 0);
    CHECK(ole->Unadvise(galleta) == S_OK);
}

TEST_CASE("A control without verbs says so, and one with verbs lists them") {
    const std::wstring clase = CadaClase();
    const Objeto o(clase.c_str());
    auto* nada = reinterpret_cast<IEnumOLEVERB*>(std::uintptr_t{0xDEAD});
    if (clase == L"Area" || clase == L"Botonazo" || clase == L"Tbox" ||
        clase.starts_with(L"TboxSS")) {
        Puntero<IEnumOLEVERB> verbos;
        REQUIRE(o.objeto.Como<IOleObject>()->EnumVerbs(verbos.Recibir()) == S_OK);
        OLEVERB verbo{};
        REQUIRE(verbos->Next(1, &verbo, nullptr) == S_OK);
        CHECK(verbo.lVerb == OLEIVERB_PROPERTIES);
        CoTaskMemFree(verbo.lpszVerbName);
    } else {
        CHECK(o.objeto.Como<IOleObject>()->EnumVerbs(&nada) == OLEOBJ_E_NOVERBS);
        CHECK(nada == nullptr);
    }
}
