// The way to the next control of the form.
#include "componente/control/objeto_control.h"

namespace pincela::componente {

namespace {

constexpr LPARAM PulsacionDeTab = 0x000F0001; // once, with the key's scan code

/// The window whose stops TAB goes round, and the stop that `ventana` is part of.
struct Vuelta {
    HWND forma, parada;
};

Vuelta VueltaDe(HWND ventana) {
    Vuelta vuelta{GetAncestor(ventana, GA_PARENT), ventana};
    const HWND raiz = GetAncestor(ventana, GA_ROOT);
    while (vuelta.forma && vuelta.forma != raiz &&
           !(GetWindowLongW(vuelta.parada, GWL_STYLE) & WS_TABSTOP)) {
        vuelta.parada = vuelta.forma;
        vuelta.forma = GetAncestor(vuelta.forma, GA_PARENT);
    }
    return vuelta;
}

bool EsDialogo(HWND ventana) {
    wchar_t clase[8] = L"";
    GetClassNameW(ventana, clase, 8);
    return lstrcmpW(clase, L"#32770") == 0;
}

} // namespace

// Into the queue of this thread, where the container's own loop finds it before the keys that the
// user has typed ahead.
void ObjetoControl::EnviarTab() {
    const HWND foco = GetFocus();
    const HWND destino = foco ? foco : entorno_.VentanaDeFoco();
    if (destino && entorno_.PuedePasarElFoco())
        PostMessageW(destino, WM_KEYDOWN, VK_TAB, PulsacionDeTab);
}

// The container's message loop let TAB through. A site that knows its controls moves the focus; in
// any other window it goes the way of a dialog.
void ObjetoControl::MoverFoco(bool atras) {
    const HWND ventana = entorno_.Ventana();
    if (!ventana)
        return;
    detalle::Sosten sosten(Identidad());
    MSG mensaje{GetFocus(), WM_KEYDOWN, VK_TAB, PulsacionDeTab, 0, {}};
    constexpr DWORD mayusculas = 1;
    if (sitioDeControl_ && Ptr<IOleControlSite>(sitioDeControl_)
                                   ->TranslateAccelerator(&mensaje, atras ? mayusculas : 0) == S_OK)
        return;
    const Vuelta vuelta = VueltaDe(ventana);
    const HWND siguiente = GetNextDlgTabItem(vuelta.forma, vuelta.parada, atras);
    if (!siguiente || siguiente == vuelta.parada)
        return;
    if (EsDialogo(vuelta.forma))
        SendMessageW(vuelta.forma, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(siguiente), TRUE);
    else
        SetFocus(siguiente);
}

} // namespace pincela::componente
