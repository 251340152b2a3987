// IOleObject: the control as an embedded object.
#include "componente/control/enumeradores.h"
#include "componente/control/objeto_control.h"

#include <cwchar>

namespace pincela::componente {

SIZE ObjetoControl::AHimetric(SIZE pixeles) const {
    const int ppp = entorno_.Ppp();
    return {MulDiv(pixeles.cx, 2540, ppp), MulDiv(pixeles.cy, 2540, ppp)};
}

SIZE ObjetoControl::APixeles(SIZE himetric) const {
    const int ppp = entorno_.Ppp();
    return {MulDiv(himetric.cx, ppp, 2540), MulDiv(himetric.cy, ppp, 2540)};
}

HRESULT ObjetoControl::SetClientSite(IOleClientSite* sitio) {
    return Guardar([&] {
        if (!sitio && activoEnSitio_)
            InPlaceDeactivate(); // some containers take the site away before they close
        sitioDeControl_.Soltar();
        ambiente_.Soltar();
        marcoSimple_.Soltar();
        sitio_ = Ptr<IOleClientSite>(sitio);
        sitioDeControl_ = Ptr<IOleControlSite>::De(sitio);
        ambiente_ = Ptr<IDispatch>::De(sitio);
        if (Datos().rasgosOle & OLEMISC_SIMPLEFRAME)
            marcoSimple_ = Ptr<ISimpleFrameSite>::De(sitio);
        OlvidarAmbiente();
        return S_OK;
    });
}

HRESULT ObjetoControl::GetClientSite(IOleClientSite** sitio) {
    if (!sitio)
        return E_POINTER;
    *sitio = Ptr<IOleClientSite>(sitio_).Ceder();
    return S_OK;
}

HRESULT ObjetoControl::SetHostNames(LPCOLESTR, LPCOLESTR) {
    return S_OK;
}

HRESULT ObjetoControl::Close(DWORD opcion) {
    return Guardar([&] {
        if (opcion != OLECLOSE_NOSAVE && sucio_ && sitio_)
            Ptr<IOleClientSite>(sitio_)->SaveObject();
        if (activoEnSitio_)
            InPlaceDeactivate();
        if (avisosOle_)
            Ptr<IOleAdviseHolder>(avisosOle_)->SendOnClose();
        return S_OK;
    });
}

HRESULT ObjetoControl::SetMoniker(DWORD, IMoniker*) {
    return E_NOTIMPL;
}

HRESULT ObjetoControl::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
    if (!moniker)
        return E_POINTER;
    *moniker = nullptr;
    return E_NOTIMPL;
}

HRESULT ObjetoControl::InitFromData(IDataObject*, BOOL, DWORD) {
    return E_NOTIMPL;
}

HRESULT ObjetoControl::GetClipboardData(DWORD, IDataObject** datos) {
    if (!datos)
        return E_POINTER;
    *datos = nullptr;
    return E_NOTIMPL;
}

HRESULT ObjetoControl::DoVerb(LONG verbo, MSG*, IOleClientSite*, LONG, HWND padre, LPCRECT lugar) {
    return Guardar([&]() -> HRESULT {
        switch (verbo) {
        case OLEIVERB_PRIMARY:
        case OLEIVERB_UIACTIVATE:
            return Activar(true, padre, lugar);
        case OLEIVERB_SHOW:
        case OLEIVERB_INPLACEACTIVATE:
        case OLEIVERB_OPEN:
            return Activar(false, padre, lugar);
        case OLEIVERB_HIDE:
            UIDeactivate();
            if (activoEnSitio_ && entorno_.Ventana())
                ShowWindow(entorno_.Ventana(), SW_HIDE);
            return S_OK;
        case OLEIVERB_DISCARDUNDOSTATE:
            return S_OK;
        case OLEIVERB_PROPERTIES:
            return MostrarPaginas(padre);
        default:
            if (verbo < 0)
                return E_NOTIMPL;
            Activar(true, padre, lugar);
            return OLEOBJ_S_INVALIDVERB;
        }
    });
}

HRESULT ObjetoControl::MostrarPaginas(HWND padre) {
    if (sitioDeControl_) {
        const HRESULT estado = Ptr<IOleControlSite>(sitioDeControl_)->ShowPropertyFrame();
        if (SUCCEEDED(estado))
            return S_OK;
    }
    if (Datos().paginas.empty())
        return OLEOBJ_S_CANNOT_DOVERB_NOW;
    IUnknown* objeto = interfaz_.Com();
    const windows::AritmeticaAjena ajena;
    return OleCreatePropertyFrame(
        padre, 0, 0, Datos().nombre, 1, &objeto, static_cast<ULONG>(Datos().paginas.size()),
        const_cast<GUID*>(Datos().paginas.data()), LOCALE_USER_DEFAULT, 0, nullptr);
}

HRESULT ObjetoControl::EnumVerbs(IEnumOLEVERB** verbos) {
    if (!verbos)
        return E_POINTER;
    *verbos = nullptr;
    return Guardar([&] {
        static wchar_t propiedades[] = L"&Propiedades";
        std::vector<OLEVERB> lista;
        if (!Datos().paginas.empty())
            lista.push_back({OLEIVERB_PROPERTIES, propiedades, 0, OLEVERBATTRIB_ONCONTAINERMENU});
        *verbos = new Enumerador<IEnumOLEVERB, OLEVERB>(Identidad(), std::move(lista));
        return S_OK;
    });
}

HRESULT ObjetoControl::Update() {
    return S_OK;
}
HRESULT ObjetoControl::IsUpToDate() {
    return S_OK;
}

HRESULT ObjetoControl::GetUserClassID(CLSID* clase) {
    return GetClassID(clase);
}

HRESULT ObjetoControl::GetUserType(DWORD, LPOLESTR* tipo) {
    if (!tipo)
        return E_POINTER;
    *tipo = DuplicarTexto(Datos().nombre);
    return *tipo ? S_OK : E_OUTOFMEMORY;
}

HRESULT ObjetoControl::SetExtent(DWORD aspecto, SIZEL* tamanio) {
    if (!tamanio)
        return E_POINTER;
    if (aspecto != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    if (tamanio->cx < 0 || tamanio->cy < 0)
        return E_INVALIDARG;
    return Guardar([&] {
        if (extension_.cx == tamanio->cx && extension_.cy == tamanio->cy)
            return S_OK;
        extension_ = *tamanio;
        sucio_ = sucio_ || vida_ == Vida::Viva;
        // A control in place keeps the rectangle its container gave it until it gives another.
        if (!activoEnSitio_)
            entorno_.PonTamano(APixeles(extension_), vida_ == Vida::Viva);
        else if (enSitio_) {
            RECT lugar{};
            GetWindowRect(entorno_.Ventana(), &lugar);
            MapWindowPoints(HWND_DESKTOP, GetParent(entorno_.Ventana()),
                            reinterpret_cast<POINT*>(&lugar), 2);
            const SIZE pixeles = APixeles(extension_);
            lugar.right = lugar.left + pixeles.cx;
            lugar.bottom = lugar.top + pixeles.cy;
            Ptr<IOleInPlaceSite>(enSitio_)->OnPosRectChange(&lugar);
        }
        AvisarVista();
        return S_OK;
    });
}

HRESULT ObjetoControl::GetExtent(DWORD aspecto, SIZEL* tamanio) {
    if (!tamanio)
        return E_POINTER;
    *tamanio = {};
    if (aspecto != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    *tamanio = extension_;
    return S_OK;
}

HRESULT ObjetoControl::Advise(IAdviseSink* sumidero, DWORD* galleta) {
    if (!galleta)
        return E_POINTER;
    *galleta = 0;
    if (!avisosOle_) {
        const HRESULT estado = CreateOleAdviseHolder(avisosOle_.Recibir());
        if (FAILED(estado))
            return estado;
    }
    return avisosOle_->Advise(sumidero, galleta);
}

HRESULT ObjetoControl::Unadvise(DWORD galleta) {
    return avisosOle_ ? avisosOle_->Unadvise(galleta) : OLE_E_NOCONNECTION;
}

HRESULT ObjetoControl::EnumAdvise(IEnumSTATDATA** lista) {
    if (!lista)
        return E_POINTER;
    *lista = nullptr;
    return avisosOle_ ? avisosOle_->EnumAdvise(lista) : S_OK;
}

HRESULT ObjetoControl::GetMiscStatus(DWORD aspecto, DWORD* rasgos) {
    if (!rasgos)
        return E_POINTER;
    *rasgos = 0;
    if (aspecto != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    *rasgos = Datos().rasgosOle;
    return S_OK;
}

HRESULT ObjetoControl::SetColorScheme(LOGPALETTE*) {
    return E_NOTIMPL;
}

HRESULT ObjetoControl::QuickActivate(QACONTAINER* contenedor, QACONTROL* control) {
    if (!contenedor || !control)
        return E_POINTER;
    return Guardar([&] {
        const ULONG tamanio = control->cbSize;
        *control = {};
        control->cbSize = tamanio;
        SetClientSite(contenedor->pClientSite);
        if (contenedor->pAdviseSink)
            SetAdvise(DVASPECT_CONTENT, 0, contenedor->pAdviseSink);
        if (contenedor->pPropertyNotifySink)
            notificaciones_.Advise(contenedor->pPropertyNotifySink, &control->dwPropNotifyCookie);
        if (contenedor->pUnkEventSink)
            eventos_.Advise(contenedor->pUnkEventSink, &control->dwEventCookie);
        if (contenedor->dwAmbientFlags & (QACONTAINER_USERMODE))
            modoUsuario_ = 1;
        else if (!ambiente_)
            modoUsuario_ = 0;
        control->dwMiscStatus = Datos().rasgosOle;
        control->dwViewStatus = VIEWSTATUS_OPAQUE;
        control->dwPointerActivationPolicy = POINTERINACTIVE_ACTIVATEONENTRY;
        return S_OK;
    });
}

HRESULT ObjetoControl::SetContentExtent(SIZEL* tamanio) {
    return SetExtent(DVASPECT_CONTENT, tamanio);
}

HRESULT ObjetoControl::GetContentExtent(SIZEL* tamanio) {
    return GetExtent(DVASPECT_CONTENT, tamanio);
}

} // namespace pincela::componente
