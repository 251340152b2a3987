// The border: two frames of lines, one inside the other, `SeparaBorde` pixels in from the edge and
// each `AnchoBorde` pixels wide.
//
//   Ninguno     no lines
//   Normal      both frames in the colour of the caption
//   Lineal      the outer frame alone, in the shadow tone of the system
//   Colores     etched like a group box: shadow then light from above left, light then shadow from
//               below right, in the tones of the system
//   Degradados  etched in the first and the last colour of the gradient
//
// Whatever else is stored is drawn like Colores.
#include "area/area.h"
#include "common/conversion.h"
#include "common/errores.h"
#include "efectos/lista_colores.h"

#include <algorithm>
#include <cmath>

namespace pincela {

namespace {

constexpr Color SombraDeBoton{std::uint32_t{0x80000010}};
constexpr Color LuzDeBoton{std::uint32_t{0x80000014}};

struct Marco {
    bool visible = false;
    Color arribaIzquierda, abajoDerecha;
};

using Marcos = std::array<Marco, 2>; // outer, inner

Marcos Grabado(Color primero, Color segundo) {
    return {{{true, primero, segundo}, {true, segundo, primero}}};
}

// A list no gradient could be drawn with has no ends either.
Marcos GrabadoDeLista(VistaTexto lista) {
    try {
        if (EsListaUsable(lista)) {
            const ListaColores colores = LeerColores(lista);
            return Grabado(colores.Vista().front(), colores.Vista().back());
        }
    } catch (const ErrorEjecucion&) {
    }
    return Grabado(SombraDeBoton, LuzDeBoton);
}

Marcos MarcosDe(TEstilosB estilo, Color letra, VistaTexto lista) {
    switch (estilo) {
    case TEstilosB::Ninguno:
        return {};
    case TEstilosB::Normal:
        return {{{true, letra, letra}, {true, letra, letra}}};
    case TEstilosB::Lineal:
        return {{{true, SombraDeBoton, SombraDeBoton}, {}}};
    case TEstilosB::Degradados:
        return GrabadoDeLista(lista);
    default:
        return Grabado(SombraDeBoton, LuzDeBoton);
    }
}

/// Pixels of a line's width that lie before its coordinates.
double Antes(double grosor) {
    return std::floor(grosor / 2);
}

} // namespace

void Area::PintarBorde() {
    const Marcos marcos = MarcosDe(m_EstilosBord, lblTitulo->ForeColor(), m_ColorDegrade);
    const std::int32_t grosor = std::max(static_cast<std::int32_t>(m_AnchoBorde), 1);
    const double W = superficie().ScaleWidth();
    const double H = superficie().ScaleHeight();
    for (std::size_t i = 0; i < marcos.size(); ++i) {
        const Marco& marco = marcos[i];
        const double margen = static_cast<double>(m_SeparaBorde) + static_cast<double>(i) * grosor;
        const auto cerca = static_cast<float>(margen + Antes(grosor));
        const auto derecha = static_cast<float>(W - margen - grosor + Antes(grosor));
        const auto abajo = static_cast<float>(H - margen - grosor + Antes(grosor));
        // A panel too small for a frame goes without it.
        const bool visible = marco.visible && cerca <= derecha && cerca <= abajo;

        auto trazar = [&](Linea& linea, float x1, float y1, float x2, float y2, Color color) {
            if (visible) {
                linea.PonBorderWidth(grosor);
                linea.PonBorderColor(color);
                linea.Move(x1, y1, x2, y2);
            }
            linea.PonVisible(visible);
        };
        trazar(*LinSup[i], cerca, cerca, derecha, cerca, marco.arribaIzquierda);
        trazar(*LinInf[i], cerca, abajo, derecha, abajo, marco.abajoDerecha);
        trazar(*LinIzq[i], cerca, cerca, cerca, abajo, marco.arribaIzquierda);
        trazar(*LinDer[i], derecha, cerca, derecha, abajo, marco.abajoDerecha);
    }
}

} // namespace pincela
