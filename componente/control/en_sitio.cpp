// In-place activation: the control in a window of its container.
#include "componente/control/objeto_control.h"

namespace pincela::componente {

namespace {

/// Stays where a site leaves its clip rectangle unwritten: an empty one hides the control.
constexpr RECT SinRecorte{LONG_MIN, LONG_MIN, LONG_MAX, LONG_MAX};

} // namespace

HRESULT ObjetoControl::Activar(bool conFoco, HWND padre, const RECT* lugar) {
    Preparar();
    if (!activoEnSitio_) {
        if (!sitio_ || saliendo_)
            return OLE_E_NOT_INPLACEACTIVE;
        Ptr<IOleInPlaceSite> sitio = Ptr<IOleInPlaceSite>::De(sitio_.get());
        if (!sitio || sitio->CanInPlaceActivate() == S_FALSE)
            return OLE_E_NOT_INPLACEACTIVE;
        enSitio_ = sitio;
        sitio->OnInPlaceActivate();
        activoEnSitio_ = true;

        HWND ventanaPadre = nullptr;
        if (FAILED(sitio->GetWindow(&ventanaPadre)) || !ventanaPadre)
            ventanaPadre = padre;
        RECT posicion = lugar ? *lugar : RECT{};
        RECT recorte = SinRecorte;
        OLEINPLACEFRAMEINFO info{};
        info.cb = sizeof info;
        RECT pedida{};
        if (SUCCEEDED(sitio->GetWindowContext(marco_.Recibir(), documento_.Recibir(), &pedida,
                                              &recorte, &info)))
            posicion = pedida;
        else
            recorte = SinRecorte;
        if (!activoEnSitio_) // closed from inside one of those calls
            return E_UNEXPECTED;
        PonPppDe(ventanaPadre);
        HWND ventana = nullptr;
        try {
            ventana = entorno_.CrearVentana(ventanaPadre, posicion, &recorte);
        } catch (...) {
            saliendo_ = true;
            entorno_.DestruirVentana();
            saliendo_ = false;
            OlvidarSitioEnSitio();
            throw;
        }
        if (!ventana) {
            OlvidarSitioEnSitio();
            return E_FAIL;
        }
        extension_ = AHimetric(entorno_.Tamano());
        NucleoSeguro([](ControlUsuario& nucleo) { nucleo.Resize(); });
        if (activoEnSitio_)
            NucleoSeguro([](ControlUsuario& nucleo) { nucleo.Show(); });
        if (activoEnSitio_ && sitio_)
            Ptr<IOleClientSite>(sitio_)->ShowObject();
    } else if (entorno_.Ventana() && !IsWindowVisible(entorno_.Ventana())) {
        ShowWindow(entorno_.Ventana(), SW_SHOWNA);
        NucleoSeguro([](ControlUsuario& nucleo) { nucleo.Show(); });
    }
    // A failing status would be fatal for some containers; the others see who is active.
    return conFoco && activoEnSitio_ && nucleo_->AceptaFoco() ? ActivarInterfaz() : S_OK;
}

HRESULT ObjetoControl::ActivarInterfaz() {
    if (activaLaInterfaz_)
        return S_OK;
    if (!activoEnSitio_)
        return OLE_E_NOT_INPLACEACTIVE;
    activaLaInterfaz_ = true;
    if (enSitio_)
        Ptr<IOleInPlaceSite>(enSitio_)->OnUIActivate();
    if (!activaLaInterfaz_)
        return S_OK;
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
    if (antes.cx != ahora.cx || antes.cy != ahora.cy)
        extension_ = AHimetric(ahora);
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
    if (activoEnSitio_ && !entorno_.TieneFoco())
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
    return !UserMode();
}

} // namespace pincela::componente
