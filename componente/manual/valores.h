// Values of properties as the manual writes them.
#pragma once

#include "common/color.h"
#include "common/variante.h"
#include "componente/tipos.h"
#include "plataforma/fuente.h"
#include "plataforma/imagen.h"

#include <string>

namespace pincela::manual {

/// A value of a property of that type: names for members of an enumeration, hexadecimal digits for
/// colours.
std::string Escribir(const Variante& valor, const componente::Tipo& tipo);

/// What a getter gives, as the property bag would carry it.
template <class T>
Variante AVariante(const T& valor) {
    if constexpr (std::is_same_v<T, Color>)
        return valor.valor;
    else if constexpr (std::is_enum_v<T>)
        return static_cast<std::int32_t>(valor);
    else if constexpr (std::is_same_v<T, Fuente> || std::is_same_v<T, Imagen>)
        return ReferenciaObjeto(valor);
    else
        return valor;
}

} // namespace pincela::manual
