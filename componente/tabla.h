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

/// What a member says of itself beside its functions. The identifier is published: containers keep
/// it in compiled forms, so it stays as it is for ever.
struct Rasgos {
    DISPID dispid;
    const wchar_t* nombre;
    Categoria categoria;
    const wchar_t* ayuda = nullptr;
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
};

template <auto Funcion, class... P>
constexpr auto metodo(DISPID dispid, const wchar_t* nombre, P... parametros) {
    return Metodo<Funcion, sizeof...(P)>{{dispid, nombre, Categoria::Ninguna},
                                         {{Parametro{parametros}...}}};
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
    DISPID dispid;
    const wchar_t* nombre;
    std::array<const wchar_t*, N> argumentos;
};

template <auto Campo, class... N>
constexpr DescripcionEvento<Campo, sizeof...(N)> evento(DISPID dispid, const wchar_t* nombre,
                                                        N... argumentos) {
    return {dispid, nombre, {argumentos...}};
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
