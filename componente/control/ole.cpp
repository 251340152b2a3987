// IOleObject: the control as an embedded object.
#include "componente/control/enumeradores.h"
#include "componente/control/objeto_control.h"

#include <algorithm>
#include <cwchar>
#include <utility>

namespace pincela::componente {

namespace {

constexpr int HimetricPorPulgada = 2540;

/// As the platform rounds it; what is too long for the result is as long as the result can be.
LONG Escalar(LONG valor, int por, int entre) {
    const std::int64_t producto = std::int64_t{valor} * por;
    const std::int64_t medio = producto < 0 ? -entre / 2 : entre / 2;
    return static_cast<LONG>(
        std::clamp<std::int64_t>((producto + medio) / entre, -MAXLONG, MAXLONG));
}

LONG Sumar(LONG a, LONG b) {
    return static_cast<LONG>(
        std::clamp<std::int64_t>(std::int64_t{a} + b, std::int64_t{-MAXLONG} - 1, MAXLONG));
}

} // namespace

SIZE ObjetoControl::AHimetric(SIZE pixeles) const {
    const int ppp = entorno_.Ppp();
    return {Escalar(pixeles.cx, HimetricPorPulgada, ppp),
            Escalar(pixeles.cy, HimetricPorPulgada, ppp)};
}

SIZE ObjetoControl::APixeles(SIZE himetric) const {
    const int ppp = entorno_.Ppp();
    return {Escalar(himetric.cx, ppp, HimetricPorPulgada),
            Escalar(himetric.cy, ppp, HimetricPorPulgada)};
}

HRESULT ObjetoControl::SetClientSite(IOleClientSite* sitio) {
    return Guardar([&] {
        if (!sitio && activoEnSitio_)
            InPlaceDeactivate(); // some containers take the site away before they close
        // Asked first and taken over afterwards, all together: each question may come back here.
        const Ptr<IOleClientSite> nuevo(sitio);
        auto deControl = Ptr<IOleControlSite>::De(sitio);
        auto ambiente = Ptr<IDispatch>::De(sitio);
        auto marcoSimple = Datos().rasgosOle & OLEMISC_SIMPLEFRAME
                               ? Ptr<ISimpleFrameSite>::De(sitio)
                               : Ptr<ISimpleFrameSite>();
        sitio_ = nuevo;
        sitioDeControl_ = std::move(deControl);
        ambiente_ = std::move(ambiente);
        marcoSimple_ = std::move(marcoSimple);
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
            const HRESULT activado = Activar(true, padre, lugar);
            return FAILED(activado) ? activado : OLEOBJ_S_INVALIDVERB;
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
    return OleCreatePropertyFrame(padre, 0, 0, Datos().nombre, 1, &objeto,
                                  static_cast<ULONG>(Datos().paginas.size()),
                                  const_cast<GUID*>(Datos().paginas.data()), Idioma(), 0, nullptr);
}

HRESULT ObjetoControl::EnumVerbs(IEnumOLEVERB** verbos) {
    if (!verbos)
        return E_POINTER;
    *verbos = nullptr;
    if (Datos().paginas.empty())
        return OLEOBJ_E_NOVERBS;
    return Guardar([&] {
        static wchar_t propiedades[] = L"&Propiedades";
        *verbos = new Enumerador<IEnumOLEVERB, OLEVERB>(
            Identidad(), {{OLEIVERB_PROPERTIES, propiedades, 0, OLEVERBATTRIB_ONCONTAINERMENU}});
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
        if (!activoEnSitio_ || !entorno_.Ventana())
            entorno_.PonTamano(APixeles(extension_), vida_ == Vida::Viva);
        else if (enSitio_) {
            RECT lugar{};
            GetWindowRect(entorno_.Ventana(), &lugar);
            MapWindowPoints(HWND_DESKTOP, GetParent(entorno_.Ventana()),
                            reinterpret_cast<POINT*>(&lugar), 2);
            const SIZE pixeles = APixeles(extension_);
            lugar.right = Sumar(lugar.left, pixeles.cx);
            lugar.bottom = Sumar(lugar.top, pixeles.cy);
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
    if (!sumidero)
        return E_POINTER;
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

// A container that is told of a failure goes the long way, where each call gives a status of its
// own; one that got a half of what it asked for would wait for the other half for ever.
HRESULT ObjetoControl::QuickActivate(QACONTAINER* contenedor, QACONTROL* control) {
    if (!contenedor || !control)
        return E_POINTER;
    if (contenedor->cbSize < sizeof *contenedor || control->cbSize < sizeof *control)
        return E_INVALIDARG;
    return Guardar([&]() -> HRESULT {
        const ULONG tamanio = control->cbSize;
        *control = {};
        control->cbSize = tamanio;
        HRESULT estado = S_OK;
        if (contenedor->pPropertyNotifySink)
            estado = notificaciones_.Advise(contenedor->pPropertyNotifySink,
                                            &control->dwPropNotifyCookie);
        if (SUCCEEDED(estado) && contenedor->pUnkEventSink)
            estado = eventos_.Advise(contenedor->pUnkEventSink, &control->dwEventCookie);
        if (SUCCEEDED(estado) && contenedor->pAdviseSink)
            estado = SetAdvise(DVASPECT_CONTENT, 0, contenedor->pAdviseSink);
        if (SUCCEEDED(estado))
            estado = SetClientSite(contenedor->pClientSite);
        if (FAILED(estado)) {
            if (const DWORD galleta = std::exchange(control->dwPropNotifyCookie, 0))
                notificaciones_.Unadvise(galleta);
            if (const DWORD galleta = std::exchange(control->dwEventCookie, 0))
                eventos_.Unadvise(galleta);
            return estado;
        }
        const auto ambiente = [&](DWORD bandera, int& valor) {
            if (contenedor->dwAmbientFlags & bandera)
                valor = 1;
            else if (!ambiente_)
                valor = 0;
        };
        ambiente(QACONTAINER_USERMODE, modoUsuario_);
        ambiente(QACONTAINER_UIDEAD, interfazMuerta_);
        if (contenedor->lcid)
            idioma_ = static_cast<LCID>(contenedor->lcid);
        control->dwMiscStatus = Datos().rasgosOle;
        control->dwViewStatus = EsOpaca() ? VIEWSTATUS_OPAQUE : 0;
        // No IPointerInactive, no policy.
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
