#include "plataforma/windows/globos.h"

#include "plataforma/windows/modulo.h"

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
    wchar_t nada[] = L"";
    TTTOOLINFOW info = Herramienta(nucleo_.ventana);
    info.lpszText = nada;
    ::SendMessageW(ventana_.get(), TTM_ADDTOOLW, 0, ALParam(info));
    return true;
}

void Globos::PonTexto(Texto texto) {
    if (texto == texto_ && (texto.empty() || ventana_))
        return;
    if (texto.empty() ? !ventana_ : !Crear())
        return;
    texto_ = std::move(texto);
    TTTOOLINFOW info = Herramienta(nucleo_.ventana);
    info.lpszText = reinterpret_cast<wchar_t*>(texto_.data());
    ::SendMessageW(ventana_.get(), TTM_POP, 0, 0);
    ::SendMessageW(ventana_.get(), TTM_UPDATETIPTEXTW, 0, ALParam(info));
}

void Globos::Mensaje(UINT mensaje, WPARAM w, LPARAM l) {
    if (mensaje < WM_MOUSEFIRST || mensaje > WM_MBUTTONDBLCLK)
        return;
    PonTexto(nucleo_.escena.GloboEn(static_cast<float>(GET_X_LPARAM(l)),
                                    static_cast<float>(GET_Y_LPARAM(l))));
    if (!ventana_)
        return;
    TTTOOLINFOW info = Herramienta(nucleo_.ventana);
    ::GetClientRect(nucleo_.ventana, &info.rect);
    ::SendMessageW(ventana_.get(), TTM_NEWTOOLRECTW, 0, ALParam(info));
    MSG aviso{nucleo_.ventana, mensaje, w, l, static_cast<DWORD>(::GetMessageTime()), {}};
    ::GetCursorPos(&aviso.pt);
    ::SendMessageW(ventana_.get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&aviso));
}

void Globos::Soltar() {
    ventana_.Poner(nullptr);
    texto_.clear();
}

} // namespace pincela::windows
