// The border and the focus rectangle.
#include "botonazo/botonazo.h"
#include "common/conversion.h"
#include "efectos/efectos.h"
#include "efectos/esquina.h"

#include <algorithm>

namespace pincela {

namespace {

constexpr Color BordeClaro{std::int32_t{0xC0C0C0}};
constexpr Color BordeOscuro{std::int32_t{0x909090}};
constexpr Color BordeLineal{std::int32_t{0xB4B4B4}};
constexpr Color MarcoDeVentana{std::uint32_t{0x80000006}};

} // namespace

// A press counts as much as the mouse itself: by key it can come with the mouse elsewhere.
bool Botonazo::SeVeElBorde(bool Sobre, bool Presionado) const {
    if (!Presionado && m_EstilosBord == TEstilosB::Ninguno)
        return false;
    const bool encima = Sobre || m_Sobre || Presionado;
    switch (m_EfectoBoton) {
    case EfectosBoton::BotOculoSobre:
        return !encima;
    case EfectosBoton::BotVisibSobre:
        return encima;
    default:
        return true;
    }
}

// The button that Enter presses bears a thin frame at its very edge, outside its border.
void Botonazo::PintarMarcoPorDefecto() {
    Superficie& lienzo = superficie();
    const std::int32_t ancho = AEntero32(lienzo.ScaleWidth());
    const std::int32_t alto = AEntero32(lienzo.ScaleHeight());
    if (!m_Enabled || ancho < 1 || alto < 1)
        return;
    Esquina esquina;
    Forma(esquina.ancho, esquina.alto);
    lienzo.Contorno(
        {0, 0, ancho, alto, esquina.ancho, esquina.alto, 1, MarcoDeVentana, MarcoDeVentana});
}

void Botonazo::PintarBorde(bool Sobre, bool Presionado) {
    if (entorno_.DisplayAsDefault())
        PintarMarcoPorDefecto();
    if (!SeVeElBorde(Sobre, Presionado))
        return;
    Superficie& lienzo = superficie();
    const auto m = static_cast<std::int32_t>(m_AnchoBorde);
    const std::int32_t derecha = Entero16(std::int64_t{AEntero16(lienzo.ScaleWidth() - 1.0)} - m);
    const std::int32_t abajo = Entero16(std::int64_t{AEntero16(lienzo.ScaleHeight() - 1.0)} - m);

    Color luz = Presionado ? BordeOscuro : BordeClaro;
    Color sombra = Presionado ? BordeClaro : BordeOscuro;
    if (m_EstilosBord == TEstilosB::Lineal)
        luz = sombra = BordeLineal;

    if (m_Estilos != TEstilos::CLASICO) {
        // Straight corners would be cut off by the window's shape.
        if (derecha < m || abajo < m)
            return;
        const Esquina esquina = EsquinaDe(AEntero32(lienzo.ScaleWidth()),
                                          AEntero32(lienzo.ScaleHeight()), m_Estilos, m_Redondeo)
                                    .Reducida(m);
        lienzo.Contorno({m, m, derecha + 1, abajo + 1, esquina.ancho, esquina.alto, std::max(m, 1),
                         luz, sombra});
        return;
    }
    const auto cerca = static_cast<float>(m);
    const auto x = static_cast<float>(derecha);
    const auto y = static_cast<float>(abajo);
    lienzo.Line(cerca, cerca, x, cerca, luz);
    lienzo.Line(x, cerca, x, y, sombra);
    lienzo.Line(x, y, cerca, y, sombra);
    lienzo.Line(cerca, y, cerca, cerca, luz);
}

// One pixel inside the border.
void Botonazo::UbicarFoco() {
    const std::int64_t margen = 2 * static_cast<std::int64_t>(m_AnchoBorde) + 1;
    auto dentro = [margen](float largo) {
        return std::max(0.0f, largo - 2 * static_cast<float>(margen));
    };
    rectFoco->Move(static_cast<float>(margen), static_cast<float>(margen),
                   dentro(superficie().ScaleWidth()), dentro(superficie().ScaleHeight()));
    Esquina esquina;
    Forma(esquina.ancho, esquina.alto);
    esquina = esquina.Reducida(margen);
    rectFoco->PonElipse(esquina.ancho, esquina.alto);
}

} // namespace pincela
