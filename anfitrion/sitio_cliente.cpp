#include "anfitrion/sitio_cliente.h"

#include "anfitrion/control_alojado.h"
#include "anfitrion/formulario.h"
#include "anfitrion/unidades.h"

namespace anfitrion {

void SitioCliente::Anotar(const char* llamada, std::string_view detalle) const {
    if (control_)
        control_->Anotar(llamada, detalle);
}

bool SitioCliente::Ofrece(REFIID iid) const {
    if (!control_)
        return true;
    const OpcionesSitio& o = control_->Opciones();
    if (iid == IID_IOleControlSite)
        return o.sitioControl;
    if (iid == IID_IDispatch)
        return o.ambientes;
    if (iid == IID_ISimpleFrameSite)
        return o.marcoSimple;
    if (iid == __uuidof(IVBGetControl))
        return o.contenidos;
    if (iid == IID_IServiceProvider)
        return o.servicios;
    if (iid == IID_IOleInPlaceSiteEx)
        return o.sitioExtendido;
    return true;
}

void* SitioCliente::Heredada(REFIID iid) {
    if (iid == IID_IOleWindow || iid == IID_IOleInPlaceSite)
        return static_cast<IOleInPlaceSiteEx*>(this);
    return nullptr;
}

// IOleClientSite

HRESULT SitioCliente::SaveObject() {
    Anotar("IOleClientSite::SaveObject");
    return S_OK;
}

HRESULT SitioCliente::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
    if (moniker)
        *moniker = nullptr;
    return E_NOTIMPL;
}

HRESULT SitioCliente::GetContainer(IOleContainer** contenedor) {
    Anotar("IOleClientSite::GetContainer");
    if (!contenedor)
        return E_POINTER;
    *contenedor = nullptr;
    if (!control_)
        return E_UNEXPECTED;
    if (!control_->Opciones().contenedor)
        return E_NOINTERFACE;
    *contenedor = control_->Forma().Contenido().Separar();
    return S_OK;
}

HRESULT SitioCliente::ShowObject() {
    Anotar("IOleClientSite::ShowObject");
    return S_OK;
}

HRESULT SitioCliente::OnShowWindow(BOOL) {
    Anotar("IOleClientSite::OnShowWindow");
    return S_OK;
}

HRESULT SitioCliente::RequestNewObjectLayout() {
    Anotar("IOleClientSite::RequestNewObjectLayout");
    return E_NOTIMPL;
}

// IOleInPlaceSiteEx

HRESULT SitioCliente::GetWindow(HWND* ventana) {
    if (!ventana)
        return E_POINTER;
    *ventana = control_ ? control_->VentanaPadre() : nullptr;
    return control_ ? S_OK : E_UNEXPECTED;
}

HRESULT SitioCliente::ContextSensitiveHelp(BOOL) {
    return S_OK;
}

HRESULT SitioCliente::CanInPlaceActivate() {
    Anotar("IOleInPlaceSite::CanInPlaceActivate");
    return control_ ? S_OK : E_UNEXPECTED;
}

HRESULT SitioCliente::OnInPlaceActivate() {
    Anotar("IOleInPlaceSite::OnInPlaceActivate");
    if (!control_)
        return E_UNEXPECTED;
    control_->EnSitio(true);
    return S_OK;
}

HRESULT SitioCliente::OnUIActivate() {
    Anotar("IOleInPlaceSite::OnUIActivate");
    if (!control_)
        return E_UNEXPECTED;
    control_->Forma().UIActivado(*control_);
    return S_OK;
}

HRESULT SitioCliente::GetWindowContext(IOleInPlaceFrame** marco, IOleInPlaceUIWindow** documento,
                                       LPRECT posicion, LPRECT recorte,
                                       LPOLEINPLACEFRAMEINFO info) {
    Anotar("IOleInPlaceSite::GetWindowContext");
    if (!marco || !documento || !posicion || !recorte)
        return E_POINTER;
    *marco = nullptr;
    *documento = nullptr;
    if (!control_)
        return E_UNEXPECTED;
    Formulario& forma = control_->Forma();
    if (control_->Opciones().marco)
        *marco = Puntero<IOleInPlaceFrame>(forma.Marco()).Separar();
    if (control_->Opciones().documento)
        *documento = Puntero<IOleInPlaceUIWindow>(forma.Documento()).Separar();
    *posicion = control_->Rectangulo();
    GetClientRect(control_->VentanaPadre(), recorte);
    if (info) {
        info->fMDIApp = FALSE;
        info->hwndFrame = forma.Ventana();
        info->haccel = nullptr;
        info->cAccelEntries = 0;
    }
    return S_OK;
}

HRESULT SitioCliente::Scroll(SIZE) {
    Anotar("IOleInPlaceSite::Scroll");
    return S_FALSE;
}

HRESULT SitioCliente::OnUIDeactivate(BOOL) {
    Anotar("IOleInPlaceSite::OnUIDeactivate");
    if (control_)
        control_->Forma().UIDesactivado(*control_);
    return S_OK;
}

HRESULT SitioCliente::OnInPlaceDeactivate() {
    Anotar("IOleInPlaceSite::OnInPlaceDeactivate");
    if (control_)
        control_->EnSitio(false);
    return S_OK;
}

HRESULT SitioCliente::DiscardUndoState() {
    return S_OK;
}

HRESULT SitioCliente::DeactivateAndUndo() {
    Anotar("IOleInPlaceSite::DeactivateAndUndo");
    return S_OK;
}

HRESULT SitioCliente::OnPosRectChange(LPCRECT rectangulo) {
    Anotar("IOleInPlaceSite::OnPosRectChange");
    if (!rectangulo)
        return E_POINTER;
    if (!control_)
        return E_UNEXPECTED;
    control_->PedirLugar(*rectangulo);
    return S_OK;
}

HRESULT SitioCliente::OnInPlaceActivateEx(BOOL* sinRepintar, DWORD) {
    Anotar("IOleInPlaceSiteEx::OnInPlaceActivateEx");
    if (sinRepintar)
        *sinRepintar = FALSE;
    if (!control_)
        return E_UNEXPECTED;
    control_->EnSitio(true);
    return S_OK;
}

HRESULT SitioCliente::OnInPlaceDeactivateEx(BOOL) {
    Anotar("IOleInPlaceSiteEx::OnInPlaceDeactivateEx");
    if (control_)
        control_->EnSitio(false);
    return S_OK;
}

HRESULT SitioCliente::RequestUIActivate() {
    Anotar("IOleInPlaceSiteEx::RequestUIActivate");
    return control_ && control_->Forma().ModoUsuario() ? S_OK : S_FALSE;
}

// IOleControlSite

HRESULT SitioCliente::OnControlInfoChanged() {
    Anotar("IOleControlSite::OnControlInfoChanged");
    if (control_)
        control_->LeerInfo();
    return S_OK;
}

HRESULT SitioCliente::LockInPlaceActive(BOOL trabar) {
    Anotar("IOleControlSite::LockInPlaceActive", trabar ? "si" : "no");
    return S_OK;
}

HRESULT SitioCliente::GetExtendedControl(IDispatch** extendido) {
    Anotar("IOleControlSite::GetExtendedControl");
    if (!extendido)
        return E_POINTER;
    *extendido = nullptr;
    if (!control_)
        return E_UNEXPECTED;
    if (!control_->Opciones().controlExtendido)
        return E_NOTIMPL;
    *extendido = control_->Extendido().Separar();
    return S_OK;
}

HRESULT SitioCliente::TransformCoords(POINTL* himetric, POINTF* contenedor, DWORD marcas) {
    Anotar("IOleControlSite::TransformCoords");
    if (!himetric || !contenedor)
        return E_POINTER;
    const int puntos = PuntosPorPulgada();
    if (marcas & XFORMCOORDS_HIMETRICTOCONTAINER) {
        contenedor->x = static_cast<float>(APixeles(himetric->x, puntos));
        contenedor->y = static_cast<float>(APixeles(himetric->y, puntos));
    } else if (marcas & XFORMCOORDS_CONTAINERTOHIMETRIC) {
        himetric->x = AHimetric(static_cast<LONG>(contenedor->x), puntos);
        himetric->y = AHimetric(static_cast<LONG>(contenedor->y), puntos);
    } else {
        return E_INVALIDARG;
    }
    return S_OK;
}

HRESULT SitioCliente::TranslateAccelerator(MSG* mensaje, DWORD modificadores) {
    Anotar("IOleControlSite::TranslateAccelerator");
    if (!mensaje)
        return E_POINTER;
    if (!control_)
        return S_FALSE;
    return control_->Forma().TratarTecla(*mensaje, modificadores) ? S_OK : S_FALSE;
}

HRESULT SitioCliente::OnFocus(BOOL tiene) {
    Anotar("IOleControlSite::OnFocus", tiene ? "si" : "no");
    if (control_)
        control_->TieneFoco(tiene);
    return S_OK;
}

HRESULT SitioCliente::ShowPropertyFrame() {
    Anotar("IOleControlSite::ShowPropertyFrame");
    if (!control_)
        return E_UNEXPECTED;
    return control_->Forma().PedirPropiedades(*control_) ? S_OK : E_NOTIMPL;
}

// IDispatch

HRESULT SitioCliente::GetTypeInfoCount(UINT* cuantas) {
    if (!cuantas)
        return E_POINTER;
    *cuantas = 0;
    return S_OK;
}

HRESULT SitioCliente::GetTypeInfo(UINT, LCID, ITypeInfo** tipo) {
    if (tipo)
        *tipo = nullptr;
    return DISP_E_BADINDEX;
}

HRESULT SitioCliente::GetIDsOfNames(REFIID, LPOLESTR* nombres, UINT cuantos, LCID,
                                    DISPID* numeros) {
    if (!nombres || !numeros || cuantos == 0)
        return E_POINTER;
    for (UINT i = 1; i < cuantos; ++i)
        numeros[i] = DISPID_UNKNOWN;
    numeros[0] = NumeroAmbiente(nombres[0]);
    return numeros[0] == DISPID_UNKNOWN || cuantos > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT SitioCliente::Invoke(DISPID numero, REFIID, LCID, WORD modo, DISPPARAMS*,
                             VARIANT* resultado, EXCEPINFO*, UINT*) {
    Anotar("IDispatch::Invoke", std::to_string(numero));
    if (!control_)
        return E_UNEXPECTED;
    if (!(modo & (DISPATCH_PROPERTYGET | DISPATCH_METHOD)))
        return DISP_E_MEMBERNOTFOUND;
    if (!resultado)
        return E_POINTER;
    return control_->Forma().Ambientes().Leer(
        numero, control_->Nombre(), control_->Forma().SeMuestraPorDefecto(*control_), *resultado);
}

// ISimpleFrameSite

HRESULT SitioCliente::PreMessageFilter(HWND, UINT mensaje, WPARAM w, LPARAM l, LRESULT* resultado,
                                       DWORD* cookie) {
    if (!resultado || !cookie)
        return E_POINTER;
    *cookie = 0;
    if (!control_)
        return E_UNEXPECTED;
    return control_->Forma().Filtrar(*control_, mensaje, w, l, *resultado) ? S_FALSE : S_OK;
}

HRESULT SitioCliente::PostMessageFilter(HWND ventana, UINT mensaje, WPARAM, LPARAM, LRESULT*,
                                        DWORD) {
    if (control_)
        control_->Forma().Filtrado(*control_, ventana, mensaje);
    return S_OK;
}

// IVBGetControl

HRESULT SitioCliente::EnumControls(DWORD, DWORD donde, IEnumUnknown** lista) {
    Anotar("IVBGetControl::EnumControls", std::to_string(donde));
    if (!lista)
        return E_POINTER;
    *lista = nullptr;
    if (!control_)
        return E_UNEXPECTED;
    if (donde != ControlesContenidos)
        return E_NOTIMPL;
    std::vector<Puntero<IUnknown>> objetos;
    for (const auto& control : control_->Forma().ControlesEn(control_))
        if (control->Objeto())
            objetos.emplace_back(control->Objeto());
    *lista = Enumerar(std::move(objetos)).Separar();
    return S_OK;
}

// IServiceProvider

HRESULT SitioCliente::QueryService(REFGUID, REFIID, void** servicio) {
    Anotar("IServiceProvider::QueryService");
    if (servicio)
        *servicio = nullptr;
    return E_NOINTERFACE;
}

} // namespace anfitrion
