// Automation types derived from C++ types.
#pragma once

#include "common/color.h"
#include "common/enumeraciones.h"
#include "common/texto.h"
#include "common/variante.h"
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

/// Which enumeration, in the order of the type library.
enum class CualEnumeracion : std::uint8_t {
    TBack,
    TText,
    TSombra,
    Tamanio,
    EfectosBoton,
    TLetra,
    TEstilos,
    TEstilosR,
    ColoresRGB,
    TEstilosB,
    Alineaciones,
    Ninguna
};

struct Tipo {
    VARTYPE vt = VT_VOID;
    Familia familia = Familia::Simple;
    CualEnumeracion enumeracion = CualEnumeracion::Ninguna;
    bool porReferencia = false;
};

template <class T>
constexpr CualEnumeracion CualEs() {
    using enum CualEnumeracion;
    if constexpr (std::is_same_v<T, pincela::TBack>)
        return TBack;
    else if constexpr (std::is_same_v<T, pincela::TText>)
        return TText;
    else if constexpr (std::is_same_v<T, pincela::TSombra>)
        return TSombra;
    else if constexpr (std::is_same_v<T, pincela::Tamanio>)
        return Tamanio;
    else if constexpr (std::is_same_v<T, pincela::EfectosBoton>)
        return EfectosBoton;
    else if constexpr (std::is_same_v<T, pincela::TLetra>)
        return TLetra;
    else if constexpr (std::is_same_v<T, pincela::TEstilos>)
        return TEstilos;
    else if constexpr (std::is_same_v<T, pincela::TEstilosR>)
        return TEstilosR;
    else if constexpr (std::is_same_v<T, pincela::ColoresRGB>)
        return ColoresRGB;
    else if constexpr (std::is_same_v<T, pincela::TEstilosB>)
        return TEstilosB;
    else
        return Alineaciones;
}

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
        return {VT_I4, Familia::Enumeracion, CualEs<T>()};
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
