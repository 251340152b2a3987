// Rounding and checked stores.
#include "common/conversion.h"
#include "common/errores.h"

#include <cmath>
#include <limits>

namespace pincela {
namespace {

template <class Entero>
Entero Guardar(std::int64_t valor) {
    if (valor < std::numeric_limits<Entero>::min() || valor > std::numeric_limits<Entero>::max())
        Lanzar(NumeroError::Desbordamiento);
    return static_cast<Entero>(valor);
}

template <class Entero>
Entero GuardarRedondeado(double valor) {
    const double entero = RedondearAPar(valor);
    // Written so that a value that is no number fails too.
    if (!(entero >= std::numeric_limits<Entero>::min() &&
          entero <= std::numeric_limits<Entero>::max()))
        Lanzar(NumeroError::Desbordamiento);
    return static_cast<Entero>(entero);
}

} // namespace

double RedondearAPar(double valor) {
    // Not left to the rounding mode, which belongs to the host's process.
    const double abajo = std::floor(valor);
    const double resto = valor - abajo;
    if (resto < 0.5 || (resto == 0.5 && std::fmod(abajo, 2) == 0))
        return abajo;
    return resto >= 0.5 ? abajo + 1 : valor;
}

double Int(double valor) {
    return std::floor(valor);
}

std::uint8_t AByte(double valor) {
    return GuardarRedondeado<std::uint8_t>(valor);
}
std::int16_t AEntero16(double valor) {
    return GuardarRedondeado<std::int16_t>(valor);
}
std::int32_t AEntero32(double valor) {
    return GuardarRedondeado<std::int32_t>(valor);
}

float AFlotante(double valor) {
    if (!(std::fabs(valor) <= std::numeric_limits<float>::max()))
        Lanzar(NumeroError::Desbordamiento);
    return static_cast<float>(valor);
}

std::int16_t Entero16(std::int64_t valor) {
    return Guardar<std::int16_t>(valor);
}
std::int32_t Entero32(std::int64_t valor) {
    return Guardar<std::int32_t>(valor);
}
std::uint8_t Byte(std::int64_t valor) {
    return Guardar<std::uint8_t>(valor);
}

} // namespace pincela
