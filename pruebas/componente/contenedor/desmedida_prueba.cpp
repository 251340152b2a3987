// Sizes that no screen has: they are kept as sizes, and cost neither memory nor time.
#include "anfitrion/captura.h"
#include "pruebas/cada.h"
#include "pruebas/componente/contenedor/terco.h"

#include <psapi.h>

#include <climits>

using namespace contenedor;
using anfitrion::Captura;
using pincela::pruebas::Cada;

namespace {

const wchar_t* CadaClase() {
    return Cada({L"Botonazo", L"Area", L"Tbox", L"TBoxML", L"TboxSS", L"TboxSSML"});
}

/// What a control may cost whatever its size: a test that takes longer or more has failed.
class Presupuesto {
  public:
    Presupuesto() : desde_(GetTickCount64()), antes_(Memoria()) {}
    Presupuesto(const Presupuesto&) = delete;
    Presupuesto& operator=(const Presupuesto&) = delete;
    ~Presupuesto() {
        CHECK(GetTickCount64() - desde_ < 4000);       // milliseconds
        CHECK(Memoria() - antes_ < 400 * 1024 * 1024); // bytes at the highest point
    }

  private:
    static std::int64_t Memoria() {
        PROCESS_MEMORY_COUNTERS cuentas{};
        cuentas.cb = sizeof cuentas;
        GetProcessMemoryInfo(GetCurrentProcess(), &cuentas, sizeof cuentas);
        return static_cast<std::int64_t>(cuentas.PeakWorkingSetSize);
    }
    ULONGLONG desde_;
    std::int64_t antes_;
};

void PonerExtension(const Puntero<IOleObject>& objeto, SIZEL tamano) {
    CHECK(objeto->SetExtent(DVASPECT_CONTENT, &tamano) == S_OK);
    SIZEL leido{};
    CHECK(objeto->GetExtent(DVASPECT_CONTENT, &leido) == S_OK);
    CHECK(leido.cx == tamano.cx);
    CHECK(leido.cy == tamano.cy);
}

Captura Vista(const Puntero<IOleObject>& objeto, int ancho, int alto) {
    return Captura::DeDibujo(ancho, alto, [&](HDC dc) {
        const RECTL limites{0, 0, ancho, alto};
        CHECK(objeto.Como<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc,
                                               &limites, nullptr, nullptr, 0) == S_OK);
    });
}

/// All that makes a control draw, with looks that need an image.
void Adornar(const Puntero<IOleObject>& objeto, const std::wstring& clase) {
    const auto despacho = objeto.Como<IDispatch>();
    anfitrion::Poner(despacho.get(), L"ColorFondo", 0x123456L);
    if (clase == L"Botonazo") {
        anfitrion::Poner(despacho.get(), L"EstilosRell", 3L);
        anfitrion::Poner(despacho.get(), L"Estilos", 1L);
        anfitrion::Poner(despacho.get(), L"Caption", L"Desmedido");
    } else if (clase == L"Area") {
        anfitrion::Poner(despacho.get(), L"EstilosRell", 3L);
        anfitrion::Poner(despacho.get(), L"ColorDegrade", L"255*65280");
        anfitrion::Poner(despacho.get(), L"Caption", L"Desmedida");
    }
}

} // namespace

TEST_CASE("An extent beyond all measure is kept, and costs nothing") {
    const std::wstring clase = CadaClase();
    Terco t(clase.c_str());
    Adornar(t.objeto, clase);
    const Captura antes = Vista(t.objeto, 100, 30);
    SIZEL propia{};
    REQUIRE(t.objeto->GetExtent(DVASPECT_CONTENT, &propia) == S_OK);
    {
        const Presupuesto presupuesto;
        for (const SIZEL& tamano :
             {SIZEL{1000000000, 1000000000}, SIZEL{LONG_MAX, LONG_MAX}, SIZEL{1000000, 500000},
              SIZEL{500000, 1000000}, SIZEL{LONG_MAX, 1000}, SIZEL{0, LONG_MAX}, SIZEL{0, 0}}) {
            CAPTURE(tamano.cx);
            PonerExtension(t.objeto, tamano);
            Vista(t.objeto, 50, 20);
            FORMATETC formato{CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};
            STGMEDIUM medio{};
            CHECK(t.objeto.Como<IDataObject>()->GetData(&formato, &medio) == S_OK);
            ReleaseStgMedium(&medio);
            formato.cfFormat = CF_ENHMETAFILE;
            formato.tymed = TYMED_ENHMF;
            CHECK(t.objeto.Como<IDataObject>()->GetData(&formato, &medio) == S_OK);
            ReleaseStgMedium(&medio);
        }
    }
    // Back to its measure it is what it was.
    PonerExtension(t.objeto, propia);
    CHECK(Vista(t.objeto, 100, 30) == antes);
    SIZEL negativa{-1, 5};
    CHECK(t.objeto->SetExtent(DVASPECT_CONTENT, &negativa) == E_INVALIDARG);
}

TEST_CASE("A control in place takes any rectangle, and paints what is seen of it") {
    const std::wstring clase = CadaClase();
    Terco t(clase.c_str());
    Adornar(t.objeto, clase);
    REQUIRE(t.Verbo(OLEIVERB_INPLACEACTIVATE) == S_OK);
    const auto enSitio = t.objeto.Como<IOleInPlaceObject>();
    const RECT recorte{0, 0, 300, 200};
    const Captura antes = Captura::Impresa(t.Ventana());
    {
        const Presupuesto presupuesto;
        constexpr LONG mucho = 1 << 30;
        for (const RECT& lugar :
             {RECT{0, 0, mucho, mucho}, RECT{-mucho, -mucho, mucho, mucho},
              RECT{LONG_MIN, LONG_MIN, LONG_MAX, LONG_MAX}, RECT{0, 0, 20000, 20000},
              RECT{-15000, -15000, 15000, 15000}, RECT{100, 100, 10, 10}, RECT{5, 5, 5, 5},
              RECT{0, 0, mucho, 40}}) {
            CAPTURE(lugar.right);
            CHECK(enSitio->SetObjectRects(&lugar, &recorte) == S_OK);
            UpdateWindow(t.Ventana());
            RECT ventana{};
            GetWindowRect(t.Ventana(), &ventana);
            CHECK(ventana.right - ventana.left <= 0x7FFF);
            SIZEL extension{};
            CHECK(t.objeto->GetExtent(DVASPECT_CONTENT, &extension) == S_OK);
            CHECK(extension.cx >= 0);
            CHECK(extension.cy >= 0);
            if (lugar.right == mucho && lugar.left == 0) // not the size of what the platform made
                CHECK(extension.cx > 0x7FFF * 2540LL / 96 + 1000);
        }
        RECT lugar{20, 20, 20 + mucho, 20 + mucho};
        CHECK(enSitio->SetObjectRects(&lugar, nullptr) == S_OK);
        RedrawWindow(t.Ventana(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
    CHECK(enSitio->SetObjectRects(&t.sitio->lugar, &recorte) == S_OK);
    CHECK(Captura::Impresa(t.Ventana()) == antes);
}

TEST_CASE("A control may be activated in a place beyond all measure") {
    const std::wstring clase = CadaClase();
    Terco t(clase.c_str());
    Adornar(t.objeto, clase);
    const Presupuesto presupuesto;
    t.sitio->lugar = {0, 0, 1 << 30, 1 << 30};
    CHECK(t.Verbo(OLEIVERB_UIACTIVATE) == S_OK);
    UpdateWindow(t.Ventana());
    t.sitio->lugar = {50, 50, -50, -50};
    CHECK(t.objeto.Como<IOleInPlaceObject>()->InPlaceDeactivate() == S_OK);
    CHECK(t.Verbo(OLEIVERB_UIACTIVATE) == S_OK);
}

TEST_CASE("A view drawn beyond all measure costs what is seen of it") {
    const std::wstring clase = CadaClase();
    Terco t(clase.c_str());
    Adornar(t.objeto, clase);
    const Presupuesto presupuesto;
    for (const RECTL& limites :
         {RECTL{0, 0, 1000000000, 1000000000}, RECTL{LONG_MIN, LONG_MIN, LONG_MAX, LONG_MAX},
          RECTL{-1000000, -1000000, 1000000, 1000000}, RECTL{0, 0, 60000, 20000}}) {
        CAPTURE(limites.right);
        const Captura vista = Captura::DeDibujo(64, 64, [&](HDC dc) {
            CHECK(t.objeto.Como<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr,
                                                     nullptr, dc, &limites, nullptr, nullptr,
                                                     0) == S_OK);
        });
    }
}
