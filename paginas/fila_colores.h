// The row of colour stops of a gradient: buttons of equal width, side by side in a frame.
#pragma once

#include "common/objeto.h"
#include "common/texto.h"
#include "plataforma/elementos_pagina.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace pincela {

/// Its first stop lives as long as the row. A reference to a row is what the published methods of
/// the colour pages take.
class FilaColores final : public Objeto {
  public:
    // What the buttons of the page allow; a list that is shown may be shorter or longer.
    static constexpr std::size_t MinimoDeTopes = 2;
    static constexpr std::size_t MaximoDeTopes = 31;

    /// `marco` holds the buttons; `alPulsar` is told of a click on one. `medida` is the frame whose
    /// width is shared out.
    FilaColores(MarcoPagina& marco, const MarcoPagina& medida,
                std::function<void(BotonColor&)> alPulsar);

    std::size_t Topes() const { return topes_.size(); }
    /// Raises Desbordamiento when it leaves a byte.
    std::uint8_t IndiceMayor() const;
    /// Raises Subindice for a stop that the row does not have.
    BotonColor& Tope(std::size_t numero);
    Color ColorDe(std::size_t numero) const { return topes_[numero]->BackColor(); }
    std::vector<Color> Colores() const;
    /// The colours as list text.
    Texto Lista() const;
    /// As many stops as there are colours, and at least one.
    void Mostrar(std::span<const Color> colores);

    /// Adds a stop after the highest one; those after `I` take the colour of the one before them.
    /// Raises Subindice when `I` is beyond the highest.
    void Agregar(std::uint8_t I);
    /// Removes stop `I`. Raises LlamadaNoValida for the first one.
    void Eliminar(std::uint8_t I);
    /// Back to the first stop alone, which keeps place and colour.
    void Vaciar();

  private:
    void Crear();
    void Ubicar(std::size_t numero, std::size_t cuantos);

    MarcoPagina& marco_;
    const MarcoPagina& medida_;
    std::function<void(BotonColor&)> alPulsar_;
    std::vector<std::unique_ptr<BotonColor>> topes_;
};

} // namespace pincela
