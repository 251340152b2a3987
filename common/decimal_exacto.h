// Doubles and decimal digits, each turned into the other without error.
//
// A double is a whole number times a power of two, so its decimal expansion ends: rounding what is
// written, and choosing the nearest double for what is read, are comparisons of digits.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace pincela {

/// A positive number d.ddd… times ten to `exponente`.
struct DecimalExacto {
    static constexpr int Maximo = 800; // the longest double has 767
    std::array<char, Maximo> digitos;  // '0' to '9'; the first and the last are not '0'
    int cuantos = 0;
    int exponente = 0;

    std::string_view Digitos() const { return {digitos.data(), static_cast<std::size_t>(cuantos)}; }

    /// Keeps at most `significativas` digits; half way goes to the even one.
    void Redondear(int significativas);
};

/// All the digits of `valor`, which is finite and greater than zero.
DecimalExacto ExpandirDoble(double valor);

/// The double nearest to the whole number `digitos` times ten to `exponente`; half way goes to the
/// even one, too large to infinity, too small to zero. The first digit is not '0'.
double DobleMasCercano(std::string_view digitos, long exponente);

} // namespace pincela
