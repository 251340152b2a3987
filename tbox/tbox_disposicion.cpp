// Where caption, edit field and their shadows lie.
//
// The place says where the field goes; the caption takes the opposite one. Each coordinate has a
// rule of its own, so a place that is none of the nine leaves it at 0.
#include "common/conversion.h"
#include "tbox/tbox.h"

#include <algorithm>

namespace pincela {

namespace {

using enum Alineaciones;

/// Half of a rounded length, toward minus infinity.
double Mitad(double largo) {
    return AEntero32(largo) >> 1;
}

double Margen(Tamanio separacion) {
    return static_cast<double>(separacion);
}

/// Field and caption stand side by side instead of one over the other.
bool LadoALado(Alineaciones lugar) {
    return lugar == Izq_Med || lugar == Der_Med;
}

} // namespace

void Tbox::AjustarTexto() {
    SombrearTexto();
    lblSombra->PonCaption(lblTexto->Caption());
    UbicarEtiqueta();

    const Caja caja = CajaDelCampo();
    const auto izquierda = static_cast<float>(caja.izquierda);
    const auto arriba = static_cast<float>(caja.arriba);
    const auto separa = static_cast<float>(m_Separa);
    const float ancho = caja.ancho - separa;
    const float alto = caja.alto - separa;
    txtTexto->Move(izquierda, arriba, ancho, alto);
    Sombra->Move(izquierda + separa, arriba + separa, ancho, alto);
}

void Tbox::UbicarEtiqueta() {
    const double margen = Margen(m_SeparaBorde);
    const double libreX = double{superficie().ScaleWidth()} - lblTexto->Width();
    const double libreY = double{superficie().ScaleHeight()} - lblTexto->Height();
    double x = 0, y = 0;
    switch (m_AlinTBox) {
    case Izq_Sup:
    case Izq_Inf:
    case Der_Med:
        x = margen;
        break;
    case Med_Sup:
    case Medio:
    case Med_Inf:
        x = Mitad(libreX);
        break;
    case Izq_Med:
    case Der_Sup:
    case Der_Inf:
        x = libreX - margen;
        break;
    }
    switch (m_AlinTBox) {
    case Izq_Inf:
    case Medio:
    case Med_Inf:
    case Der_Inf:
        y = margen;
        break;
    case Izq_Sup:
    case Med_Sup:
    case Der_Sup:
        // The caption below keeps clear of the shadow, not of the margin.
        y = libreY - m_Separa;
        break;
    case Izq_Med:
    case Der_Med:
        y = Mitad(libreY + m_Separa);
        break;
    }
    // One unit to the right of and below the caption.
    lblSombra->Move(static_cast<float>(x + 1), static_cast<float>(y));
    lblTexto->Move(static_cast<float>(x), static_cast<float>(y - 1));
}

Tbox::Caja Tbox::CajaDelCampo() const {
    const double margen = Margen(m_SeparaBorde);
    const double ancho = superficie().ScaleWidth();
    const double alto = superficie().ScaleHeight();
    const double anchoTitulo = lblTexto->Width();
    const double altoTitulo = lblTexto->Height();
    const bool alLado = LadoALado(m_AlinTBox);

    Caja caja{};
    caja.ancho = AEntero16(ancho - (alLado ? anchoTitulo : m_Separa) - 2 * margen);
    caja.alto = AEntero16(alto - (alLado ? 0 : altoTitulo) - 2 * margen);
    caja.ancho = std::max(caja.ancho, m_Separa);
    caja.alto = std::max(caja.alto, m_Separa);
    caja.izquierda = (m_AlinTBox == Der_Med ? anchoTitulo : m_Separa) + margen;
    switch (m_AlinTBox) {
    case Izq_Sup:
    case Izq_Med:
    case Med_Sup:
    case Der_Sup:
    case Der_Med:
        caja.arriba = margen;
        break;
    case Izq_Inf:
    case Medio:
    case Med_Inf:
    case Der_Inf:
        caja.arriba = altoTitulo + margen;
        break;
    }
    return caja;
}

} // namespace pincela
