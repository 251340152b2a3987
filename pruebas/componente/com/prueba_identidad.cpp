// The rules of COM, walked over every class and every interface.
#include "pruebas/componente/com/cada_clase.h"

#include <ocidl.h>
#include <olectl.h>

#include <set>
#include <string>
#include <vector>

using namespace publicado;

namespace {

/// Every interface that a class of ours, or its container, might think of.
std::vector<IID> Interfaces(const Clase& clase) {
    return {IID_IUnknown,
            IID_IDispatch,
            Guid(clase.interfaz),
            IID_IOleObject,
            IID_IOleControl,
            IID_IOleWindow,
            IID_IOleInPlaceObject,
            IID_IOleInPlaceActiveObject,
            IID_IViewObject,
            IID_IViewObject2,
            IID_IPersist,
            IID_IPersistStream,
            IID_IPersistStreamInit,
            IID_IPersistStorage,
            IID_IPersistPropertyBag,
            IID_IPersistMemory,
            IID_IPersistFile,
            IID_IProvideClassInfo,
            IID_IProvideClassInfo2,
            IID_IConnectionPointContainer,
            IID_ISpecifyPropertyPages,
            IID_ISupportErrorInfo,
            Guid(L"{4D07FC10-F931-11CE-B001-00AA006884E5}"), // ICategorizeProperties
            IID_IPerPropertyBrowsing,
            IID_IQuickActivate,
            IID_IDataObject,
            IID_IPropertyPage,
            IID_IPropertyPage2,
            IID_IMarshal,
            Guid(L"{CB5BDC81-93C1-11CF-8F20-00805F2CD064}"), // IObjectSafety
            Guid(Inexistente)};
}

bool Ofrece(IUnknown* objeto, REFIID iid) {
    void* p = Veneno;
    const HRESULT estado = objeto->QueryInterface(iid, &p);
    if (estado == S_OK) {
        CHECK(p != nullptr);
        CHECK(p != Veneno);
        static_cast<IUnknown*>(p)->Release();
        return true;
    }
    CHECK(estado == E_NOINTERFACE);
    CHECK(p == nullptr);
    return false;
}

} // namespace

TEST_CASE("Each of the ten classes can be made") {
    const SesionOle ole;
    const Modulo modulo;
    std::set<std::wstring> hechas;
    ParaCadaClase(modulo, [&](const Clase& una, IClassFactory* fabrica) {
        CHECK(Hecho(fabrica));
        hechas.insert(una.nombre);
    });
    CHECK(hechas.size() == 10);
}

TEST_CASE("An object has one identity, whatever interface it is asked through") {
    const SesionOle ole;
    const Modulo modulo;
    ParaCadaClase(modulo, [&](const Clase& una, IClassFactory* fabrica) {
        const Puntero<IUnknown> objeto = Hecho(fabrica);
        for (const IID& iid : Interfaces(una)) {
            INFO(anfitrion::Estrechar(Escrito(iid)));
            Puntero<IUnknown> interfaz, identidad;
            if (FAILED(objeto->QueryInterface(iid, interfaz.RecibirVoid())))
                continue;
            REQUIRE(interfaz->QueryInterface(IID_IUnknown, identidad.RecibirVoid()) == S_OK);
            CHECK(identidad == objeto);
        }
    });
}

TEST_CASE("Each interface leads to every other, and always to the same ones") {
    const SesionOle ole;
    const Modulo modulo;
    ParaCadaClase(modulo, [&](const Clase& una, IClassFactory* fabrica) {
        const Puntero<IUnknown> objeto = Hecho(fabrica);
        const std::vector<IID> todas = Interfaces(una);
        std::vector<bool> ofrecidas;
        for (const IID& iid : todas)
            ofrecidas.push_back(Ofrece(objeto.get(), iid));
        CHECK_FALSE(ofrecidas.back());
        for (std::size_t desde = 0; desde < todas.size(); ++desde) {
            if (!ofrecidas[desde])
                continue;
            Puntero<IUnknown> interfaz;
            REQUIRE(objeto->QueryInterface(todas[desde], interfaz.RecibirVoid()) == S_OK);
            for (std::size_t hasta = 0; hasta < todas.size(); ++hasta) {
                INFO(anfitrion::Estrechar(Escrito(todas[desde])), " to ",
                     anfitrion::Estrechar(Escrito(todas[hasta])));
                CHECK(Ofrece(interfaz.get(), todas[hasta]) == ofrecidas[hasta]);
            }
        }
    });
}

TEST_CASE("A control offers what containers ask of one") {
    const SesionOle ole;
    const Modulo modulo;
    ParaCadaClase(modulo, [&](const Clase& una, IClassFactory* fabrica) {
        const Puntero<IUnknown> objeto = Hecho(fabrica);
        CHECK(Ofrece(objeto.get(), IID_IDispatch));
        CHECK(Ofrece(objeto.get(), Guid(una.interfaz)));
        CHECK(Ofrece(objeto.get(), IID_ISupportErrorInfo));
        CHECK(Ofrece(objeto.get(), IID_IOleObject) == (una.genero == Genero::Control));
        if (una.genero != Genero::Control)
            return;
        for (const IID& iid :
             {IID_IOleControl, IID_IOleWindow, IID_IOleInPlaceObject, IID_IOleInPlaceActiveObject,
              IID_IViewObject, IID_IViewObject2, IID_IPersist, IID_IPersistStreamInit,
              IID_IPersistStorage, IID_IPersistPropertyBag, IID_IProvideClassInfo,
              IID_IProvideClassInfo2, IID_IConnectionPointContainer, IID_IPerPropertyBrowsing,
              IID_IQuickActivate, IID_IDataObject}) {
            INFO(anfitrion::Estrechar(Escrito(iid)));
            CHECK(Ofrece(objeto.get(), iid));
        }
        CHECK(Ofrece(objeto.get(), IID_ISpecifyPropertyPages) ==
              (std::wstring_view(una.nombre) != L"TBoxML"));
    });
}

TEST_CASE("The last release of an object leaves nothing behind") {
    const SesionOle ole;
    const Modulo modulo;
    CHECK(modulo.PuedeDescargarse() == S_OK);
    ParaCadaClase(modulo, [&](const Clase& una, IClassFactory* fabrica) {
        Puntero<IUnknown> objeto = Hecho(fabrica);
        for (const IID& iid : Interfaces(una))
            Ofrece(objeto.get(), iid);
        CHECK(objeto->QueryInterface(IID_IUnknown, nullptr) == E_POINTER);
        CHECK(modulo.PuedeDescargarse() == S_FALSE);
        const ULONG antes = objeto->AddRef();
        CHECK(objeto->Release() == antes - 1);
        CHECK(objeto.Soltar() == 0);
    });
    CHECK(modulo.PuedeDescargarse() == S_OK);
}

TEST_CASE("Any interface may be the last one released") {
    const SesionOle ole;
    const Modulo modulo;
    ParaCadaClase(modulo, [&](const Clase& una, IClassFactory* fabrica) {
        for (const IID& iid : Interfaces(una)) {
            Puntero<IUnknown> objeto = Hecho(fabrica), interfaz;
            if (FAILED(objeto->QueryInterface(iid, interfaz.RecibirVoid())))
                continue;
            objeto.Soltar();
            INFO(anfitrion::Estrechar(Escrito(iid)));
            CHECK(interfaz.Soltar() == 0);
        }
    });
    CHECK(modulo.PuedeDescargarse() == S_OK);
}

TEST_CASE("Factories and locks keep the component loaded") {
    const SesionOle ole;
    const Modulo modulo;
    Puntero<IClassFactory> fabrica;
    const CLSID clase = Guid(ClaseDe(L"Efectos").clase);
    REQUIRE(modulo.DarClase(clase, IID_IClassFactory, fabrica.RecibirVoid()) == S_OK);
    CHECK(modulo.PuedeDescargarse() == S_FALSE);
    CHECK(fabrica->LockServer(TRUE) == S_OK);
    CHECK(fabrica.Soltar() == 0);
    CHECK(modulo.PuedeDescargarse() == S_FALSE);
    REQUIRE(modulo.DarClase(clase, IID_IClassFactory, fabrica.RecibirVoid()) == S_OK);
    CHECK(fabrica->LockServer(FALSE) == S_OK);
    fabrica.Soltar();
    CHECK(modulo.PuedeDescargarse() == S_OK);
}

TEST_CASE("A factory refuses what it can't make") {
    const SesionOle ole;
    const Modulo modulo;
    void* p = Veneno;
    CHECK(modulo.DarClase(Guid(Inexistente), IID_IClassFactory, &p) == CLASS_E_CLASSNOTAVAILABLE);
    CHECK(p == nullptr);
    p = Veneno;
    CHECK(modulo.DarClase(CLSID_NULL, IID_IUnknown, &p) == CLASS_E_CLASSNOTAVAILABLE);
    CHECK(p == nullptr);
    ParaCadaClase(modulo, [&](const Clase& una, IClassFactory* fabrica) {
        void* q = Veneno;
        CHECK(modulo.DarClase(Guid(una.clase), IID_IDispatch, &q) == E_NOINTERFACE);
        CHECK(q == nullptr);
        CHECK(modulo.DarClase(Guid(una.clase), IID_IClassFactory, nullptr) == E_POINTER);
        const Puntero<IUnknown> exterior = Hecho(fabrica);
        q = Veneno;
        CHECK(fabrica->CreateInstance(exterior.get(), IID_IUnknown, &q) == CLASS_E_NOAGGREGATION);
        CHECK(q == nullptr);
        CHECK(fabrica->CreateInstance(nullptr, IID_IUnknown, nullptr) == E_POINTER);
        q = Veneno;
        CHECK(fabrica->CreateInstance(nullptr, Guid(Inexistente), &q) == E_NOINTERFACE);
        CHECK(q == nullptr);
        CHECK(fabrica->QueryInterface(IID_IDispatch, &q) == E_NOINTERFACE);
        CHECK(fabrica->QueryInterface(IID_IUnknown, nullptr) == E_POINTER);
    });
    CHECK(modulo.PuedeDescargarse() == S_OK);
}
