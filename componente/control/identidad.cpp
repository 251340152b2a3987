// Birth, identity and death of a control.
#include "componente/control/objeto_control.h"
#include "plataforma/windows/modulo.h"

namespace pincela::componente {

namespace {

constexpr GUID IidCategorizar = "{4D07FC10-F931-11CE-B001-00AA006884E5}"_guid;

} // namespace

ObjetoControl::ObjetoControl(const ClasePublicada& clase, HacedorDeNucleo hacer)
    : clase_(clase), entorno_(static_cast<windows::SitioControl&>(*this)),
      eventos_(Identidad(), this, clase.datos->eventos),
      notificaciones_(Identidad(), this, IID_IPropertyNotifySink) {
    PonPppDe(nullptr);
    entorno_.PonTamano(clase.datos->tamanio, false);
    extension_ = AHimetric(clase.datos->tamanio);
    nucleo_ = hacer(*this, entorno_);
    interfaz_ = {clase_.tabla, Identidad(), nucleo_.get(), &clase_};
    interfaz_.preparar = [](InterfazDual& yo) {
        static_cast<ObjetoControl*>(static_cast<IOleObject*>(yo.objeto))->Preparar();
    };
    entorno_.Asociar(nucleo_.get());
}

ObjetoControl::~ObjetoControl() {
    // A container that never closed the control releases it while the window still stands.
    cerrando_ = true;
    for (const auto& accesible : {accesible_, accesibleDeCampo_})
        if (accesible)
            accesible->Desconectar();
    entorno_.Asociar(nullptr);
    entorno_.DestruirVentana();
    try {
        nucleo_->Terminate();
    } catch (...) {
        // Nobody is left to be told.
    }
    eventos_.Olvidar();
    notificaciones_.Olvidar();
    nucleo_.reset(); // it may still speak to the container
    if (aceleradores_)
        DestroyAcceleratorTable(aceleradores_);
}

HRESULT ObjetoControl::QueryInterface(REFIID iid, void** salida) {
    if (!salida)
        return E_POINTER;
    *salida = nullptr;
    const struct {
        const IID& iid;
        void* interfaz;
    } lista[] = {
        {IID_IUnknown, static_cast<IOleObject*>(this)},
        {IID_IOleObject, static_cast<IOleObject*>(this)},
        {Datos().interfaz, interfaz_.Com()},
        {IID_IDispatch, interfaz_.Com()},
        {IID_IOleControl, static_cast<IOleControl*>(this)},
        {IID_IOleWindow, static_cast<IOleInPlaceObject*>(this)},
        {IID_IOleInPlaceObject, static_cast<IOleInPlaceObject*>(this)},
        {IID_IOleInPlaceActiveObject, static_cast<IOleInPlaceActiveObject*>(this)},
        {IID_IViewObject, static_cast<IViewObject2*>(this)},
        {IID_IViewObject2, static_cast<IViewObject2*>(this)},
        {IID_IPersist, static_cast<IPersistStreamInit*>(this)},
        {IID_IPersistStreamInit, static_cast<IPersistStreamInit*>(this)},
        {IID_IPersistStorage, static_cast<IPersistStorage*>(this)},
        {IID_IPersistPropertyBag, static_cast<IPersistPropertyBag*>(this)},
        {IID_IProvideClassInfo, static_cast<IProvideClassInfo2*>(this)},
        {IID_IProvideClassInfo2, static_cast<IProvideClassInfo2*>(this)},
        {IID_IConnectionPointContainer, static_cast<IConnectionPointContainer*>(this)},
        {IID_ISpecifyPropertyPages, static_cast<ISpecifyPropertyPages*>(this)},
        {IID_ISupportErrorInfo, static_cast<ISupportErrorInfo*>(this)},
        {IidCategorizar, static_cast<ICategorizeProperties*>(this)},
        {IID_IPerPropertyBrowsing, static_cast<IPerPropertyBrowsing*>(this)},
        {IID_IQuickActivate, static_cast<IQuickActivate*>(this)},
        {IID_IDataObject, static_cast<IDataObject*>(this)},
        {IidControlInterno, static_cast<IControlInterno*>(this)},
    };
    for (const auto& uno : lista) {
        if (iid == uno.iid) {
            // A class without property pages does not offer to name them.
            if (iid == IID_ISpecifyPropertyPages && Datos().paginas.empty())
                return E_NOINTERFACE;
            *salida = uno.interfaz;
            AddRef();
            return S_OK;
        }
    }
    return E_NOINTERFACE;
}

HRESULT ObjetoControl::GetClassInfo(ITypeInfo** info) {
    return info ? InformacionDe(Datos().clase, info) : E_POINTER;
}

HRESULT ObjetoControl::GetGUID(DWORD cual, GUID* guid) {
    if (!guid)
        return E_POINTER;
    *guid = GUID{};
    if (cual != GUIDKIND_DEFAULT_SOURCE_DISP_IID)
        return E_INVALIDARG;
    *guid = Datos().eventos;
    return S_OK;
}

HRESULT ObjetoControl::InterfaceSupportsErrorInfo(REFIID iid) {
    return iid == Datos().interfaz || iid == IID_IDispatch ? S_OK : S_FALSE;
}

HRESULT ObjetoControl::DarNucleo(HMODULE modulo, ControlUsuario** nucleo) {
    if (!nucleo)
        return E_POINTER;
    *nucleo = nullptr;
    if (modulo != windows::ModuloPropio() || cerrando_)
        return E_ACCESSDENIED;
    return Guardar([&] {
        Preparar();
        *nucleo = nucleo_.get();
        return S_OK;
    });
}

} // namespace pincela::componente
