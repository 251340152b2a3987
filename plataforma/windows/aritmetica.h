// The floating-point arithmetic of the component, whatever its caller's is.
//
// Callers compute with exceptions unmasked, in another precision or with another rounding; the
// component computes with all exceptions masked, to the nearest and in double precision. Each gate
// from the outside sets that and gives the caller's own back, and each call to the container runs
// in the container's.
#pragma once

#include <cstdint>

namespace pincela::windows {

/// Control words of both arithmetic units, and the status of the older one where an exception of it
/// may be pending.
class EstadoAritmetico {
  public:
    /// True when this thread computes as the component does already.
    static bool EsElPropio();
    /// Keeps the state of this thread and sets the component's.
    void Tomar();
    /// Sets what was kept.
    void Devolver() const;

  private:
    std::uint32_t entorno_[7]; // as the processor stores it: control, status, tags, pointers
    std::uint32_t sse_;
    bool entero_; // all of `entorno_` is kept, not the control word alone
};

/// The component's arithmetic for a scope; the caller's comes back at its end. Where the caller has
/// the same nothing is written.
class AritmeticaPropia {
  public:
    AritmeticaPropia() : cambiada_(!EstadoAritmetico::EsElPropio()) {
        if (cambiada_)
            Entrar();
    }
    AritmeticaPropia(const AritmeticaPropia&) = delete;
    AritmeticaPropia& operator=(const AritmeticaPropia&) = delete;
    ~AritmeticaPropia() {
        if (cambiada_)
            Salir();
    }

  private:
    friend class AritmeticaAjena;

    void Entrar();
    void Salir();

    const bool cambiada_;
    EstadoAritmetico ajeno_;
    AritmeticaPropia* exterior_; // of the same thread
};

/// The arithmetic of the innermost caller again, for the length of a call to the outside. What the
/// other side changes stays changed for that caller.
class AritmeticaAjena {
  public:
    AritmeticaAjena();
    AritmeticaAjena(const AritmeticaAjena&) = delete;
    AritmeticaAjena& operator=(const AritmeticaAjena&) = delete;
    ~AritmeticaAjena();

  private:
    AritmeticaPropia* propia_; // null where there is nothing to give back
};

} // namespace pincela::windows
