#include "plataforma/windows/foco.h"

#include <utility>

namespace pincela::windows {

bool FocoEntra(Nucleo& nucleo) {
    if (nucleo.conFoco)
        return true;
    nucleo.conFoco = true;
    const auto testigo = nucleo.Testigo();
    SitioControl& sitio = nucleo.sitio;
    Proteger(sitio, [&] { sitio.FocoCambiado(true); });
    if (testigo.expired())
        return false;
    FocoDescongelado(nucleo);
    return !testigo.expired();
}

// A container that keeps its controls from the user keeps the focus from them too; a control that
// was told of it is told of its end in any case, or it would show a focus that it doesn't have.
void FocoDescongelado(Nucleo& nucleo) {
    if (!nucleo.conFoco || nucleo.focoDicho || nucleo.sitio.EntradaCongelada())
        return;
    nucleo.focoDicho = true;
    nucleo.Notificar([](ControlUsuario& control) { control.EnterFocus(); });
}

bool FocoSale(Nucleo& nucleo, HWND siguiente) {
    if (!nucleo.conFoco || nucleo.EsVentanaPropia(siguiente))
        return true;
    nucleo.conFoco = false;
    SitioControl& sitio = nucleo.sitio;
    if (std::exchange(nucleo.focoDicho, false) &&
        !nucleo.Notificar([](ControlUsuario& control) { control.ExitFocus(); }))
        return false;
    const auto testigo = nucleo.Testigo();
    Proteger(sitio, [&] { sitio.FocoCambiado(false); });
    return !testigo.expired();
}

bool EsTabulador(UINT mensaje, WPARAM w) {
    return (mensaje == WM_KEYDOWN || mensaje == WM_CHAR) && w == VK_TAB &&
           ::GetKeyState(VK_CONTROL) >= 0 && ::GetKeyState(VK_MENU) >= 0;
}

} // namespace pincela::windows
