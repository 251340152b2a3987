// In-place activation: the control in a window of its container.
#include "componente/control/objeto_control.h"

#include <algorithm>

namespace pincela::componente {

namespace {

/// A container that does not implement a call leaves what it is about to the control; any other
/// failure is its refusal.
bool Rehusa(HRESULT estado) {
    return FAILED(estado) && estado != E_NOTIMPL;
}

bool EsNada(const RECT& r) {
    return r.left == 0 && r.top == 0 && r.right == 0 && r.bottom == 0;
}

/// Sizes of a rectangle of any container, inverted and endless ones included.
SIZE MedidaDe(const RECT& r) {
    const auto lado = [](std::int64_t desde, std::int64_t hasta) {
        return static_cast<LONG>(std::clamp<std::int64_t>(hasta - desde, 0, MAXLONG));
    };
    return {lado(r.left, r.right), lado(r.top, r.bottom)};
}

/// The extent of a window that was given `pedida` and is `ventana` pixels large: the platform makes
/// no side longer than a certain length, and a size that no screen has is kept all the same.
SIZE MedidaPedida(SIZE ventana, SIZE pedida) {
    const auto lado = [](LONG tiene, LONG pide) {
        return tiene < windows::LadoMaximoDeVentana ? tiene : std::max(tiene, pide);
    };
    return {lado(ventana.cx, pedida.cx), lado(ventana.cy, pedida.cy)};
}

/// Stays where a site leaves its clip rectangle unwritten: an empty one hides the control.
constexpr RECT SinRecorte{LONG_MIN, LONG_MIN, LONG_MAX, LONG_MAX};

} // namespace

HRESULT ObjetoControl::Activar(bool conFoco, HWND padre, const RECT* lugar) {
    Preparar();
    if (!activoEnSitio_) {
        const HRESULT entrada = EntrarEnSitio(padre, lugar);
        if (FAILED(entrada))
            return entrada;
    } else if (entorno_.Ventana() && !IsWindowVisible(entorno_.Ventana())) {
        ShowWindow(entorno_.Ventana(), SW_SHOWNA);
        NucleoSeguro([](ControlUsuario& nucleo) { nucleo.Show(); });
    }
    // A failing status would be fatal for some containers; the others see who is active.
    return conFoco && activoEnSitio_ && nucleo_->AceptaFoco() ? ActivarInterfaz() : S_OK;
}

HRESULT ObjetoControl::EntrarEnSitio(HWND padre, const RECT* lugar) {
    const Ptr<IOleInPlaceSite> sitio = saliendo_ ? nullptr : Ptr<IOleInPlaceSite>::De(sitio_.get());
    if (!sitio)
        return OLE_E_NOT_INPLACEACTIVE;
    const HRESULT puede = sitio->CanInPlaceActivate();
    if (puede == S_FALSE)
        return OLE_E_NOT_INPLACEACTIVE;
    if (Rehusa(puede))
        return puede;
    if (activoEnSitio_) // activated from inside the question
        return S_OK;
    if (!sitio_ || saliendo_)
        return E_UNEXPECTED;
    // From here on whoever closes the control from inside a call finds something to close.
    enSitio_ = sitio;
    activoEnSitio_ = true;
    const HRESULT admitido = sitio->OnInPlaceActivate();
    if (!activoEnSitio_)
        return E_UNEXPECTED;
    if (Rehusa(admitido)) { // it never was in place, so it doesn't leave it either
        activoEnSitio_ = false;
        enSitio_.Soltar();
        return admitido;
    }
    const HRESULT hecha = entorno_.Ventana() ? S_OK : HacerVentana(sitio, padre, lugar);
    if (FAILED(hecha)) {
        OlvidarSitioEnSitio();
        return hecha;
    }
    NucleoSeguro([](ControlUsuario& nucleo) { nucleo.Resize(); });
    if (activoEnSitio_)
        NucleoSeguro([](ControlUsuario& nucleo) { nucleo.Show(); });
    if (activoEnSitio_ && sitio_)
        Ptr<IOleClientSite>(sitio_)->ShowObject();
    return S_OK;
}

HRESULT ObjetoControl::HacerVentana(const Ptr<IOleInPlaceSite>& sitio, HWND padre,
                                    const RECT* lugar) {
    HWND ventanaPadre = nullptr;
    const HRESULT conVentana = sitio->GetWindow(&ventanaPadre);
    if (Rehusa(conVentana))
        return conVentana;
    if (FAILED(conVentana) || !ventanaPadre)
        ventanaPadre = padre;
    Ptr<IOleInPlaceFrame> marco;
    Ptr<IOleInPlaceUIWindow> documento;
    RECT pedida{}, recorte = SinRecorte;
    OLEINPLACEFRAMEINFO info{};
    info.cb = sizeof info;
    const HRESULT conContexto =
        sitio->GetWindowContext(marco.Recibir(), documento.Recibir(), &pedida, &recorte, &info);
    if (FAILED(conContexto)) { // what a failed call leaves behind belongs to nobody
        marco.Ceder();
        documento.Ceder();
    }
    if (Rehusa(conContexto))
        return conContexto;
    // A container that says that all went well and gives no place means the one of the verb.
    if (FAILED(conContexto) || EsNada(pedida)) {
        recorte = SinRecorte;
        if (lugar)
            pedida = *lugar;
    }
    if (!activoEnSitio_) // closed from inside one of those calls
        return E_UNEXPECTED;
    if (entorno_.Ventana()) // or activated once more
        return S_OK;
    marco_ = std::move(marco);
    documento_ = std::move(documento);
    PonPppDe(ventanaPadre);
    try {
        if (!entorno_.CrearVentana(ventanaPadre, pedida, &recorte))
            return activoEnSitio_ ? E_FAIL : E_UNEXPECTED;
    } catch (...) {
        saliendo_ = true;
        entorno_.DestruirVentana();
        saliendo_ = false;
        OlvidarSitioEnSitio();
        throw;
    }
    extension_ = AHimetric(MedidaPedida(entorno_.Tamano(), MedidaDe(pedida)));
    return S_OK;
}

// A container that refuses is obeyed: no focus is taken, nothing of its frame is claimed. Where the
// platform itself gives the focus to the window it stays there, for whoever gave it wanted that;
// the container hears of it and is asked again at the next occasion.
HRESULT ObjetoControl::ActivarInterfaz() {
    if (activaLaInterfaz_)
        return S_OK;
    if (!activoEnSitio_)
        return OLE_E_NOT_INPLACEACTIVE;
    activaLaInterfaz_ = true;
    const HRESULT admitida = enSitio_ ? Ptr<IOleInPlaceSite>(enSitio_)->OnUIActivate() : S_OK;
    if (!activaLaInterfaz_)
        return S_OK;
    if (Rehusa(admitida)) {
        activaLaInterfaz_ = false;
        return admitida;
    }
    AvisarVentanasDelMarco(this);
    if (marco_)
        Ptr<IOleInPlaceFrame>(marco_)->SetBorderSpace(nullptr);
    if (documento_)
        Ptr<IOleInPlaceUIWindow>(documento_)->SetBorderSpace(nullptr);
    if (activaLaInterfaz_ && !entorno_.TieneFoco() && !EntradaCongelada())
        SetFocus(entorno_.VentanaDeFoco());
    return S_OK;
}

void ObjetoControl::AvisarVentanasDelMarco(IOleInPlaceActiveObject* activo) {
    const wchar_t* nombre = activo ? Datos().nombre : nullptr;
    if (marco_)
        Ptr<IOleInPlaceFrame>(marco_)->SetActiveObject(activo, nombre);
    if (documento_)
        Ptr<IOleInPlaceUIWindow>(documento_)->SetActiveObject(activo, nombre);
}

HRESULT ObjetoControl::UIDeactivate() {
    return Guardar([&] {
        if (!activaLaInterfaz_)
            return S_OK;
        activaLaInterfaz_ = false;
        AvisarVentanasDelMarco(nullptr);
        if (enSitio_)
            Ptr<IOleInPlaceSite>(enSitio_)->OnUIDeactivate(FALSE);
        return S_OK;
    });
}

HRESULT ObjetoControl::InPlaceDeactivate() {
    return Guardar([&] {
        if (!activoEnSitio_)
            return S_OK;
        UIDeactivate();
        if (!activoEnSitio_) // closed again from inside
            return S_OK;
        activoEnSitio_ = false;
        // With the window goes the focus, and a form that looks for somebody to take it may offer
        // it to this control: not before the container knows that it has left.
        saliendo_ = true;
        entorno_.DestruirVentana();
        saliendo_ = false;
        OlvidarSitioEnSitio();
        return S_OK;
    });
}

void ObjetoControl::OlvidarSitioEnSitio() {
    activoEnSitio_ = false;
    conFoco_ = false;
    for (auto* propio : {&accesible_, &accesibleDeCampo_})
        if (const Ptr<ObjetoAccesible> accesible = std::move(*propio))
            accesible->Desconectar();
    marco_.Soltar();
    documento_.Soltar();
    if (const Ptr<IOleInPlaceSite> sitio = std::move(enSitio_))
        sitio->OnInPlaceDeactivate();
}

HRESULT ObjetoControl::GetWindow(HWND* ventana) {
    if (!ventana)
        return E_POINTER;
    *ventana = activoEnSitio_ ? entorno_.Ventana() : nullptr;
    return *ventana ? S_OK : E_FAIL;
}

HRESULT ObjetoControl::ContextSensitiveHelp(BOOL) {
    return S_OK;
}

HRESULT ObjetoControl::SetObjectRects(LPCRECT lugar, LPCRECT recorte) {
    if (!lugar)
        return E_POINTER;
    return Guardar([&] {
        Mover(*lugar, recorte);
        return S_OK;
    });
}

void ObjetoControl::Mover(const RECT& lugar, const RECT* recorte) {
    if (!activoEnSitio_)
        return;
    const SIZE antes = entorno_.Tamano();
    entorno_.MoverVentana(lugar, recorte);
    const SIZE ahora = entorno_.Tamano();
    const SIZE pedida = MedidaPedida(ahora, MedidaDe(lugar));
    if (antes.cx != ahora.cx || antes.cy != ahora.cy || pedida.cx != ahora.cx ||
        pedida.cy != ahora.cy)
        extension_ = AHimetric(pedida);
}

HRESULT ObjetoControl::ReactivateAndUndo() {
    return INPLACE_E_NOTUNDOABLE;
}

namespace {

/// Keys with which a text is edited: containers have accelerators of the same names, which are not
/// meant for a field that has the focus.
bool EsDelCampo(const MSG& mensaje, bool comeEnter) {
    if (mensaje.message != WM_KEYDOWN || GetKeyState(VK_MENU) < 0)
        return false;
    const bool control = GetKeyState(VK_CONTROL) < 0;
    switch (mensaje.wParam) {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
    case VK_HOME:
    case VK_END:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_BACK:
    case VK_DELETE:
    case VK_INSERT:
        return true;
    case VK_RETURN:
        return comeEnter;
    case VK_TAB:
    case 'A':
    case 'C':
    case 'V':
    case 'X':
    case 'Z':
        return control;
    default:
        return false;
    }
}

} // namespace

HRESULT ObjetoControl::TranslateAccelerator(MSG* mensaje) {
    if (!mensaje)
        return E_POINTER;
    return Guardar([&]() -> HRESULT {
        if (entorno_.EsCampo(mensaje->hwnd) && !EntradaCongelada() &&
            EsDelCampo(*mensaje, nucleo_->ComeEnter())) {
            TranslateMessage(mensaje);
            DispatchMessageW(mensaje);
            return S_OK;
        }
        // The control keeps nothing else for itself: the container is asked first, what it does
        // not want reaches the window as it always does.
        if (!sitioDeControl_)
            return S_FALSE;
        DWORD modificadores = 0;
        if (GetKeyState(VK_SHIFT) < 0)
            modificadores |= 1;
        if (GetKeyState(VK_CONTROL) < 0)
            modificadores |= 2;
        if (GetKeyState(VK_MENU) < 0)
            modificadores |= 4;
        const HRESULT tomada =
            Ptr<IOleControlSite>(sitioDeControl_)->TranslateAccelerator(mensaje, modificadores);
        // Some sites answer that they don't implement it: that is no failure of the control.
        return tomada == S_OK ? S_OK : S_FALSE;
    });
}

HRESULT ObjetoControl::OnFrameWindowActivate(BOOL) {
    return S_OK;
}
HRESULT ObjetoControl::OnDocWindowActivate(BOOL) {
    return S_OK;
}
HRESULT ObjetoControl::ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) {
    return S_OK;
}
HRESULT ObjetoControl::EnableModeless(BOOL) {
    return S_OK;
}

void ObjetoControl::PedirFoco() {
    if (!activoEnSitio_ || EntradaCongelada() || !nucleo_->AceptaFoco())
        return;
    ActivarInterfaz();
    if (activoEnSitio_ && activaLaInterfaz_ && !entorno_.TieneFoco())
        SetFocus(entorno_.VentanaDeFoco());
}

void ObjetoControl::FocoCambiado(bool dentro) {
    if (conFoco_ == dentro || cerrando_)
        return;
    conFoco_ = dentro;
    AccesibleCambiado();
    detalle::Sosten sosten(Identidad());
    if (dentro)
        ActivarInterfaz();
    if (sitioDeControl_)
        Ptr<IOleControlSite>(sitioDeControl_)->OnFocus(dentro ? TRUE : FALSE);
}

bool ObjetoControl::EntradaCongelada() {
    return !UserMode() || InterfazMuerta();
}

} // namespace pincela::componente
