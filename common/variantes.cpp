// Conversions from a value of any type.
#include "common/conversion.h"
#include "common/errores.h"

#include <limits>
#include <type_traits>

namespace pincela {
namespace {

template <class T>
constexpr bool kEsNumero = std::is_arithmetic_v<T> && !std::is_same_v<T, bool>;

bool TextoABooleano(VistaTexto texto) {
    const Texto llano = Minusculas(texto);
    if (llano == u"true" || llano == u"#true#")
        return true;
    if (llano == u"false" || llano == u"#false#")
        return false;
    return TextoADoble(texto) != 0;
}

/// Number of a value; `deTexto` reads the texts, since that depends on the type wanted.
template <class Numero, class DeNumero, class DeTexto>
Numero Convertir(const Variante& valor, DeNumero deNumero, DeTexto deTexto) {
    return std::visit(
        [&](const auto& v) -> Numero {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, Vacio>)
                return Numero{};
            else if constexpr (std::is_same_v<T, Nulo>)
                Lanzar(NumeroError::NuloNoValido);
            else if constexpr (std::is_same_v<T, Texto>)
                return deTexto(v);
            else if constexpr (std::is_same_v<T, bool>)
                return deNumero(v ? -1.0 : 0.0);
            else if constexpr (kEsNumero<T>)
                return deNumero(static_cast<double>(v));
            else
                LanzarTiposNoCoinciden();
        },
        valor);
}

} // namespace

void LanzarTiposNoCoinciden() {
    Lanzar(NumeroError::TiposNoCoinciden);
}

bool ABooleano(const Variante& valor) {
    return Convertir<bool>(
        valor, [](double v) { return v != 0; }, TextoABooleano);
}

std::uint8_t AByte(const Variante& valor) {
    // True is all bits set in a byte.
    if (const bool* logico = std::get_if<bool>(&valor))
        return *logico ? 255 : 0;
    return Convertir<std::uint8_t>(
        valor, [](double v) { return AByte(v); }, TextoAByte);
}

std::int16_t AEntero16(const Variante& valor) {
    return Convertir<std::int16_t>(
        valor, [](double v) { return AEntero16(v); }, TextoAEntero16);
}

std::int32_t AEntero32(const Variante& valor) {
    return Convertir<std::int32_t>(
        valor, [](double v) { return AEntero32(v); }, TextoAEntero32);
}

Color AColor(const Variante& valor) {
    const double numero = RedondearAPar(ADoble(valor));
    if (numero > std::numeric_limits<std::int32_t>::max() &&
        numero <= std::numeric_limits<std::uint32_t>::max())
        return Color(static_cast<std::uint32_t>(numero));
    return Color(AEntero32(valor));
}

float AFlotante(const Variante& valor) {
    return Convertir<float>(
        valor, [](double v) { return AFlotante(v); },
        [](VistaTexto texto) { return AFlotante(TextoADoble(texto)); });
}

double ADoble(const Variante& valor) {
    return Convertir<double>(
        valor, [](double v) { return v; }, TextoADoble);
}

Texto ATexto(const Variante& valor) {
    return std::visit(
        [](const auto& v) -> Texto {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, Vacio>)
                return {};
            else if constexpr (std::is_same_v<T, Nulo>)
                Lanzar(NumeroError::NuloNoValido);
            else if constexpr (std::is_same_v<T, Texto>)
                return v;
            else if constexpr (std::is_same_v<T, bool>)
                return v ? u"True" : u"False";
            else if constexpr (std::is_same_v<T, float>)
                return FlotanteATexto(v);
            else if constexpr (std::is_same_v<T, double>)
                return DobleATexto(v);
            else if constexpr (kEsNumero<T>)
                return EnteroATexto(v);
            else
                LanzarTiposNoCoinciden();
        },
        valor);
}

} // namespace pincela
