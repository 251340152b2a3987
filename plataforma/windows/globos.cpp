#include "plataforma/windows/globos.h"

#include "plataforma/windows/modulo.h"
#include "plataforma/windows/velo.h"

#include <commctrl.h>
#include <windowsx.h>

namespace pincela::windows {

namespace {

constexpr int AnchoMaximo = 400; // pixels; longer texts wrap

// The first version of the record is the one every version of the tips accepts.
TTTOOLINFOW Herramienta(HWND ventana) {
    TTTOOLINFOW info{};
    info.cbSize = TTTOOLINFOW_V1_SIZE;
    info.hwnd = ventana;
    info.uId = 1;
    return info;
}

LPARAM ALParam(TTTOOLINFOW& info) {
    return reinterpret_cast<LPARAM>(&info);
}

} // namespace

bool Globos::Crear() {
    if (ventana_)
        return true;
    const INITCOMMONCONTROLSEX controles{sizeof controles, ICC_TAB_CLASSES};
    ::InitCommonControlsEx(&controles);
    ventana_.Poner(::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                     WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
                                     CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nucleo_.ventana,
                                     nullptr, ModuloPropio(), nullptr));
    if (!ventana_)
        return false;
    ::SendMessageW(ventana_.get(), TTM_SETMAXTIPWIDTH, 0, AnchoMaximo);
    Anadir(nucleo_.ventana);
    return true;
}

void Globos::Anadir(HWND herramienta) {
    TTTOOLINFOW info = Herramienta(herramienta);
    info.lpszText = reinterpret_cast<wchar_t*>(texto_.data());
    ::SendMessageW(ventana_.get(), TTM_ADDTOOLW, 0, ALParam(info));
}

void Globos::PedirTexto(HWND herramienta) {
    TTTOOLINFOW info = Herramienta(herramienta);
    info.lpszText = reinterpret_cast<wchar_t*>(texto_.data());
    ::SendMessageW(ventana_.get(), TTM_UPDATETIPTEXTW, 0, ALParam(info));
}

void Globos::PonTexto(Texto texto) {
    if (texto == texto_ && (texto.empty() || ventana_))
        return;
    if (texto.empty() ? !ventana_ : !Crear())
        return;
    texto_ = std::move(texto);
    ::SendMessageW(ventana_.get(), TTM_POP, 0, 0);
    PedirTexto(nucleo_.ventana);
    if (velo_)
        PedirTexto(velo_);
}

void Globos::Mensaje(UINT mensaje, WPARAM w, LPARAM l) {
    if (mensaje < WM_MOUSEFIRST || mensaje > WM_MBUTTONDBLCLK)
        return;
    PonTexto(nucleo_.escena.GloboEn(static_cast<float>(GET_X_LPARAM(l)),
                                    static_cast<float>(GET_Y_LPARAM(l))));
    if (!ventana_)
        return;
    // The tips look for the tool of the very window that the mouse is over.
    const HWND desde = Velo::BajoElRaton(nucleo_.ventana);
    if (desde != nucleo_.ventana && desde != velo_)
        Anadir(velo_ = desde);
    TTTOOLINFOW info = Herramienta(desde);
    ::GetWindowRect(nucleo_.ventana, &info.rect);
    ::MapWindowPoints(HWND_DESKTOP, desde, reinterpret_cast<POINT*>(&info.rect), 2);
    ::SendMessageW(ventana_.get(), TTM_NEWTOOLRECTW, 0, ALParam(info));
    POINT punto{GET_X_LPARAM(l), GET_Y_LPARAM(l)};
    ::MapWindowPoints(nucleo_.ventana, desde, &punto, 1);
    l = MAKELPARAM(punto.x, punto.y);
    MSG aviso{desde, mensaje, w, l, static_cast<DWORD>(::GetMessageTime()), {}};
    ::GetCursorPos(&aviso.pt);
    ::SendMessageW(ventana_.get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&aviso));
}

void Globos::Soltar() {
    ventana_.Poner(nullptr);
    velo_ = nullptr;
    texto_.clear();
}

} // namespace pincela::windows
