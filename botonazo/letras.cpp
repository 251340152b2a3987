// Placement and shadow of the caption.
#include "efectos/letras.h"

#include "botonazo/botonazo.h"
#include "common/conversion.h"
#include "common/lugar.h"
#include "efectos/efectos.h"

namespace pincela {

void Botonazo::SombrearTexto() {
    const Color letra = lblTitulo->ForeColor();
    LblSombra->PonForeColor(ColorDeSombra(efectos(), m_TipoLetra, letra, Blanco));
    lblSombra2->PonForeColor(ColorDeSombra(efectos(), m_TipoLetra, letra, Negro));
}

void Botonazo::PintarLetra(Color color) {
    lblTitulo->PonForeColor(color);
    SombrearTexto();
}

void Botonazo::UbicarTexto(bool Presionado, Sombras sombras) {
    if (m_Cargando)
        return;
    for (Etiqueta* copia : {LblSombra.get(), lblSombra2.get()}) {
        copia->PonCaption(lblTitulo->Caption());
        copia->PonFont(lblTitulo->Font());
    }
    if (sombras == Sombras::Recolorear)
        SombrearTexto();

    const double m = static_cast<double>(m_AnchoBorde);
    const double libreX = double{superficie().ScaleWidth()} - lblTitulo->Width();
    const double libreY = double{superficie().ScaleHeight()} - lblTitulo->Height();
    const double izquierda =
        AEntero16(PorColumna(m_AlinText, m, Int((libreX - 2 * m) / 2), Int(libreX - m)));
    const double arriba =
        AEntero16(PorFila(m_AlinText, m, Int((libreY - 2 * m) / 2), Int(libreY - m)));

    const double corrido = Presionado ? m : 0;
    auto mover = [&](Etiqueta& etiqueta, std::int32_t aparte) {
        etiqueta.Move(static_cast<float>(izquierda + corrido + aparte),
                      static_cast<float>(arriba + corrido + aparte));
    };
    const std::int32_t d = DireccionLetra(m_TipoLetra);
    mover(*lblSombra2, -d);
    mover(*LblSombra, d);
    mover(*lblTitulo, 0);
}

} // namespace pincela
