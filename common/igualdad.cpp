// Equality of two values of any type.
#include "common/conversion.h"
#include "common/errores.h"

#include <cmath>
#include <limits>
#include <optional>

namespace pincela {
namespace {

/// The number a value stands for when it is a number or a truth value.
std::optional<double> NumeroDe(const Variante& valor) {
    if (std::holds_alternative<Vacio>(valor) || std::holds_alternative<Nulo>(valor) ||
        std::holds_alternative<Falta>(valor) || std::holds_alternative<Texto>(valor) ||
        std::holds_alternative<ReferenciaObjeto>(valor))
        return std::nullopt;
    return ADoble(valor);
}

bool CabeEnFlotante(double valor) {
    return std::fabs(valor) <= std::numeric_limits<float>::max();
}

bool NumerosIguales(const Variante& a, const Variante& b) {
    const double x = *NumeroDe(a), y = *NumeroDe(b);
    const bool hayFlotante = std::holds_alternative<float>(a) || std::holds_alternative<float>(b);
    if (hayFlotante && CabeEnFlotante(x) && CabeEnFlotante(y))
        return static_cast<float>(x) == static_cast<float>(y);
    return x == y;
}

bool TextoIgualA(const Texto& texto, const Variante& numero) {
    try {
        // A truth value also meets its own name.
        if (std::holds_alternative<bool>(numero) && !texto.empty() &&
            (Mayuscula(texto.front()) == u'T' || Mayuscula(texto.front()) == u'F'))
            return ABooleano(texto) == std::get<bool>(numero);
        return NumerosIguales(TextoADoble(texto), numero);
    } catch (const ErrorEjecucion&) {
        return false; // no number, so not that number
    }
}

bool VacioIgualA(const Variante& otro) {
    if (const auto* texto = std::get_if<Texto>(&otro))
        return texto->empty();
    if (const auto* referencia = std::get_if<ReferenciaObjeto>(&otro))
        return !*referencia;
    const auto numero = NumeroDe(otro);
    return std::holds_alternative<Vacio>(otro) || (numero && *numero == 0);
}

bool ReferenciasIguales(const ReferenciaObjeto& a, const ReferenciaObjeto& b) {
    if (!a || !b)
        return !a && !b;
    return a->EsIgual(*b);
}

} // namespace

bool IgualesPorAutomatizacion(const Variante& a, const Variante& b) {
    if (std::holds_alternative<Vacio>(a))
        return VacioIgualA(b);
    if (std::holds_alternative<Vacio>(b))
        return VacioIgualA(a);
    if (std::holds_alternative<Falta>(a) || std::holds_alternative<Falta>(b))
        return a.index() == b.index();

    const auto* textoA = std::get_if<Texto>(&a);
    const auto* textoB = std::get_if<Texto>(&b);
    if (textoA && textoB)
        return *textoA == *textoB;
    const auto* referenciaA = std::get_if<ReferenciaObjeto>(&a);
    const auto* referenciaB = std::get_if<ReferenciaObjeto>(&b);
    if (referenciaA && referenciaB)
        return ReferenciasIguales(*referenciaA, *referenciaB);

    // Null equals nothing, itself included; a reference equals no plain value.
    const bool numericoA = NumeroDe(a).has_value(), numericoB = NumeroDe(b).has_value();
    if (numericoA && numericoB)
        return NumerosIguales(a, b);
    if (textoA && numericoB)
        return TextoIgualA(*textoA, b);
    if (textoB && numericoA)
        return TextoIgualA(*textoB, a);
    return false;
}

} // namespace pincela
