// The change of look in steps.
#include "botonazo/botonazo.h"
#include "common/conversion.h"
#include "common/errores.h"
#include "efectos/efectos.h"

#include <algorithm>
#include <cstdlib>

namespace pincela {

namespace {

// Transparency of step `paso` of `pasos`: 255 is the old look, 0 the new one. The product is kept
// in 16 bits, so a change can't have more than 128 steps.
std::uint8_t NivelDelPaso(std::uint8_t paso, std::uint8_t pasos) {
    const double producto = Entero16(std::int64_t{paso} * 255);
    return Byte(std::abs(255 - static_cast<std::int64_t>(Int(producto / pasos))));
}

} // namespace

// A change that comes while another is in course carries its count on.
void Botonazo::FundirBoton(const Imagen& imagen, const Texto& Colores, bool Sobre) {
    AjustarCuadro(*AuxImagen);
    PintarCara(*AuxImagen, imagen, Colores, Sobre);
    if (!m_Enabled && !m_Cargando)
        AuxImagen->Desvanecer();
    PasoProgresivo();
    if (m_CambioProgrePasos > 1 && m_PasoProg != 0)
        Arrancar(*TimProg);
}

void Botonazo::PasoProgresivo() {
    const std::uint8_t d = std::max<std::uint8_t>(m_CambioProgrePasos, 1);
    std::uint8_t nivel = 0;
    try {
        m_PasoProg = Byte(std::int64_t{m_PasoProg} + 1);
        nivel = NivelDelPaso(m_PasoProg, d);
    } catch (const ErrorEjecucion&) {
        // Told once; the next change starts from its first step.
        DetenerProgresivo();
        throw;
    }
    Copiar(*AuxImagen, superficie(), nivel);
    if (m_PasoProg == d)
        DetenerProgresivo();
    PintarBorde(m_Sobre, m_Presionado);
    superficie().Refresh();
}

void Botonazo::DetenerProgresivo() {
    m_PasoProg = 0;
    TimProg->PonEnabled(false);
}

} // namespace pincela
