// The words in which a class's table of members is written.
//
// A member is published once, by one line of its class's table: its name, category, help string
// and the C++ member functions behind it. Type library, virtual table, IDispatch and the manual all
// come from that line.
#pragma once

#include "componente/tipos.h"

#include <array>
#include <cstddef>
#include <tuple>
#include <utility>

namespace pincela::componente {

/// Groups of the property browser.
enum class Categoria : std::uint8_t { Ninguna, Apariencia, Datos, Fuente, Comportamiento, Otras };

/// Class, result and parameters of a member function.
template <class F>
struct Firma;
template <class C, class R, class... A>
struct Firma<R (C::*)(A...)> {
    using Clase = C;
    using Resultado = R;
    using Argumentos = std::tuple<A...>;
};
template <class C, class R, class... A>
struct Firma<R (C::*)(A...) const> : Firma<R (C::*)(A...)> {};
template <auto F>
using FirmaDe = Firma<std::remove_cv_t<decltype(F)>>;

/// Objects (fonts and pictures) are assigned by reference: get and putref instead of put.
template <class T>
inline constexpr bool EsObjeto = std::is_same_v<T, Fuente> || std::is_same_v<T, Imagen>;

/// What a property says of itself beside its functions.
struct Rasgos {
    const wchar_t* nombre;
    Categoria categoria;
    const wchar_t* ayuda = nullptr;
    /// A standard identifier instead of the counted one; the count goes on all the same.
    DISPID estandar = DISPID_UNKNOWN;
    WORD banderas = 0;
};

template <auto Leer_, auto Poner_>
struct Propiedad {
    static constexpr auto Leer = Leer_;
    static constexpr auto Poner = Poner_;
    static constexpr bool TieneValor = true;
    static constexpr bool SeEscribe = !std::is_same_v<decltype(Poner_), std::nullptr_t>;
    static constexpr std::size_t Ranuras = SeEscribe ? 2 : 1;
    using Valor = typename FirmaDe<Leer_>::Resultado;
    static constexpr WORD ClaseDePoner =
        EsObjeto<Valor> ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT;
    Rasgos rasgos;
    constexpr bool OcupaNumero() const { return true; }
};

template <auto Leer, auto Poner>
constexpr Propiedad<Leer, Poner> propiedad(Rasgos rasgos) {
    return {rasgos};
}
template <auto Leer>
constexpr Propiedad<Leer, nullptr> soloLectura(Rasgos rasgos) {
    return {rasgos};
}

/// Name of a method's parameter and whether the caller may leave it out.
struct Parametro {
    const wchar_t* nombre;
    bool opcional = false;
    /// Type of the published default value; VT_EMPTY when there is none.
    VARTYPE tipoDefecto = VT_EMPTY;
    long defecto = 0;
};

template <auto Funcion_, std::size_t N>
struct Metodo {
    static constexpr auto Funcion = Funcion_;
    static constexpr bool TieneValor = false;
    static constexpr std::size_t Ranuras = 1;
    static constexpr std::size_t Aridad = N;
    static_assert(std::tuple_size_v<typename FirmaDe<Funcion_>::Argumentos> == N,
                  "each parameter needs its name");
    Rasgos rasgos;
    std::array<Parametro, N> parametros;
    /// True when the method uses up a number of the properties' count.
    bool ocupa = false;
    constexpr bool OcupaNumero() const { return ocupa; }
};

template <auto Funcion, class... P>
constexpr auto metodo(const wchar_t* nombre, DISPID dispid, P... parametros) {
    return Metodo<Funcion, sizeof...(P)>{{nombre, Categoria::Ninguna, nullptr, dispid},
                                         {{Parametro{parametros}...}}};
}
/// A method that stands among the properties and takes one of their numbers out of use.
template <auto Funcion>
constexpr auto metodoEntrePropiedades(const wchar_t* nombre, DISPID dispid) {
    auto m = metodo<Funcion>(nombre, dispid);
    m.ocupa = true;
    return m;
}

/// Arguments of an event, from the type of the field the control raises it through.
template <class E>
struct ArgumentosDeEvento;
template <template <class...> class E, class... A>
struct ArgumentosDeEvento<E<A...>> {
    using Tupla = std::tuple<A...>;
};
template <class T>
struct TipoDelCampo;
template <class C, class E>
struct TipoDelCampo<E C::*> {
    using Tipo = E;
};

template <auto Campo_, std::size_t N>
struct DescripcionEvento {
    static constexpr auto Campo = Campo_;
    using Argumentos = typename ArgumentosDeEvento<
        typename TipoDelCampo<std::remove_cv_t<decltype(Campo_)>>::Tipo>::Tupla;
    static_assert(std::tuple_size_v<Argumentos> == N, "each argument needs its name");
    const wchar_t* nombre;
    std::array<const wchar_t*, N> argumentos;
};

template <auto Campo, class... N>
constexpr DescripcionEvento<Campo, sizeof...(N)> evento(const wchar_t* nombre, N... argumentos) {
    return {nombre, {argumentos...}};
}

inline constexpr DISPID PrimeraPropiedad = 0x68030000;

/// Dispatch identifier of member `I` of a table: a standard one or a method's own, else the number
/// of numbered members declared after it.
template <class Tabla, std::size_t I>
constexpr DISPID DispidDe() {
    constexpr auto& miembro = std::get<I>(Tabla::miembros);
    if constexpr (miembro.rasgos.estandar != DISPID_UNKNOWN)
        return miembro.rasgos.estandar;
    else
        return []<std::size_t... J>(std::index_sequence<J...>) {
            return PrimeraPropiedad +
                   (0 + ... +
                    (std::get<I + 1 + J>(Tabla::miembros).OcupaNumero() ? DISPID{1} : DISPID{0}));
        }
    (std::make_index_sequence<std::tuple_size_v<std::remove_cvref_t<decltype(Tabla::miembros)>> -
                              I - 1>{});
}

/// Calls `f(miembro, constante<I>)` for each member in slot order.
template <class Tabla, class F>
constexpr void ParaCadaMiembro(F&& f) {
    [&]<std::size_t... I>(std::index_sequence<I...>) {
        (f(std::get<I>(Tabla::miembros), std::integral_constant<std::size_t, I>{}), ...);
    }
    (std::make_index_sequence<std::tuple_size_v<std::remove_cvref_t<decltype(Tabla::miembros)>>>{});
}

template <class Tabla, class F>
constexpr void ParaCadaEvento(F&& f) {
    [&]<std::size_t... I>(std::index_sequence<I...>) {
        (f(std::get<I>(Tabla::eventos), std::integral_constant<std::size_t, I>{}), ...);
    }
    (std::make_index_sequence<std::tuple_size_v<std::remove_cvref_t<decltype(Tabla::eventos)>>>{});
}

} // namespace pincela::componente
