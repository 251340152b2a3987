// A host that computes in another way: exceptions unmasked, another precision, another rounding. A
// fault in a call is counted, masked and survived.
#pragma once

#include <windows.h>

#include <doctest/doctest.h>

#include <cstdint>
#include <ostream>
#include <string>

namespace flotante {

/// What rules the arithmetic of a thread: masks, precision and rounding of the older unit, masks,
/// rounding and treatment of tiny numbers of the newer one.
struct Palabras {
    std::uint16_t vieja; // without the bits that mean nothing
    std::uint32_t nueva; // without the flags of what happened
    friend bool operator==(const Palabras&, const Palabras&) = default;
    friend std::ostream& operator<<(std::ostream& salida, const Palabras& p) {
        return salida << p.vieja << '/' << p.nueva;
    }
};

Palabras Actuales();
/// Whatever is pending is forgotten.
void Poner(const Palabras& palabras);

/// Every exception unmasked, single precision, rounding up.
inline constexpr Palabras TodoAbierto{0x0800, 0x4000};
/// What some compilers' programs begin with: invalid operations, divisions by zero and overflows
/// are exceptions.
inline constexpr Palabras Habitual{0x1332, 0x1900};

/// How many faults this thread has had since it was asked last.
int FaltasDesdeEntonces();

/// Another arithmetic for a scope.
class Ajena {
  public:
    explicit Ajena(const Palabras& palabras) : antes_(Actuales()) { Poner(palabras); }
    Ajena(const Ajena&) = delete;
    Ajena& operator=(const Ajena&) = delete;
    ~Ajena() { Poner(antes_); }

  private:
    Palabras antes_;
};

/// Makes a call in another arithmetic: it must not fault, and must leave the control words alone.
template <class F>
void Llamar(const Palabras& palabras, const std::string& que, F llamada) {
    FaltasDesdeEntonces();
    Palabras despues{};
    {
        const Ajena ajena(palabras);
        llamada();
        despues = Actuales();
    }
    const int faltas = FaltasDesdeEntonces();
    INFO(que);
    CHECK(faltas == 0);
    CHECK(despues == palabras);
}

} // namespace flotante
