#include "plataforma/windows/nucleo.h"

#include "plataforma/windows/campo_edicion.h"
#include "plataforma/windows/silueta.h"

#include <algorithm>

namespace pincela::windows {

void Nucleo::VistaCambiada() {
    if (cerrando)
        return;
    if (ventana && silueta)
        silueta->Envejecer();
    if (ventana && !invalidada_) {
        invalidada_ = true;
        ::InvalidateRect(ventana, nullptr, FALSE);
    }
    if (!avisada_) {
        avisada_ = true;
        // Who was told may have ended everything; who was not left it as it was.
        if (!sitio.VistaCambiada())
            avisada_ = false;
    }
}

bool Nucleo::EsVentanaPropia(HWND otra) const {
    return otra && ventana &&
           (otra == ventana || std::any_of(campos.begin(), campos.end(), [otra](auto* campo) {
                return campo->ventana() == otra;
            }));
}

} // namespace pincela::windows
