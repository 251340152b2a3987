// Out-pointers, enumerators and connections of every control.
#include "anfitrion/opciones.h"
#include "pruebas/componente/com/cada_clase.h"

#include <ocidl.h>
#include <olectl.h>

#include <string>
#include <vector>

using namespace publicado;

namespace {

template <class F>
void ParaCadaControl(F f) {
    const SesionOle ole;
    const Modulo modulo;
    ParaCadaClase(modulo, [&](const Clase& una, IClassFactory* fabrica) {
        if (una.genero == Genero::Control)
            f(una, Hecho(fabrica));
    });
    CHECK(modulo.PuedeDescargarse() == S_OK);
}

/// What every enumerator owes its caller. `soltar(elemento)` frees what Next handed out.
template <class Lista, class Elemento, class Soltar>
void ComprobarEnumerador(Lista* lista, Soltar soltar) {
    std::vector<Elemento> vistos;
    Elemento uno{};
    ULONG cuantos = 9;
    while (lista->Next(1, &uno, &cuantos) == S_OK) {
        CHECK(cuantos == 1);
        vistos.push_back(uno);
        soltar(uno);
    }
    CHECK(cuantos == 0);
    CHECK(lista->Next(1, &uno, nullptr) == S_FALSE);
    CHECK(lista->Reset() == S_OK);
    CHECK(lista->Skip(static_cast<ULONG>(vistos.size())) == S_OK);
    CHECK(lista->Skip(1) == S_FALSE);
    Puntero<Lista> copia;
    REQUIRE(lista->Clone(copia.Recibir()) == S_OK);
    CHECK(copia->Next(1, &uno, nullptr) == S_FALSE); // a copy stands where the original stood
    CHECK(copia->Reset() == S_OK);
    if (!vistos.empty()) {
        CHECK(copia->Next(1, &uno, nullptr) == S_OK);
        soltar(uno);
    }
    CHECK(lista->Next(1, &uno, nullptr) == S_FALSE); // and goes its own way
    CHECK(lista->Clone(nullptr) == E_POINTER);
    CHECK(lista->Next(1, nullptr, nullptr) == E_POINTER);
}

} // namespace

TEST_CASE("Null out-pointers of an embedded object are pointed out") {
    ParaCadaControl([](const Clase&, const Puntero<IUnknown>& control) {
        const auto ole = control.Como<IOleObject>();
        CHECK(ole->GetClientSite(nullptr) == E_POINTER);
        CHECK(ole->GetMoniker(0, 0, nullptr) == E_POINTER);
        CHECK(ole->GetClipboardData(0, nullptr) == E_POINTER);
        CHECK(ole->EnumVerbs(nullptr) == E_POINTER);
        CHECK(ole->GetUserClassID(nullptr) == E_POINTER);
        CHECK(ole->GetUserType(USERCLASSTYPE_FULL, nullptr) == E_POINTER);
        CHECK(ole->GetExtent(DVASPECT_CONTENT, nullptr) == E_POINTER);
        CHECK(ole->EnumAdvise(nullptr) == E_POINTER);
        CHECK(ole->GetMiscStatus(DVASPECT_CONTENT, nullptr) == E_POINTER);
        CHECK(FAILED(ole->Advise(nullptr, nullptr)));
        CHECK(control.Como<IOleControl>()->GetControlInfo(nullptr) == E_POINTER);
        const auto lugar = control.Como<IOleInPlaceObject>();
        CHECK(lugar->GetWindow(nullptr) == E_POINTER);
        CHECK(FAILED(lugar->SetObjectRects(nullptr, nullptr)));
        CHECK(FAILED(control.Como<IOleInPlaceActiveObject>()->TranslateAccelerator(nullptr)));
        const auto vista = control.Como<IViewObject2>();
        CHECK(vista->GetColorSet(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, nullptr) ==
              E_POINTER);
        CHECK(vista->GetExtent(DVASPECT_CONTENT, -1, nullptr, nullptr) == E_POINTER);
        CHECK(vista->GetAdvise(nullptr, nullptr, nullptr) == S_OK); // each one may be missing
        const auto rapido = control.Como<IQuickActivate>();
        CHECK(rapido->QuickActivate(nullptr, nullptr) == E_POINTER);
        CHECK(rapido->GetContentExtent(nullptr) == E_POINTER);
        CHECK(rapido->SetContentExtent(nullptr) == E_POINTER);
        const auto datos = control.Como<IDataObject>();
        FORMATETC formato{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
        CHECK(datos->GetData(&formato, nullptr) == E_POINTER);
        CHECK(FAILED(datos->QueryGetData(nullptr)));
        CHECK(datos->EnumFormatEtc(DATADIR_GET, nullptr) == E_POINTER);
        CHECK(datos->GetCanonicalFormatEtc(&formato, nullptr) == E_POINTER);
        CHECK(datos->EnumDAdvise(nullptr) == E_POINTER);
        CHECK(FAILED(datos->DAdvise(nullptr, 0, nullptr, nullptr)));
    });
}

TEST_CASE("Out-parameters are cleared when a call fails") {
    ParaCadaControl([](const Clase&, const Puntero<IUnknown>& control) {
        const auto ole = control.Como<IOleObject>();
        auto* moniker = static_cast<IMoniker*>(Veneno);
        CHECK(FAILED(ole->GetMoniker(0, 0, &moniker)));
        CHECK(moniker == nullptr);
        auto* datos = static_cast<IDataObject*>(Veneno);
        CHECK(FAILED(ole->GetClipboardData(0, &datos)));
        CHECK(datos == nullptr);
        auto* sitio = static_cast<IOleClientSite*>(Veneno);
        CHECK(SUCCEEDED(ole->GetClientSite(&sitio)));
        CHECK(sitio == nullptr);
        DWORD rasgos = 77;
        CHECK(ole->GetMiscStatus(DVASPECT_ICON, &rasgos) == DV_E_DVASPECT);
        CHECK(rasgos == 0);
        const auto objetoDatos = control.Como<IDataObject>();
        FORMATETC otro{CF_TEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
        STGMEDIUM medio{};
        medio.tymed = TYMED_HGLOBAL;
        CHECK(FAILED(objetoDatos->GetData(&otro, &medio)));
        CHECK(medio.tymed == TYMED_NULL);
        CHECK(FAILED(objetoDatos->GetData(nullptr, &medio)));
        CHECK(objetoDatos->QueryGetData(&otro) != S_OK);
        auto* formatos = static_cast<IEnumFORMATETC*>(Veneno);
        CHECK(FAILED(objetoDatos->EnumFormatEtc(DATADIR_SET, &formatos)));
        CHECK(formatos == nullptr);
        CHECK(FAILED(objetoDatos->DUnadvise(5)));
        CHECK(FAILED(ole->Unadvise(5)));
    });
}

TEST_CASE("A control tells its kind") {
    ParaCadaControl([](const Clase& una, const Puntero<IUnknown>& control) {
        const auto ole = control.Como<IOleObject>();
        CLSID clase{};
        CHECK(ole->GetUserClassID(&clase) == S_OK);
        CHECK(clase == Guid(una.clase));
        LPOLESTR tipo = nullptr;
        REQUIRE(ole->GetUserType(USERCLASSTYPE_SHORT, &tipo) == S_OK);
        CHECK(std::wstring(tipo) == una.nombre);
        CoTaskMemFree(tipo);
        DWORD rasgos = 0;
        CHECK(ole->GetMiscStatus(DVASPECT_CONTENT, &rasgos) == S_OK);
        const DWORD pedidos =
            OLEMISC_RECOMPOSEONRESIZE | OLEMISC_INSIDEOUT | OLEMISC_ACTIVATEWHENVISIBLE;
        CHECK((rasgos & pedidos) == pedidos);
        CHECK(ole->SetHostNames(L"anfitrion", L"documento") == S_OK);
        CHECK(SUCCEEDED(ole->Close(OLECLOSE_NOSAVE)));
        CHECK(SUCCEEDED(ole->Close(OLECLOSE_NOSAVE)));
    });
}

TEST_CASE("Enumerators count, skip, start again and are copied") {
    ParaCadaControl([](const Clase& una, const Puntero<IUnknown>& control) {
        Puntero<IEnumConnectionPoints> puntos;
        REQUIRE(control.Como<IConnectionPointContainer>()->EnumConnectionPoints(puntos.Recibir()) ==
                S_OK);
        ComprobarEnumerador<IEnumConnectionPoints, IConnectionPoint*>(
            puntos.get(), [](IConnectionPoint* p) { p->Release(); });
        // The class without property pages is the one without verbs.
        if (std::wstring(una.nombre) != L"TBoxML") {
            Puntero<IEnumOLEVERB> verbos;
            REQUIRE(control.Como<IOleObject>()->EnumVerbs(verbos.Recibir()) == S_OK);
            ComprobarEnumerador<IEnumOLEVERB, OLEVERB>(
                verbos.get(), [](OLEVERB& v) { CoTaskMemFree(v.lpszVerbName); });
        }
        Puntero<IEnumFORMATETC> formatos;
        REQUIRE(control.Como<IDataObject>()->EnumFormatEtc(DATADIR_GET, formatos.Recibir()) ==
                S_OK);
        ComprobarEnumerador<IEnumFORMATETC, FORMATETC>(formatos.get(), [](FORMATETC&) {});
    });
}

TEST_CASE("Enumerators and connection points keep their control alive") {
    const SesionOle ole;
    const Modulo modulo;
    ParaCadaClase(modulo, [&](const Clase& una, IClassFactory* fabrica) {
        if (una.genero != Genero::Control)
            return;
        Puntero<IUnknown> control = Hecho(fabrica);
        Puntero<IEnumConnectionPoints> puntos;
        REQUIRE(control.Como<IConnectionPointContainer>()->EnumConnectionPoints(puntos.Recibir()) ==
                S_OK);
        control.Soltar();
        Puntero<IConnectionPoint> punto;
        REQUIRE(puntos->Next(1, punto.Recibir(), nullptr) == S_OK);
        puntos.Soltar();
        Puntero<IConnectionPointContainer> contenedor;
        CHECK(punto->GetConnectionPointContainer(contenedor.Recibir()) == S_OK);
        punto.Soltar();
        CHECK(contenedor.Soltar() == 0);
    });
    CHECK(modulo.PuedeDescargarse() == S_OK);
}

TEST_CASE("A control gives a picture of itself") {
    ParaCadaControl([](const Clase&, const Puntero<IUnknown>& control) {
        FORMATETC formato{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
        const auto datos = control.Como<IDataObject>();
        CHECK(datos->QueryGetData(&formato) == S_OK);
        STGMEDIUM medio{};
        REQUIRE(datos->GetData(&formato, &medio) == S_OK);
        CHECK(medio.tymed == TYMED_ENHMF);
        ENHMETAHEADER cabecera{};
        CHECK(GetEnhMetaFileHeader(medio.hEnhMetaFile, sizeof cabecera, &cabecera) != 0);
        CHECK(cabecera.nRecords > 2);
        ReleaseStgMedium(&medio);
    });
}

TEST_CASE("Events frozen more often than thawed stay frozen, and thawing too often is harmless") {
    ParaCadaControl([](const Clase&, const Puntero<IUnknown>& control) {
        const auto ole = control.Como<IOleControl>();
        CHECK(ole->FreezeEvents(TRUE) == S_OK);
        CHECK(ole->FreezeEvents(FALSE) == S_OK);
        CHECK(ole->FreezeEvents(FALSE) == S_OK);
        CHECK(ole->OnAmbientPropertyChange(DISPID_UNKNOWN) == S_OK);
        CHECK(ole->OnAmbientPropertyChange(DISPID_AMBIENT_FONT) == S_OK);
        CHECK(SUCCEEDED(ole->OnMnemonic(nullptr)));
    });
}
