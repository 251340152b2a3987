// Work done when a scope ends, errors included.
#pragma once

#include <utility>

namespace pincela {

/// Runs an action that does not throw at the end of the scope.
template <class Accion>
class AlSalir {
  public:
    explicit AlSalir(Accion accion) : accion_(std::move(accion)) {}
    AlSalir(const AlSalir&) = delete;
    AlSalir& operator=(const AlSalir&) = delete;
    ~AlSalir() { accion_(); }

  private:
    Accion accion_;
};

/// Holds a flag at true for the length of a scope, as loading does.
class Mientras {
  public:
    explicit Mientras(bool& bandera) : bandera_(bandera) { bandera_ = true; }
    Mientras(const Mientras&) = delete;
    Mientras& operator=(const Mientras&) = delete;
    ~Mientras() { bandera_ = false; }

  private:
    bool& bandera_;
};

} // namespace pincela
