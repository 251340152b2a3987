// The drawing effects everything else uses: gradient fills, window shapes, blended copies and
// colour channels. Stateless, so any number of instances may exist.
#pragma once

#include "common/color.h"
#include "common/enumeraciones.h"
#include "common/texto.h"
#include "common/variante.h"
#include "plataforma/graficos.h"

#include <cstdint>

namespace pincela {

class Efectos {
  public:
    /// `graficos` is not owned and outlives the object.
    explicit Efectos(Graficos& graficos) : graficos_(graficos) {}

    /// Gives a window a rectangular or round-cornered shape. `Ancho`, `Alto` in pixels.
    /// Raises Desbordamiento when a size plus one, or an ellipse, leaves 32 bits.
    void DarForma(const std::int32_t& HWND, const std::int32_t& Ancho, const std::int32_t& Alto,
                  const TEstilos& Forma, const tRectRedo& Param);

    /// Fills (0, 0)-(`Ancho`, `Alto`) of a device context with a gradient. `Valores` is a colour
    /// list ("16777215*0"), `Angulo` in degrees counts for D_Diagonal only. Never fails: a list
    /// that can't be used draws nothing.
    void Degrade(const std::int32_t& hdc, const std::int32_t& Ancho, const std::int32_t& Alto,
                 TEstilosR Esti, VistaTexto Valores, const std::int16_t& Angulo = 0);

    /// One channel of `color`: 0 to 255 when `Simple`, else the 16-bit pattern channel * 256 of a
    /// gradient vertex. 0 for no colour (-1) and for an unknown selector.
    std::int16_t DevColor(const std::int32_t& color,
                          const ColoresRGB& DColor = static_cast<ColoresRGB>(-1),
                          const Variante& Simple = false);

    /// Copies one rectangle over another; `Nivel` 0 copies opaquely, 255 changes nothing. The
    /// source is read at (XO, XO): `YO` is accepted and not used. Always returns Empty.
    Variante DarTrans(const std::int32_t& HdcO, const std::int32_t& XO, const std::int32_t& YO,
                      const std::int32_t& AnchoO, const std::int32_t& AltoO,
                      const std::int32_t& HdcD, const std::int32_t& XD, const std::int32_t& YD,
                      const std::int32_t& AnchoD, const std::int32_t& AltoD,
                      const std::uint8_t& Nivel);

    /// Always 0.
    std::int32_t InviertoColor(const std::int32_t& color);

  private:
    Graficos& graficos_;
};

/// 255 minus each channel of a direct colour.
Color Inverso(Efectos& efectos, Color color);

} // namespace pincela
