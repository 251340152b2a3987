// The form's keyboard: who gets a key first, the tab order, mnemonics, Enter and Escape.
#include "anfitrion/formulario.h"

#include <algorithm>

namespace anfitrion {

static bool EsTecla(const MSG& m) {
    return m.message >= WM_KEYFIRST && m.message <= WM_KEYLAST;
}

static bool Abajo(int tecla) {
    return GetKeyState(tecla) < 0;
}

/// The keys of IOleControlSite::TranslateAccelerator: shift 1, control 2, alt 4.
static DWORD Modificadores() {
    return (Abajo(VK_SHIFT) ? 1u : 0u) | (Abajo(VK_CONTROL) ? 2u : 0u) | (Abajo(VK_MENU) ? 4u : 0u);
}

Puntero<IOleInPlaceActiveObject> Formulario::ObjetoActivo() const {
    if (marco_->Activo())
        return marco_->Activo();
    if (documento_->Activo())
        return documento_->Activo();
    // Controls of a site without a frame have nowhere to announce themselves.
    return activo_ ? activo_->Como<IOleInPlaceActiveObject>() : Puntero<IOleInPlaceActiveObject>();
}

bool Formulario::Pretraducir(const MSG& mensaje) {
    if (!EsTecla(mensaje))
        return false;
    if (const auto manejador = alTeclear) {
        const auto vivo = vivo_;
        if (manejador(mensaje) || !*vivo)
            return true;
    }
    if (!ModoUsuario())
        return false;
    MSG copia = mensaje;
    if (const auto objeto = ObjetoActivo()) {
        const auto vivo = vivo_;
        if (objeto->TranslateAccelerator(&copia) == S_OK || !*vivo)
            return true;
    }
    return TratarTecla(copia, Modificadores());
}

bool Formulario::TratarTecla(const MSG& mensaje, DWORD modificadores) {
    if (mensaje.message == WM_SYSKEYDOWN || mensaje.message == WM_SYSCHAR)
        return Mnemonico(mensaje);
    if (mensaje.message != WM_KEYDOWN)
        return false;
    constexpr DWORD mayusculas = 1;
    if ((modificadores & ~mayusculas) == 0) {
        switch (mensaje.wParam) {
        case VK_TAB:
            MoverFoco(modificadores & mayusculas);
            return true; // consumed even when nobody takes the focus
        case VK_RETURN:
            return Entrar(mensaje);
        case VK_ESCAPE:
            return Escapar(mensaje);
        case VK_LEFT:
        case VK_UP:
        case VK_RIGHT:
        case VK_DOWN:
            return Flecha(mensaje);
        default:
            break;
        }
    }
    return Mnemonico(mensaje);
}

std::vector<Formulario::Parada> Formulario::Paradas() const {
    std::vector<Parada> paradas = ventanas_;
    for (const auto& control : controles_)
        paradas.push_back({control, nullptr, control->orden});
    std::stable_sort(paradas.begin(), paradas.end(),
                     [](const Parada& a, const Parada& b) { return a.orden < b.orden; });
    return paradas;
}

std::size_t Formulario::ParadaActual(const std::vector<Parada>& paradas) const {
    const HWND foco = GetFocus();
    for (std::size_t i = 0; i < paradas.size(); ++i) {
        const Parada& p = paradas[i];
        if (p.control ? p.control == activo_ : p.ventana == foco && !activo_)
            return i;
    }
    // A control may hold the focus without being UI active.
    for (std::size_t i = 0; i < paradas.size(); ++i)
        if (const HWND v = paradas[i].control ? paradas[i].control->Ventana() : nullptr;
            v && foco && (v == foco || IsChild(v, foco)))
            return i;
    return paradas.size();
}

bool Formulario::Enfocar(const Parada& parada) {
    if (!parada.control) {
        if (!IsWindowVisible(parada.ventana) || !IsWindowEnabled(parada.ventana))
            return false;
        SetFocus(parada.ventana);
        return GetFocus() == parada.ventana;
    }
    if (!parada.control->AceptaFoco())
        return false;
    const HRESULT estado = parada.control->Verbo(OLEIVERB_UIACTIVATE);
    return SUCCEEDED(estado) && activo_ == parada.control;
}

bool Formulario::MoverFoco(bool atras) {
    const auto vivo = vivo_;
    const auto paradas = Paradas();
    const std::size_t n = paradas.size();
    const std::size_t actual = ParadaActual(paradas);
    // From nowhere, forward begins at the first stop and backward at the last.
    const std::size_t inicio = actual < n ? actual : atras ? 0 : n - 1;
    const std::size_t intentos = actual < n ? n - 1 : n;
    for (std::size_t k = 1; k <= intentos; ++k) {
        const std::size_t i = atras ? (inicio + n - k) % n : (inicio + k) % n;
        const bool tomado = Enfocar(paradas[i]);
        if (!*vivo || tomado)
            return true;
    }
    return false;
}

bool Formulario::Mnemonico(const MSG& mensaje) {
    const auto vivo = vivo_;
    const auto paradas = Paradas();
    const std::size_t n = paradas.size();
    const std::size_t actual = ParadaActual(paradas);
    MSG copia = mensaje;
    for (std::size_t k = 1; k <= n; ++k) {
        const std::size_t i = (std::min(actual, n - 1) + k) % n;
        const auto control = paradas[i].control;
        // Without a control site nobody told us of a changed caption.
        if (control && !control->Opciones().sitioControl)
            control->LeerInfo();
        WORD orden = 0;
        if (!control || !control->Visible() || !control->Info().hAccel ||
            !IsAccelerator(control->Info().hAccel, control->Info().cAccel, &copia, &orden))
            continue;
        const auto ole = control->Como<IOleControl>();
        if (!ole)
            continue;
        if (control->EsEtiqueta()) {
            // A label's mnemonic belongs to what follows it.
            for (std::size_t j = 1; j < n; ++j)
                if (Enfocar(paradas[(i + j) % n]) || !*vivo)
                    break;
        } else if (control->AceptaFoco()) {
            control->Verbo(OLEIVERB_UIACTIVATE);
        } else {
            continue; // disabled or hidden: somebody else may carry the same letter
        }
        if (*vivo)
            ole->OnMnemonic(&copia);
        return true;
    }
    return false;
}

bool Formulario::Pulsar(bool ControlAlojado::*papel, const MSG& mensaje) {
    for (const auto& control : std::vector(controles_)) {
        if (!(control.get()->*papel) || !control->AceptaFoco())
            continue;
        const auto ole = control->Como<IOleControl>();
        MSG copia = mensaje;
        return ole && SUCCEEDED(ole->OnMnemonic(&copia));
    }
    return false;
}

/// What the focused window does with keys of its own; 0 when it has none.
static LRESULT CodigoDialogo(const MSG& mensaje) {
    const HWND foco = GetFocus();
    MSG copia = mensaje;
    return foco
               ? SendMessageW(foco, WM_GETDLGCODE, mensaje.wParam, reinterpret_cast<LPARAM>(&copia))
               : 0;
}

bool Formulario::Entrar(const MSG& mensaje) {
    // The control with the focus may keep the key; a button is its own default button.
    if (activo_ && (activo_->ComeEntrar() || activo_->EsBoton()))
        return false;
    if (!activo_ && (CodigoDialogo(mensaje) & (DLGC_WANTALLKEYS | DLGC_BUTTON)))
        return false;
    return Pulsar(&ControlAlojado::porDefecto, mensaje);
}

bool Formulario::Escapar(const MSG& mensaje) {
    if (activo_ && activo_->ComeEscape())
        return false;
    return Pulsar(&ControlAlojado::cancela, mensaje);
}

bool Formulario::Flecha(const MSG& mensaje) {
    if (!activo_ || (CodigoDialogo(mensaje) & (DLGC_WANTARROWS | DLGC_WANTALLKEYS)))
        return false;
    MoverFoco(mensaje.wParam == VK_LEFT || mensaje.wParam == VK_UP);
    return true;
}

} // namespace anfitrion
