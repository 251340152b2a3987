// How each C++ type crosses the binary boundary.
#pragma once

#include "componente/tipos.h"
#include "componente/variantes.h"
#include "plataforma/windows/objetos_windows.h"

#include <olectl.h>

namespace pincela::componente {

/// `Tipo` is what the virtual table carries. Entrar makes the core's value, Salir gives the core's
/// value to the caller, DeVariante converts by the automation rules.
template <class T>
struct Abi;

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
    static bool DeVariante(const Variante& v) { return ABooleano(v); }
    static Variante AVariante(bool v) { return v; }
};
template <>
struct Abi<std::uint8_t> : AbiNumero<std::uint8_t, BYTE> {
    static std::uint8_t DeVariante(const Variante& v) { return AByte(v); }
    static Variante AVariante(std::uint8_t v) { return v; }
};
template <>
struct Abi<std::int16_t> : AbiNumero<std::int16_t, SHORT> {
    static std::int16_t DeVariante(const Variante& v) { return AEntero16(v); }
    static Variante AVariante(std::int16_t v) { return v; }
};
template <>
struct Abi<std::int32_t> : AbiNumero<std::int32_t, LONG> {
    static std::int32_t DeVariante(const Variante& v) { return AEntero32(v); }
    static Variante AVariante(std::int32_t v) { return v; }
};
template <>
struct Abi<float> : AbiNumero<float, FLOAT> {
    static float DeVariante(const Variante& v) { return AFlotante(v); }
    static Variante AVariante(float v) { return v; }
};
template <class E>
requires std::is_enum_v<E>
struct Abi<E> : AbiNumero<E, LONG> {
    static E DeVariante(const Variante& v) { return AEnumeracion<E>(v); }
    static Variante AVariante(E v) { return static_cast<std::int32_t>(v); }
};
template <>
struct Abi<Color> {
    using Tipo = OLE_COLOR;
    static Color Entrar(OLE_COLOR v) { return Color(static_cast<std::uint32_t>(v)); }
    static OLE_COLOR Salir(Color v) { return static_cast<OLE_COLOR>(v.valor); }
    static Color DeVariante(const Variante& v) { return AColor(v); }
    static Variante AVariante(Color v) { return v.valor; }
};
template <>
struct Abi<Texto> {
    using Tipo = BSTR;
    static Texto Entrar(BSTR v) { return DesdeBstr(v); }
    static BSTR Salir(const Texto& v) { return HaciaBstr(v); }
    static Texto DeVariante(const Variante& v) { return ATexto(v); }
    static Variante AVariante(Texto v) { return v; }
};
/// A text that is only read during the call is not copied.
template <>
struct Abi<VistaTexto> {
    using Tipo = BSTR;
    static VistaTexto Entrar(BSTR v) {
        return {reinterpret_cast<const char16_t*>(v), SysStringLen(v)};
    }
    static Texto DeVariante(const Variante& v) { return ATexto(v); }
};
template <>
struct Abi<Fuente> {
    using Tipo = IFontDisp*;
    static Fuente Entrar(IFontDisp* v) { return windows::EnvolverFuente(v); }
    static IFontDisp* Salir(const Fuente& v) { return windows::DesenvolverFuente(v); }
    static Fuente DeVariante(const Variante& v) { return AObjeto<ObjetoFuente>(v); }
    static Variante AVariante(const Fuente& v) { return ReferenciaObjeto(v); }
};
template <>
struct Abi<Imagen> {
    using Tipo = IPictureDisp*;
    static Imagen Entrar(IPictureDisp* v) { return windows::EnvolverImagen(v); }
    static IPictureDisp* Salir(const Imagen& v) { return windows::DesenvolverImagen(v); }
    static Imagen DeVariante(const Variante& v) { return AObjeto<ObjetoImagen>(v); }
    static Variante AVariante(const Imagen& v) { return ReferenciaObjeto(v); }
};
template <>
struct Abi<ReferenciaObjeto> {
    using Tipo = IDispatch*;
    static ReferenciaObjeto Entrar(IDispatch* v) { return DesdeObjeto(v); }
    static ReferenciaObjeto DeVariante(const Variante& v) { return AObjeto<Objeto>(v); }
};
template <>
struct Abi<Variante> {
    using Tipo = VARIANT;
    static Variante Entrar(const VARIANT& v) { return DesdeVariant(v); }
    static VARIANT Salir(const Variante& v) {
        VARIANT r;
        HaciaVariant(v, &r);
        return r;
    }
    static Variante DeVariante(const Variante& v) { return v; }
    static Variante AVariante(const Variante& v) { return v; }
};
template <>
struct Abi<tRectRedo> {
    using Tipo = tRectRedo;
    static const tRectRedo& Entrar(const tRectRedo& v) { return v; }
    /// Late-bound callers have no way to pass the record by value.
    static tRectRedo DeVariante(const Variante&) { Lanzar(NumeroError::TiposNoCoinciden); }
};

/// A parameter as the virtual table carries it: by reference it is a pointer.
template <class P>
using ParametroAbi =
    std::conditional_t<std::is_reference_v<P>, typename Abi<std::remove_cvref_t<P>>::Tipo*,
                       typename Abi<std::remove_cvref_t<P>>::Tipo>;

template <class P>
bool EsPunteroNulo(ParametroAbi<P> v) {
    if constexpr (std::is_reference_v<P>)
        return v == nullptr;
    else
        return (void)v, false;
}

template <class P>
auto EntrarParametro(ParametroAbi<P> v) {
    if constexpr (std::is_reference_v<P>)
        return Abi<std::remove_cvref_t<P>>::Entrar(*v);
    else
        return Abi<std::remove_cvref_t<P>>::Entrar(v);
}

} // namespace pincela::componente
