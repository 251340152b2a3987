// The automation conversions every control relies on.
//
// Whole numbers round half to even; a value that does not fit raises Desbordamiento, one that has
// no number in it raises TiposNoCoinciden, Nulo raises NuloNoValido.
#pragma once

#include "common/color.h"
#include "common/enumeraciones.h"
#include "common/variante.h"

#include <concepts>
#include <cstdint>
#include <type_traits>

namespace pincela {

/// What the user's locale says of numbers in a text.
struct Regional {
    char16_t decimal = u'.';
    char16_t miles = u',';
    /// Sign of the currency, closed with a zero; a number may bear it.
    char16_t moneda[8] = u"$";
};

using LectorRegional = Regional (*)();

/// The locale in force, asked of the host anew each time: the user may have changed it meanwhile.
Regional RegionalActual();
/// Whom to ask. The host sets it once, before anything is converted; until then a point is decimal.
void PonLectorRegional(LectorRegional lector);

/// Nearest whole number, ties to even, still as a double.
double RedondearAPar(double valor);
/// Int: the whole number at or below, toward minus infinity.
double Int(double valor);

// Checked stores of a number (CByte, CInt, CLng, CSng).
std::uint8_t AByte(double valor);
std::int16_t AEntero16(double valor);
std::int32_t AEntero32(double valor);
float AFlotante(double valor);

// A bare truth value would be taken for the number 1; True is -1 through a Variante.
template <std::same_as<bool> B>
std::uint8_t AByte(B) = delete;
template <std::same_as<bool> B>
std::int16_t AEntero16(B) = delete;
template <std::same_as<bool> B>
std::int32_t AEntero32(B) = delete;
template <std::same_as<bool> B>
float AFlotante(B) = delete;

/// Checked store of a whole number without rounding; the same error when it does not fit.
std::int16_t Entero16(std::int64_t valor);
std::int32_t Entero32(std::int64_t valor);
std::uint8_t Byte(std::int64_t valor);

// Text to number: surrounding blanks are ignored, "&H" and "&O" are accepted, the separators and
// the sign of the currency are those of the locale in force, an exponent is accepted. Thousands
// separators are skipped wherever they stand after the first digit. Whole numbers are rounded by
// all the digits that are written, however many.
double TextoADoble(VistaTexto texto);
std::uint8_t TextoAByte(VistaTexto texto);
/// "&HFFFF" is 65535 here, as the platform's own conversion to 32 bits has it; only eight digits
/// reach the negative numbers.
std::int32_t TextoAEntero32(VistaTexto texto);
/// "&H8000" is the bit pattern of a negative number here, as it is in a 16-bit store.
std::int16_t TextoAEntero16(VistaTexto texto);

/// Leading number of a text, 0 when there is none; always with a point as separator (Val).
double Val(VistaTexto texto);

Texto EnteroATexto(std::int64_t valor);
/// Seven significant digits, decimal separator of the locale in force (CStr of a Single).
Texto FlotanteATexto(float valor);
Texto DobleATexto(double valor);
/// Upper-case hexadecimal of the 32-bit pattern, no leading zeros (Hex$).
Texto Hexadecimal(std::int32_t valor);

// From a value of any type.
bool ABooleano(const Variante& valor);
std::uint8_t AByte(const Variante& valor);
std::int16_t AEntero16(const Variante& valor);
std::int32_t AEntero32(const Variante& valor);
float AFlotante(const Variante& valor);
double ADoble(const Variante& valor);
/// Booleans become "True" and "False".
Texto ATexto(const Variante& valor);
/// From -2147483648 to 4294967295: a system colour may come as the positive number of its pattern.
Color AColor(const Variante& valor);

/// A reference of the wanted class, empty for Nothing; anything else is a type mismatch.
template <class T>
std::shared_ptr<T> AObjeto(const Variante& valor);

/// To an enumeration, without validation.
template <class E>
requires std::is_enum_v<E> E AEnumeracion(const Variante& valor) {
    return static_cast<E>(AEntero32(valor));
}

/// Equality a property bag uses to leave a default out: Empty equals 0, False and ""; numbers by
/// value (a 32-bit float compares after widening both to float); fonts by their attributes.
bool IgualesPorAutomatizacion(const Variante& a, const Variante& b);

[[noreturn]] void LanzarTiposNoCoinciden();

template <class T>
std::shared_ptr<T> AObjeto(const Variante& valor) {
    if (std::holds_alternative<Vacio>(valor))
        return nullptr;
    const auto* referencia = std::get_if<ReferenciaObjeto>(&valor);
    if (!referencia)
        LanzarTiposNoCoinciden();
    if (!*referencia)
        return nullptr;
    auto objeto = std::dynamic_pointer_cast<T>(*referencia);
    if (!objeto)
        LanzarTiposNoCoinciden();
    return objeto;
}

} // namespace pincela
