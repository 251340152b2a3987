// How each C++ type crosses the binary boundary.
#pragma once

#include "componente/tabla.h"
#include "componente/variantes.h"
#include "plataforma/windows/objetos_windows.h"

#include <olectl.h>

namespace pincela::componente {

/// `Tipo` is what the virtual table carries. Entrar makes the core's value, Salir gives the core's
/// value to the caller, DeVariant makes it of a late-bound argument by the automation rules.
template <class T>
struct Abi;

/// An object or Nothing; Empty is neither.
template <class T>
std::shared_ptr<T> ObjetoTardio(const VARIANT& v) {
    const Variante valor = DesdeVariant(v);
    if (std::holds_alternative<Vacio>(valor))
        LanzarTiposNoCoinciden();
    return AObjeto<T>(valor);
}

template <class T, class N>
struct AbiNumero {
    using Tipo = N;
    static T Entrar(N v) { return static_cast<T>(v); }
    static N Salir(T v) { return static_cast<N>(v); }
};

template <>
struct Abi<bool> {
    using Tipo = VARIANT_BOOL;
    static bool Entrar(VARIANT_BOOL v) { return v != VARIANT_FALSE; }
    static VARIANT_BOOL Salir(bool v) { return HaciaBool(v); }
    static bool DeVariant(const VARIANT& v) { return Entrar(NumeroTardio(v, VT_BOOL).boolVal); }
    static Variante AVariante(bool v) { return v; }
};
template <>
struct Abi<std::uint8_t> : AbiNumero<std::uint8_t, BYTE> {
    static std::uint8_t DeVariant(const VARIANT& v) { return NumeroTardio(v, VT_UI1).bVal; }
    static Variante AVariante(std::uint8_t v) { return v; }
};
template <>
struct Abi<std::int16_t> : AbiNumero<std::int16_t, SHORT> {
    static std::int16_t DeVariant(const VARIANT& v) { return NumeroTardio(v, VT_I2).iVal; }
    static Variante AVariante(std::int16_t v) { return v; }
};
template <>
struct Abi<std::int32_t> : AbiNumero<std::int32_t, LONG> {
    static std::int32_t DeVariant(const VARIANT& v) { return NumeroTardio(v, VT_I4).lVal; }
    static Variante AVariante(std::int32_t v) { return v; }
};
template <>
struct Abi<float> : AbiNumero<float, FLOAT> {
    static float DeVariant(const VARIANT& v) { return NumeroTardio(v, VT_R4).fltVal; }
    static Variante AVariante(float v) { return v; }
};
template <class E>
requires std::is_enum_v<E>
struct Abi<E> : AbiNumero<E, LONG> {
    static E DeVariant(const VARIANT& v) { return static_cast<E>(NumeroTardio(v, VT_I4).lVal); }
    static Variante AVariante(E v) { return static_cast<std::int32_t>(v); }
};
template <>
struct Abi<Color> {
    using Tipo = OLE_COLOR;
    static Color Entrar(OLE_COLOR v) { return Color(static_cast<std::uint32_t>(v)); }
    static OLE_COLOR Salir(Color v) { return static_cast<OLE_COLOR>(v.valor); }
    static Color DeVariant(const VARIANT& v) { return ColorTardio(v); }
    static Variante AVariante(Color v) { return v.valor; }
};
template <>
struct Abi<Texto> {
    using Tipo = BSTR;
    static Texto Entrar(BSTR v) { return DesdeBstr(v); }
    static BSTR Salir(const Texto& v) { return HaciaBstr(v); }
    static Texto DeVariant(const VARIANT& v) { return TextoTardio(v); }
    static Variante AVariante(Texto v) { return v; }
};
/// A text that is only read during the call is not copied.
template <>
struct Abi<VistaTexto> {
    using Tipo = BSTR;
    static VistaTexto Entrar(BSTR v) {
        return {reinterpret_cast<const char16_t*>(v), SysStringLen(v)};
    }
    static Texto DeVariant(const VARIANT& v) { return TextoTardio(v); }
};
template <>
struct Abi<Fuente> {
    using Tipo = IFontDisp*;
    static Fuente Entrar(IFontDisp* v) { return windows::EnvolverFuente(v); }
    static IFontDisp* Salir(const Fuente& v) { return windows::DesenvolverFuente(v); }
    static Fuente DeVariant(const VARIANT& v) { return ObjetoTardio<ObjetoFuente>(v); }
    static Variante AVariante(const Fuente& v) { return ReferenciaObjeto(v); }
};
template <>
struct Abi<Imagen> {
    using Tipo = IPictureDisp*;
    static Imagen Entrar(IPictureDisp* v) { return windows::EnvolverImagen(v); }
    static IPictureDisp* Salir(const Imagen& v) { return windows::DesenvolverImagen(v); }
    static Imagen DeVariant(const VARIANT& v) { return ObjetoTardio<ObjetoImagen>(v); }
    static Variante AVariante(const Imagen& v) { return ReferenciaObjeto(v); }
};
template <>
struct Abi<ReferenciaObjeto> {
    using Tipo = IDispatch*;
    static ReferenciaObjeto Entrar(IDispatch* v) { return DesdeObjeto(v); }
    static ReferenciaObjeto DeVariant(const VARIANT& v) { return ObjetoTardio<Objeto>(v); }
};
template <>
struct Abi<Variante> {
    using Tipo = VARIANT;
    static Variante Entrar(const VARIANT& v) { return ValorTardioDe(v); }
    static VARIANT Salir(const Variante& v) {
        VARIANT r;
        HaciaVariant(v, &r);
        return r;
    }
    static Variante DeVariant(const VARIANT& v) { return ValorTardioDe(v); }
    static Variante AVariante(const Variante& v) { return v; }
};
template <>
struct Abi<tRectRedo> {
    using Tipo = tRectRedo;
    static const tRectRedo& Entrar(const tRectRedo& v) { return v; }
    /// Late-bound callers have no way to pass the record by value.
    static tRectRedo DeVariant(const VARIANT&) { Lanzar(NumeroError::TiposNoCoinciden); }
};

/// A parameter as the virtual table carries it: by reference it is a pointer.
template <class P>
using ParametroAbi =
    std::conditional_t<std::is_reference_v<P>, typename Abi<std::remove_cvref_t<P>>::Tipo*,
                       typename Abi<std::remove_cvref_t<P>>::Tipo>;

/// What a parameter that was left out is worth.
inline VARIANT PorDefecto(const Parametro& parametro) {
    VARIANT v;
    VariantInit(&v);
    V_VT(&v) = parametro.tipoDefecto == VT_BOOL ? VT_BOOL : VT_I4;
    if (V_VT(&v) == VT_BOOL)
        V_BOOL(&v) = HaciaBool(parametro.defecto != 0);
    else
        V_I4(&v) = parametro.defecto;
    return v;
}

/// A null pointer where a value is needed.
template <class P>
bool EsPunteroNulo(ParametroAbi<P> v, const Parametro& parametro) {
    if constexpr (std::is_reference_v<P>)
        return !v && !parametro.opcional;
    else
        return (void)v, (void)parametro, false;
}

template <class P>
auto EntrarParametro(ParametroAbi<P> v, const Parametro& parametro) {
    using T = std::remove_cvref_t<P>;
    if constexpr (std::is_reference_v<P>)
        return v ? Abi<T>::Entrar(*v) : Abi<T>::DeVariant(PorDefecto(parametro));
    else
        return (void)parametro, Abi<T>::Entrar(v);
}

} // namespace pincela::componente
