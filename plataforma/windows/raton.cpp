#include "plataforma/windows/raton.h"

#include <windowsx.h>

namespace pincela::windows {

namespace {

constexpr std::int16_t Izquierdo = 1, Derecho = 2, Medio = 4;

} // namespace

std::int16_t BotonDeMensaje(UINT mensaje) {
    switch (mensaje) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONUP:
        return Izquierdo;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
    case WM_RBUTTONUP:
        return Derecho;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
    case WM_MBUTTONUP:
        return Medio;
    default:
        return 0;
    }
}

std::int16_t BotonesAbajo(WPARAM w) {
    return static_cast<std::int16_t>((w & MK_LBUTTON ? Izquierdo : 0) |
                                     (w & MK_RBUTTON ? Derecho : 0) | (w & MK_MBUTTON ? Medio : 0));
}

std::int16_t ShiftDeRaton(WPARAM w) {
    return static_cast<std::int16_t>((w & MK_SHIFT ? 1 : 0) | (w & MK_CONTROL ? 2 : 0) |
                                     (::GetKeyState(VK_MENU) < 0 ? 4 : 0));
}

std::int16_t ShiftActual() {
    return static_cast<std::int16_t>((::GetKeyState(VK_SHIFT) < 0 ? 1 : 0) |
                                     (::GetKeyState(VK_CONTROL) < 0 ? 2 : 0) |
                                     (::GetKeyState(VK_MENU) < 0 ? 4 : 0));
}

bool Raton::Mensaje(UINT mensaje, WPARAM w, LPARAM l) {
    Golpe golpe{Paso::Mueve, BotonDeMensaje(mensaje), ShiftDeRaton(w),
                static_cast<float>(GET_X_LPARAM(l)), static_cast<float>(GET_Y_LPARAM(l))};
    switch (mensaje) {
    case WM_MOUSEMOVE:
        golpe.boton = BotonesAbajo(w);
        Mover(golpe);
        return true;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_LBUTTONDBLCLK: // the second press of a double click is a press like any other
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDBLCLK:
        golpe.paso = Paso::Baja;
        Bajar(golpe);
        return true;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
        golpe.paso = Paso::Sube;
        Subir(golpe, BotonesAbajo(w) != 0);
        // The right button goes on to the platform, which makes a context menu request of it.
        return mensaje != WM_RBUTTONUP;
    default:
        return false;
    }
}

void Raton::CapturaPerdida() {
    capturando_ = izquierdoAbajo_ = false;
    capturado_ = nullptr;
    alPulsar_.clear();
}

ElementoVisual* Raton::Vivo(ElementoVisual* elemento) const {
    return nucleo_.escena.Contiene(elemento) ? elemento : nullptr;
}

ElementoVisual* Raton::Bajo(float x, float y) const {
    return EnPunto(nucleo_.escena.Blancos(), x, y);
}

OyenteRaton* Raton::OyenteDe(ElementoVisual* elemento) const {
    if (OyenteRaton* oyente = elemento ? elemento->Raton() : nullptr)
        return oyente;
    return nucleo_.control;
}

bool Raton::Decir(ElementoVisual* elemento, const Golpe& golpe) {
    // A label disabled since it was pressed lets the rest of the press through to the surface.
    if (elemento && !elemento->Raton())
        elemento = nullptr;
    const Zona lugar = elemento ? elemento->Lugar() : Zona{};
    const float x = golpe.x - lugar.izquierda, y = golpe.y - lugar.arriba;
    return nucleo_.Notificar([&](ControlUsuario&) {
        OyenteRaton* oyente = OyenteDe(elemento);
        switch (golpe.paso) {
        case Paso::Baja:
            return oyente->MouseDown(golpe.boton, golpe.shift, x, y);
        case Paso::Mueve:
            return oyente->MouseMove(golpe.boton, golpe.shift, x, y);
        case Paso::Sube:
            return oyente->MouseUp(golpe.boton, golpe.shift, x, y);
        }
    });
}

bool Raton::DecirClick(ElementoVisual* elemento) {
    return nucleo_.Notificar([&](ControlUsuario&) { OyenteDe(elemento)->Click(); });
}

void Raton::Bajar(const Golpe& golpe) {
    if (!capturando_) {
        alPulsar_ = nucleo_.escena.Blancos();
        capturado_ = EnPunto(alPulsar_, golpe.x, golpe.y);
        ::SetCapture(nucleo_.ventana);
        capturando_ = true;
    }
    if (golpe.boton == Izquierdo) {
        izquierdoAbajo_ = true;
        const auto testigo = nucleo_.Testigo();
        // Even with the focus: the site may have deactivated the control meanwhile.
        Proteger(nucleo_.sitio, [this] { nucleo_.sitio.PedirFoco(); });
        if (testigo.expired())
            return;
    }
    Decir(Vivo(capturado_), golpe);
}

void Raton::Mover(const Golpe& golpe) {
    Decir(capturando_ ? Vivo(capturado_) : Bajo(golpe.x, golpe.y), golpe);
}

void Raton::Subir(const Golpe& golpe, bool quedanBotones) {
    ElementoVisual* elemento = capturando_ ? capturado_ : Bajo(golpe.x, golpe.y);
    bool click = false;
    if (golpe.boton == Izquierdo && izquierdoAbajo_) {
        izquierdoAbajo_ = false;
        RECT cliente{};
        ::GetClientRect(nucleo_.ventana, &cliente);
        const POINT punto{static_cast<LONG>(golpe.x), static_cast<LONG>(golpe.y)};
        click = ::PtInRect(&cliente, punto) && (EnPunto(alPulsar_, golpe.x, golpe.y) == elemento ||
                                                Bajo(golpe.x, golpe.y) == elemento);
    }
    if (capturando_ && !quedanBotones) {
        CapturaPerdida();
        ::ReleaseCapture();
    }
    const bool deElemento = elemento != nullptr;
    if (!Decir(Vivo(elemento), golpe) || !click)
        return;
    // An element that died in its own notification has nobody left to click.
    if (!deElemento || Vivo(elemento))
        DecirClick(elemento);
}

} // namespace pincela::windows
