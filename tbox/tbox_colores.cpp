// Normal and mouse-over colours, and the shadows that follow them.
#include "common/errores.h"
#include "efectos/efectos.h"
#include "efectos/letras.h"
#include "tbox/tbox.h"

namespace pincela {

namespace {

constexpr Color SombraGris{std::int32_t{0xA0A0A0}};

} // namespace

void Tbox::ActualizarColores(const bool& Sobre) {
    const bool sobre = Sobre;
    lblTexto->PonForeColor(sobre ? m_ColorLetraES : m_ColorLetraE);
    SombrearTexto();
    txtTexto->PonForeColor(sobre ? m_ColorLetraSobre : m_ColorLetra);
    txtTexto->PonBackColor(sobre ? m_ColorFonTextoS : m_ColorFonTexto);
    if (m_TipoSombra == TSombra::Invertida)
        SombrearCampo();
    PintarFondo(sobre ? m_ColorFondoSobre : m_ColorFondo);
}

void Tbox::SombrearTexto() {
    const Color letra = entorno_.ColorReal(lblTexto->ForeColor());
    lblSombra->PonForeColor(ColorDeSombra(efectos(), m_TipoLetra, letra, Blanco));
}

void Tbox::SombrearCampo() {
    const Color color = ColorDeSombraDelCampo();
    Sombra->PonFillColor(color);
    Sombra->PonBorderColor(color);
}

Color Tbox::ColorDeSombraDelCampo() {
    switch (m_TipoSombra) {
    case TSombra::Negra:
        return Negro;
    case TSombra::Gris:
        return SombraGris;
    case TSombra::Blanca:
        return Blanco;
    case TSombra::Invertida:
        return Inverso(efectos(), entorno_.ColorReal(txtTexto->BackColor()));
    }
    Lanzar(NumeroError::NuloNoValido);
}

} // namespace pincela
