// Null pointers handed to every class through every interface, where something was to be put or
// read.
#include "anfitrion/bolsa_memoria.h"
#include "pruebas/componente/com/cada_clase.h"

#include <ocidl.h>
#include <olectl.h>

#include <set>

using namespace publicado;

namespace {

/// Runs `f` on the interface when the object offers it; otherwise that too was said.
template <class I, class F>
void Con(const Puntero<IUnknown>& objeto, F f) {
    if (const auto interfaz = objeto.template Como<I>())
        f(*interfaz.get());
}

void ComprobarIdentidad(const Puntero<IUnknown>& objeto) {
    // Every interface answers the three questions that all have.
    for (const IID& iid :
         {IID_IDispatch, IID_IOleObject, IID_IOleControl, IID_IOleInPlaceObject,
          IID_IOleInPlaceActiveObject, IID_IViewObject2, IID_IPersistStreamInit,
          IID_IPersistStorage, IID_IPersistPropertyBag, IID_IProvideClassInfo2,
          IID_IConnectionPointContainer, IID_ISpecifyPropertyPages, IID_ISupportErrorInfo,
          IID_IPerPropertyBrowsing, IID_IQuickActivate, IID_IDataObject, IID_IPropertyPage}) {
        Puntero<IUnknown> interfaz;
        if (FAILED(objeto->QueryInterface(iid, interfaz.RecibirVoid())))
            continue;
        INFO(anfitrion::Estrechar(Escrito(iid)));
        CHECK(interfaz->QueryInterface(iid, nullptr) == E_POINTER);
        void* nada = Veneno;
        CHECK(interfaz->QueryInterface(Guid(Inexistente), &nada) == E_NOINTERFACE);
        CHECK(nada == nullptr);
        const ULONG cuenta = interfaz->AddRef();
        CHECK(interfaz->Release() == cuenta - 1);
    }
}

void ComprobarTardio(IDispatch& despacho) {
    CHECK(despacho.GetTypeInfoCount(nullptr) == E_POINTER);
    CHECK(despacho.GetTypeInfo(0, LOCALE_USER_DEFAULT, nullptr) == E_POINTER);
    auto* tipo = static_cast<ITypeInfo*>(Veneno);
    CHECK(despacho.GetTypeInfo(7, LOCALE_USER_DEFAULT, &tipo) == DISP_E_BADINDEX);
    CHECK(tipo == nullptr);
    DISPID numero = 0;
    LPOLESTR nombre = const_cast<LPOLESTR>(L"NoHayTalCosa");
    CHECK(despacho.GetIDsOfNames(IID_NULL, nullptr, 1, 0, &numero) == E_POINTER);
    CHECK(despacho.GetIDsOfNames(IID_NULL, &nombre, 1, 0, nullptr) == E_POINTER);
    CHECK(despacho.GetIDsOfNames(IID_NULL, &nombre, 1, 0, &numero) == DISP_E_UNKNOWNNAME);
    CHECK(numero == DISPID_UNKNOWN);
    DISPPARAMS ninguno{};
    VARIANT valor;
    VariantInit(&valor);
    CHECK(despacho.Invoke(0x7FFFFFF0, IID_NULL, 0, DISPATCH_PROPERTYGET, &ninguno, &valor, nullptr,
                          nullptr) == DISP_E_MEMBERNOTFOUND);
    CHECK(valor.vt == VT_EMPTY);
    CHECK(FAILED(despacho.Invoke(0x7FFFFFF0, IID_NULL, 0, DISPATCH_PROPERTYGET, nullptr, nullptr,
                                 nullptr, nullptr)));
}

/// Every member of the default interface that takes one pointer, by its place in the table.
int ComprobarTabla(const Puntero<IUnknown>& objeto, const Clase& clase) {
    Puntero<IUnknown> dual;
    REQUIRE(objeto->QueryInterface(Guid(clase.interfaz), dual.RecibirVoid()) == S_OK);
    Puntero<ITypeInfo> tardia, tabla;
    REQUIRE(objeto.Como<IDispatch>()->GetTypeInfo(0, 0, tardia.Recibir()) == S_OK);
    HREFTYPE lugar = 0;
    REQUIRE(tardia->GetRefTypeOfImplType(static_cast<UINT>(-1), &lugar) == S_OK);
    REQUIRE(tardia->GetRefTypeInfo(lugar, tabla.Recibir()) == S_OK);
    TYPEATTR* rasgos = nullptr;
    REQUIRE(tabla->GetTypeAttr(&rasgos) == S_OK);
    int hechas = 0;
    for (UINT i = 0; i < rasgos->cFuncs; ++i) {
        FUNCDESC* funcion = nullptr;
        REQUIRE(tabla->GetFuncDesc(i, &funcion) == S_OK);
        const TYPEDESC* tipo =
            funcion->cParams == 1 ? &funcion->lprgelemdescParam[0].tdesc : nullptr;
        // An object may be set to nothing.
        const bool puntero =
            tipo && tipo->vt == VT_PTR && funcion->invkind != INVOKE_PROPERTYPUTREF;
        if (puntero && funcion->memid != DISPID_UNKNOWN &&
            funcion->oVft >= 7 * static_cast<int>(sizeof(void*))) {
            INFO("member ", funcion->memid, " of ", anfitrion::Estrechar(clase.nombre));
            using Miembro = HRESULT(STDMETHODCALLTYPE*)(void*, void*);
            auto* const* miembros = *reinterpret_cast<void***>(dual.get());
            const auto miembro = reinterpret_cast<Miembro>(
                miembros[static_cast<std::size_t>(funcion->oVft) / sizeof(void*)]);
            CHECK(miembro(dual.get(), nullptr) == E_POINTER);
            ++hechas;
        }
        tabla->ReleaseFuncDesc(funcion);
    }
    tabla->ReleaseTypeAttr(rasgos);
    return hechas;
}

void ComprobarPersistencia(const Puntero<IUnknown>& objeto) {
    Con<IPersistStreamInit>(objeto, [](IPersistStreamInit& uno) {
        CHECK(uno.GetClassID(nullptr) == E_POINTER);
        CHECK(uno.Load(nullptr) == E_POINTER);
        CHECK(uno.Save(nullptr, TRUE) == E_POINTER);
        CHECK(uno.GetSizeMax(nullptr) == E_POINTER);
    });
    Con<IPersistStorage>(objeto, [](IPersistStorage& uno) {
        CHECK(uno.GetClassID(nullptr) == E_POINTER);
        CHECK(uno.Load(nullptr) == E_POINTER);
        CHECK(uno.Save(nullptr, TRUE) == E_POINTER);
    });
    Con<IPersistPropertyBag>(objeto, [](IPersistPropertyBag& uno) {
        CHECK(uno.GetClassID(nullptr) == E_POINTER);
        CHECK(uno.Load(nullptr, nullptr) == E_POINTER);
        CHECK(uno.Save(nullptr, TRUE, TRUE) == E_POINTER);
    });
}

void ComprobarTipos(const Puntero<IUnknown>& objeto) {
    Con<IProvideClassInfo2>(objeto, [](IProvideClassInfo2& uno) {
        CHECK(uno.GetClassInfo(nullptr) == E_POINTER);
        CHECK(uno.GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, nullptr) == E_POINTER);
        GUID guid = Guid(Inexistente);
        CHECK(uno.GetGUID(77, &guid) == E_INVALIDARG);
        CHECK(guid == GUID{});
    });
    Con<ISpecifyPropertyPages>(
        objeto, [](ISpecifyPropertyPages& uno) { CHECK(uno.GetPages(nullptr) == E_POINTER); });
    Con<IPerPropertyBrowsing>(objeto, [](IPerPropertyBrowsing& uno) {
        CALPOLESTR textos{};
        CADWORD galletas{};
        CHECK(uno.GetDisplayString(1, nullptr) == E_POINTER);
        CHECK(uno.MapPropertyToPage(1, nullptr) == E_POINTER);
        CHECK(uno.GetPredefinedStrings(1, nullptr, &galletas) == E_POINTER);
        CHECK(uno.GetPredefinedStrings(1, &textos, nullptr) == E_POINTER);
        CHECK(uno.GetPredefinedValue(1, 0, nullptr) == E_POINTER);
        auto* texto = static_cast<BSTR>(Veneno);
        CHECK(uno.GetDisplayString(0x7FFFFFF0, &texto) != S_OK);
        CHECK(texto == nullptr);
        textos = {9, static_cast<LPOLESTR*>(Veneno)};
        galletas = {9, static_cast<DWORD*>(Veneno)};
        CHECK(uno.GetPredefinedStrings(0x7FFFFFF0, &textos, &galletas) != S_OK);
        CHECK((textos.cElems == 0 && !textos.pElems && galletas.cElems == 0 && !galletas.pElems));
    });
}

void ComprobarConexiones(const Puntero<IUnknown>& objeto) {
    Con<IConnectionPointContainer>(objeto, [](IConnectionPointContainer& uno) {
        CHECK(uno.EnumConnectionPoints(nullptr) == E_POINTER);
        CHECK(uno.FindConnectionPoint(IID_IPropertyNotifySink, nullptr) == E_POINTER);
        auto* nada = static_cast<IConnectionPoint*>(Veneno);
        CHECK(uno.FindConnectionPoint(Guid(Inexistente), &nada) == CONNECT_E_NOCONNECTION);
        CHECK(nada == nullptr);
        Puntero<IConnectionPoint> punto;
        REQUIRE(uno.FindConnectionPoint(IID_IPropertyNotifySink, punto.Recibir()) == S_OK);
        CHECK(punto->QueryInterface(IID_IUnknown, nullptr) == E_POINTER);
        CHECK(punto->GetConnectionInterface(nullptr) == E_POINTER);
        CHECK(punto->GetConnectionPointContainer(nullptr) == E_POINTER);
        CHECK(punto->EnumConnections(nullptr) == E_POINTER);
        DWORD galleta = 9;
        CHECK(punto->Advise(nullptr, &galleta) == E_POINTER);
        CHECK(galleta == 0);
        // Somebody who doesn't listen.
        const auto mudo = anfitrion::Hacer<anfitrion::BolsaMemoria>();
        CHECK(punto->Advise(mudo.get(), nullptr) == E_POINTER);
        galleta = 9;
        CHECK(punto->Advise(mudo.get(), &galleta) == CONNECT_E_CANNOTCONNECT);
        CHECK(galleta == 0);
        CHECK(punto->Unadvise(77) == CONNECT_E_NOCONNECTION);
    });
    Con<IOleObject>(objeto, [](IOleObject& uno) {
        CHECK(uno.Advise(nullptr, nullptr) == E_POINTER);
        CHECK(uno.SetExtent(DVASPECT_CONTENT, nullptr) == E_POINTER);
    });
    Con<IDataObject>(objeto, [](IDataObject& uno) {
        FORMATETC formato{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
        CHECK(uno.DAdvise(&formato, 0, nullptr, nullptr) == E_POINTER);
        STGMEDIUM medio{};
        CHECK(uno.GetData(nullptr, &medio) == E_POINTER);
        CHECK(uno.QueryGetData(nullptr) == E_POINTER);
    });
    Con<IOleInPlaceObject>(objeto, [](IOleInPlaceObject& uno) {
        HWND ventana = static_cast<HWND>(Veneno);
        CHECK(FAILED(uno.GetWindow(&ventana)));
        CHECK(ventana == nullptr);
    });
}

void ComprobarPagina(const Puntero<IUnknown>& objeto) {
    Con<IPropertyPage>(objeto, [](IPropertyPage& uno) {
        CHECK(uno.GetPageInfo(nullptr) == E_POINTER);
        CHECK(uno.SetObjects(1, nullptr) == E_POINTER);
        CHECK(uno.Activate(GetDesktopWindow(), nullptr, FALSE) == E_POINTER);
        CHECK(uno.Move(nullptr) == E_POINTER);
        CHECK(uno.TranslateAccelerator(nullptr) == E_POINTER);
        CHECK(FAILED(uno.Deactivate()));
    });
}

} // namespace

TEST_CASE("No class takes a null pointer for a place to write to, through any interface") {
    const SesionOle ole;
    const Modulo modulo;
    std::set<std::wstring> vistas;
    ParaCadaClase(modulo, [&](const Clase& una, IClassFactory* fabrica) {
        const Puntero<IUnknown> objeto = Hecho(fabrica);
        vistas.insert(una.nombre);
        ComprobarIdentidad(objeto);
        ComprobarTardio(*objeto.Como<IDispatch>().get());
        const int miembros = ComprobarTabla(objeto, una);
        CHECK((miembros > 10 || una.genero != Genero::Control));
        ComprobarPersistencia(objeto);
        ComprobarTipos(objeto);
        ComprobarConexiones(objeto);
        ComprobarPagina(objeto);
    });
    CHECK(vistas.size() == Clases.size());
    CHECK(modulo.PuedeDescargarse() == S_OK);
}
