#include "efectos/efectos.h"

#include "common/conversion.h"
#include "common/errores.h"
#include "efectos/canales.h"
#include "efectos/esquina.h"
#include "efectos/lista_colores.h"
#include "efectos/malla.h"

#include <bit>
#include <exception>
#include <utility>

namespace pincela {
namespace {

bool SeDibuja(TEstilosR estilo) {
    return estilo >= TEstilosR::D_Hori && estilo <= TEstilosR::D_Diagonal;
}

void Rellenar(Graficos& graficos, Manejador hdc, const Malla& malla) {
    if (malla.modo == ModoGradiente::Triangulo)
        graficos.GradientFill(hdc, malla.vertices.Vista(), malla.triangulos.Vista(), malla.modo);
    else
        graficos.GradientFill(hdc, malla.vertices.Vista(), malla.rectangulos.Vista(), malla.modo);
}

/// An absent argument counts as False and Null as anything but False.
bool EsFalso(const Variante& valor) {
    if (std::holds_alternative<Falta>(valor))
        return true;
    if (std::holds_alternative<Nulo>(valor))
        return false;
    return !ABooleano(valor);
}

} // namespace

void Efectos::DarForma(const std::int32_t& HWND, const std::int32_t& Ancho,
                       const std::int32_t& Alto, const TEstilos& Forma, const tRectRedo& Param) {
    const Esquina esquina = EsquinaDe(Ancho, Alto, Forma, Param);
    // Right and bottom lie one past the size so that the last column and row belong to the shape.
    const Manejador region =
        graficos_.CreateRoundRectRgn(0, 0, Entero32(std::int64_t{Ancho} + 1),
                                     Entero32(std::int64_t{Alto} + 1), esquina.ancho, esquina.alto);
    graficos_.SetWindowRgn(AManejador(HWND), region, true);
    // Frees the region where the window did not take it; otherwise fails without effect.
    graficos_.DeleteObject(region);
}

void Efectos::Degrade(const std::int32_t& hdc, const std::int32_t& Ancho, const std::int32_t& Alto,
                      TEstilosR Esti, VistaTexto Valores, const std::int16_t& Angulo) {
    try {
        VistaTexto lista = Valores;
        if (!EsListaUsable(lista))
            return;
        Texto invertida;
        if (Esti == TEstilosR::D_Diagonal) {
            if (EsDiagonalInvertida(Angulo))
                lista = invertida = InvertirLista(lista);
            Esti = EstiloDeDiagonal(Angulo);
        }
        if (!SeDibuja(Esti))
            return;
        // Only a reversal can have left the list empty by now.
        if (lista.empty())
            lista = kListaPredeterminada;
        const ListaColores colores = LeerColores(lista);
        const Malla malla = CalcularMalla(Esti, Ancho, Alto, colores.Vista(), Angulo);
        Rellenar(graficos_, AManejador(hdc), malla);
    } catch (const std::exception&) {
        // A list or a size that can't be used draws nothing.
    }
}

std::int16_t Efectos::DevColor(const std::int32_t& color, const ColoresRGB& DColor,
                               const Variante& Simple) {
    const std::uint8_t canal = CanalDe(Color(color), DColor);
    return EsFalso(Simple) ? PatronDeCanal(canal) : canal;
}

Variante Efectos::DarTrans(const std::int32_t& HdcO, const std::int32_t& XO,
                           const std::int32_t& /*YO*/, const std::int32_t& AnchoO,
                           const std::int32_t& AltoO, const std::int32_t& HdcD,
                           const std::int32_t& XD, const std::int32_t& YD,
                           const std::int32_t& AnchoD, const std::int32_t& AltoD,
                           const std::uint8_t& Nivel) {
    const BLENDFUNCTION mezcla{0, 0, static_cast<std::uint8_t>(255 - Nivel), 0};
    // Callers count on the source being read at (XO, XO).
    graficos_.AlphaBlend(AManejador(HdcD), XD, YD, AnchoD, AltoD, AManejador(HdcO), XO, XO, AnchoO,
                         AltoO, std::bit_cast<std::uint32_t>(mezcla));
    return Vacio{};
}

std::int32_t Efectos::InviertoColor(const std::int32_t& /*color*/) {
    return 0;
}

Color Inverso(Efectos& efectos, Color color) {
    const auto opuesto = [&](ColoresRGB canal) {
        return 255 - efectos.DevColor(color.valor, canal, true);
    };
    return ColorRGB(opuesto(ColoresRGB::Rojo), opuesto(ColoresRGB::Verde),
                    opuesto(ColoresRGB::Azul));
}

} // namespace pincela
