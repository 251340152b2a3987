// The background.
#include "area/area.h"
#include "common/conversion.h"
#include "efectos/efectos.h"

namespace pincela {

// The border first: the background may show everything at once.
void Area::Repintar() {
    PintarBorde();
    PintarFondo();
}

void Area::PintarFondo() {
    Superficie& lienzo = superficie();
    lienzo.Cls();
    // Over a gradient nothing of the container would be left to see.
    if (m_EstilosRell == TEstilosR::Solido || m_BackStyle == TBack::Transparente)
        return;
    const float ancho = lienzo.ScaleWidth();
    const float alto = lienzo.ScaleHeight();
    interior_ = {.Width = ancho, .Height = alto};
    if (m_EstilosBord != TEstilosB::Ninguno) {
        interior_.Left = interior_.Top = 2 * static_cast<float>(m_AnchoBorde);
        interior_.Width -= 2;
        interior_.Height -= 2;
    }
    // Always level: a diagonal one is drawn like a vertical one.
    const Manejador hdc = lienzo.hDC();
    efectos().Degrade(ALong(hdc), AEntero32(ancho), AEntero32(alto), m_EstilosRell, m_ColorDegrade,
                      std::int16_t{0});
    lienzo.Refresh();
}

} // namespace pincela
