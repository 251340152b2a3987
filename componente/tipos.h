// Automation types derived from C++ types.
#pragma once

#include "common/color.h"
#include "common/texto.h"
#include "common/variante.h"
#include "componente/tablas/enumeraciones.h"
#include "plataforma/fuente.h"
#include "plataforma/imagen.h"

#include <windows.h>

#include <oaidl.h>

#include <type_traits>

namespace pincela::componente {

/// What the type library says of a parameter or result.
enum class Familia : std::uint8_t {
    Simple,
    Enumeracion,
    Registro,
    ColorOle,
    ObjetoFuente,
    ObjetoImagen
};

struct Tipo {
    VARTYPE vt = VT_VOID;
    Familia familia = Familia::Simple;
    const Enumeracion* enumeracion = nullptr; // of that family
    bool porReferencia = false;
};

template <class T>
constexpr Tipo TipoDeValor() {
    if constexpr (std::is_void_v<T>)
        return {VT_VOID};
    else if constexpr (std::is_same_v<T, bool>)
        return {VT_BOOL};
    else if constexpr (std::is_same_v<T, std::uint8_t>)
        return {VT_UI1};
    else if constexpr (std::is_same_v<T, std::int16_t>)
        return {VT_I2};
    else if constexpr (std::is_same_v<T, std::int32_t>)
        return {VT_I4};
    else if constexpr (std::is_same_v<T, float>)
        return {VT_R4};
    else if constexpr (std::is_same_v<T, Texto> || std::is_same_v<T, VistaTexto>)
        return {VT_BSTR};
    else if constexpr (std::is_same_v<T, Variante>)
        return {VT_VARIANT};
    else if constexpr (std::is_same_v<T, ReferenciaObjeto>)
        return {VT_DISPATCH};
    else if constexpr (std::is_same_v<T, Color>)
        return {VT_I4, Familia::ColorOle};
    else if constexpr (std::is_same_v<T, Fuente>)
        return {VT_DISPATCH, Familia::ObjetoFuente};
    else if constexpr (std::is_same_v<T, Imagen>)
        return {VT_DISPATCH, Familia::ObjetoImagen};
    else if constexpr (std::is_same_v<T, tRectRedo>)
        return {VT_RECORD, Familia::Registro};
    else {
        static_assert(std::is_enum_v<T>, "no automation type for this C++ type");
        static_assert(Enumeraciones::Contiene<T>, "the type library does not publish it");
        return {VT_I4, Familia::Enumeracion, &EnumeracionDe<T>::datos};
    }
}

/// A parameter declared by reference is published by reference; one declared by value, by value.
template <class T>
constexpr Tipo TipoDe() {
    Tipo tipo = TipoDeValor<std::remove_cvref_t<T>>();
    tipo.porReferencia = std::is_reference_v<T>;
    return tipo;
}

} // namespace pincela::componente
