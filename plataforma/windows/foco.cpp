#include "plataforma/windows/foco.h"

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
    return sitio.EntradaCongelada() ||
           nucleo.Notificar([](ControlUsuario& control) { control.EnterFocus(); });
}

bool FocoSale(Nucleo& nucleo, HWND siguiente) {
    if (!nucleo.conFoco || nucleo.EsVentanaPropia(siguiente))
        return true;
    nucleo.conFoco = false;
    SitioControl& sitio = nucleo.sitio;
    if (!sitio.EntradaCongelada() &&
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
