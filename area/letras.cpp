// Placement and shadow of the caption.
#include "efectos/letras.h"

#include "area/area.h"
#include "common/conversion.h"
#include "common/lugar.h"
#include "efectos/efectos.h"

namespace pincela {

void Area::SombrearTexto() {
    const Color letra = lblTitulo->ForeColor();
    LblSombra->PonForeColor(ColorDeSombra(efectos(), m_TipoLetra, letra, Blanco));
    lblSombra2->PonForeColor(ColorDeSombra(efectos(), m_TipoLetra, letra, Negro));
}

// Uneven on purpose: the left column lies further in above and below than in the middle, and
// centring leaves out the border twice across but once down.
void Area::UbicarTexto() {
    for (Etiqueta* copia : {LblSombra.get(), lblSombra2.get()}) {
        copia->PonCaption(lblTitulo->Caption());
        copia->PonFont(lblTitulo->Font());
    }
    SombrearTexto();

    const double S = static_cast<double>(m_SeparaBorde);
    const double A = static_cast<double>(m_AnchoBorde);
    const double libreX = double{superficie().ScaleWidth()} - lblTitulo->Width();
    const double libreY = double{superficie().ScaleHeight()} - lblTitulo->Height();
    const double junto = S + A - 1;
    const double izquierda =
        PorColumna(m_AlinText, m_AlinText == Alineaciones::Izq_Med ? junto : 2 * S + A,
                   Int((libreX - 2 * A) / 2), Int(libreX - (S + A)));
    const double arriba = PorFila(m_AlinText, junto, Int((libreY - A) / 2), Int(libreY - A - S));

    const double d = DireccionLetra(m_TipoLetra);
    lblSombra2->Move(static_cast<float>(izquierda - d), static_cast<float>(arriba - d));
    LblSombra->Move(static_cast<float>(izquierda + d), static_cast<float>(arriba + d));
    lblTitulo->Move(static_cast<float>(izquierda), static_cast<float>(arriba));
}

} // namespace pincela
