// What the mouse does between going down and coming up.
#pragma once

#include "galeria/diseno/agarres.h"

#include <vector>

namespace diseno {

/// Moves boxes, stretches one, or spans a rectangle. Nothing happens until the mouse has gone some
/// pixels: a click isn't a drag.
class Gesto {
  public:
    enum class Clase { Mover, Estirar, Abarcar, Trazar };

    /// All boxes move as the first one does, whose upper left corner goes to the grid.
    static Gesto Mover(Punto desde, std::vector<Caja> cajas, Rejilla rejilla);
    static Gesto Estirar(Punto desde, const Caja& caja, Agarre agarre, int minimo, Rejilla rejilla);
    /// A rubber band, free of the grid.
    static Gesto Abarcar(Punto desde);
    /// The place of something new, on the grid.
    static Gesto Trazar(Punto desde, Rejilla rejilla);

    /// With `libre` the grid is left out this time. True when what is to be shown has changed.
    bool Seguir(Punto hasta, bool libre);

    Clase Que() const { return clase_; }
    bool Arrancado() const { return arrancado_; }
    /// The boxes where they would go; of a rectangle, itself.
    const std::vector<Caja>& Cajas() const { return ahora_; }
    static constexpr int Umbral = 4; ///< pixels that a click may tremble

  private:
    Gesto(Clase clase, Punto desde, std::vector<Caja> cajas, Rejilla rejilla)
        : clase_(clase), desde_(desde), antes_(std::move(cajas)), ahora_(antes_),
          rejilla_(rejilla) {}
    std::vector<Caja> Llevadas(Punto hasta, Rejilla rejilla) const;

    Clase clase_;
    Punto desde_;
    std::vector<Caja> antes_, ahora_;
    Rejilla rejilla_;
    Agarre agarre_ = Agarre::Ninguno;
    int minimo_ = 1;
    bool arrancado_ = false;
};

} // namespace diseno
