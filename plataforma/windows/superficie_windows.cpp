#include "plataforma/windows/superficie_windows.h"

namespace pincela::windows {

void SuperficieWindows::PonBackStyle(std::int16_t estilo) {
    if (estilo == estilo_)
        return;
    estilo_ = estilo;
    Cambiado();
}

void SuperficieWindows::PonAccessKeys(const Texto& teclas) {
    if (teclas == teclas_)
        return;
    teclas_ = teclas;
    nucleo_.sitio.AccessKeysChanged();
}

void SuperficieWindows::PonTamano(SIZE tamano) {
    const SIZE actual = Tamano();
    if (tamano.cx == actual.cx && tamano.cy == actual.cy)
        return;
    lienzo_.PonTamano(tamano);
    Cambiado();
}

void SuperficieWindows::Refresh() {
    const auto testigo = nucleo_.Testigo();
    Cambiado();
    if (testigo.expired() || !nucleo_.ventana)
        return;
    ::UpdateWindow(nucleo_.ventana);
    // Somebody may have validated the window after it was invalidated.
    if (testigo.expired() || !nucleo_.ventana || !nucleo_.PinturaPendiente())
        return;
    ::InvalidateRect(nucleo_.ventana, nullptr, FALSE);
    ::UpdateWindow(nucleo_.ventana);
}

} // namespace pincela::windows
