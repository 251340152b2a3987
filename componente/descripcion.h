// A table of members laid flat: one entry for each slot, for whoever reads tables at run time.
#pragma once

#include "componente/tabla.h"

#include <vector>

namespace pincela::componente {

struct DescripcionParametro {
    Parametro parametro;
    Tipo tipo;
};

struct DescripcionRanura {
    Rasgos rasgos;
    INVOKEKIND clase;
    Tipo resultado; // VT_VOID when there is none
    std::vector<DescripcionParametro> parametros;
};

struct DescripcionDeEvento {
    const wchar_t* nombre;
    DISPID dispid;
    std::vector<DescripcionParametro> parametros;
};

namespace detalle {
template <class Miembro>
void DescribirPropiedad(const Miembro& miembro, std::vector<DescripcionRanura>& r) {
    r.push_back({miembro.rasgos, INVOKE_PROPERTYGET, TipoDe<typename Miembro::Valor>(), {}});
    if constexpr (Miembro::SeEscribe) {
        using Argumento = std::tuple_element_t<0, typename FirmaDe<Miembro::Poner>::Argumentos>;
        r.push_back({miembro.rasgos,
                     static_cast<INVOKEKIND>(Miembro::ClaseDePoner),
                     {},
                     {{Parametro{nullptr}, TipoDe<Argumento>()}}});
    }
}

template <class Miembro>
void DescribirMetodo(const Miembro& miembro, std::vector<DescripcionRanura>& r) {
    using F = FirmaDe<Miembro::Funcion>;
    DescripcionRanura ranura{miembro.rasgos, INVOKE_FUNC, TipoDe<typename F::Resultado>(), {}};
    [&]<std::size_t... I>(std::index_sequence<I...>) {
        (ranura.parametros.push_back(
             {miembro.parametros[I], TipoDe<std::tuple_element_t<I, typename F::Argumentos>>()}),
         ...);
    }
    (std::make_index_sequence<Miembro::Aridad>{});
    r.push_back(std::move(ranura));
}
} // namespace detalle

/// Slots of the default interface after the seven inherited ones, in order.
template <class Tabla>
std::vector<DescripcionRanura> DescribirRanuras() {
    std::vector<DescripcionRanura> ranuras;
    ParaCadaMiembro<Tabla>(
        [&]<class M, std::size_t I>(const M& miembro, std::integral_constant<std::size_t, I>) {
            if constexpr (M::TieneValor)
                detalle::DescribirPropiedad(miembro, ranuras);
            else
                detalle::DescribirMetodo(miembro, ranuras);
        });
    return ranuras;
}

template <class Tabla>
std::vector<DescripcionDeEvento> DescribirEventos() {
    std::vector<DescripcionDeEvento> eventos;
    ParaCadaEvento<Tabla>(
        [&]<class E, std::size_t I>(const E& evento, std::integral_constant<std::size_t, I>) {
            DescripcionDeEvento descripcion{evento.nombre, evento.dispid, {}};
            [&]<std::size_t... J>(std::index_sequence<J...>) {
                (descripcion.parametros.push_back(
                     {Parametro{evento.argumentos[J]},
                      TipoDe<std::tuple_element_t<J, typename E::Argumentos>&>()}),
                 ...);
            }
            (std::make_index_sequence<std::tuple_size_v<typename E::Argumentos>>{});
            eventos.push_back(std::move(descripcion));
        });
    return eventos;
}

} // namespace pincela::componente
