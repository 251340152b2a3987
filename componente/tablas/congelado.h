// What has been published of the tables, and may never move: compiled containers call by slot,
// late-bound ones by identifier, and both outlive every version.
//
// A new member is appended: its line goes to the end of its table, with an identifier that no other
// line has borne, and the identifier to the end of its list here.
#pragma once

#include "componente/clases.h"

namespace pincela::componente {

/// Whether the members of `Tabla` bear the identifiers of `lista`, slot by slot.
template <class Tabla, std::size_t N>
constexpr bool Conserva(const DISPID (&lista)[N]) {
    if (std::tuple_size_v<std::remove_cvref_t<decltype(Tabla::miembros)>> != N)
        return false;
    bool iguales = true;
    std::apply(
        [&](const auto&... miembro) {
            std::size_t i = 0;
            ((iguales = iguales && miembro.rasgos.dispid == lista[i++]), ...);
        },
        Tabla::miembros);
    for (std::size_t i = 0; i < N; ++i)
        for (std::size_t j = i + 1; j < N; ++j)
            iguales = iguales && lista[i] != lista[j];
    return iguales;
}

/// Whether the events of `Tabla` are numbered from 1 to `cuantos`.
template <class Tabla>
constexpr bool ConservaEventos(DISPID cuantos) {
    DISPID numero = 0;
    bool seguidos = true;
    std::apply(
        [&](const auto&... evento) { ((seguidos = seguidos && evento.dispid == ++numero), ...); },
        Tabla::eventos);
    return seguidos && numero == cuantos;
}

namespace congelado {
inline constexpr DISPID DeEfectos[] = {0x60030000, 0x60030001, 0x60030002, 0x60030003, 0x60030004};
inline constexpr DISPID DeProPColores[] = {0x6003000D, 0x6003000E, 0x6003000F};
inline constexpr DISPID DeTBoxML[] = {
    0x6003001C,   0x60030022, 0x6803001C, 0x6803001B, 0x6803001A, 0x68030019, 0x68030018,
    DISPID_VALUE, 0x68030016, 0x68030015, 0x68030014, 0x68030013, 0x68030012, 0x68030011,
    0x68030010,   0x6803000F, 0x6803000E, 0x6803000D, 0x6803000C, 0x6803000B, 0x6803000A,
    0x68030009,   0x68030008, 0x68030007, 0x68030006, 0x68030005, 0x68030004, 0x68030003,
    0x68030002,   0x68030001, 0x68030000};
inline constexpr DISPID DeBotonazo[] = {
    0x6803001B, 0x6803001A, DISPID_CAPTION, 0x68030018, DISPID_FONT, 0x68030016, 0x68030015,
    0x68030014, 0x68030013, 0x68030012,     0x68030011, 0x68030010,  0x6803000F, 0x6803000E,
    0x6803000D, 0x6803000C, 0x6803000B,     0x6803000A, 0x68030009,  0x6003003B, 0x68030007,
    0x68030006, 0x68030005, 0x68030004,     0x68030003, 0x68030002,  0x68030001, 0x68030000};
inline constexpr DISPID DeTboxSS[] = {
    0x6003001C, 0x6803001C, 0x6803001B, 0x6803001A, DISPID_VALUE, 0x68030018, 0x68030017,
    0x68030016, 0x68030015, 0x68030014, 0x68030013, 0x68030012,   0x68030011, 0x68030010,
    0x6803000F, 0x6803000E, 0x6803000D, 0x6003002A, 0x6803000C,   0x6803000B, 0x6803000A,
    0x68030009, 0x68030008, 0x68030007, 0x68030006, 0x68030005,   0x68030004, 0x68030003,
    0x68030002, 0x68030001, 0x68030000};
inline constexpr DISPID DeTbox[] = {
    0x6003001C, 0x6803001C, 0x6803001B, 0x6803001A, 0x68030019, DISPID_VALUE, 0x68030017,
    0x68030016, 0x68030015, 0x68030014, 0x68030013, 0x68030012, 0x68030011,   0x68030010,
    0x6803000F, 0x6803000E, 0x6803000D, 0x6803000C, 0x6003002C, 0x6803000B,   0x6803000A,
    0x68030009, 0x68030008, 0x68030007, 0x68030006, 0x68030005, 0x68030004,   0x68030003,
    0x68030002, 0x68030001, 0x68030000};
inline constexpr DISPID DeArea[] = {0x6803000F, 0x6803000E, 0x6803000D, 0x6803000C, 0x6803000B,
                                    0x6803000A, 0x68030009, 0x68030008, 0x68030007, 0x68030006,
                                    0x68030005, 0x68030004, 0x68030003, 0x60030022, 0x68030002,
                                    0x68030001, 0x68030000};
inline constexpr DISPID DeProPColoresArea[] = {0x60030010, 0x60030011, 0x60030012};
} // namespace congelado

static_assert(Conserva<TablaEfectos>(congelado::DeEfectos));
static_assert(Conserva<TablaProPColores>(congelado::DeProPColores));
static_assert(Conserva<TablaTBoxML>(congelado::DeTBoxML));
static_assert(Conserva<TablaBotonazo>(congelado::DeBotonazo));
static_assert(Conserva<TablaTboxSS>(congelado::DeTboxSS));
static_assert(Conserva<TablaTbox>(congelado::DeTbox));
static_assert(Conserva<TablaArea>(congelado::DeArea));
static_assert(Conserva<TablaProPColoresArea>(congelado::DeProPColoresArea));
static_assert(Conserva<TablaTboxSSML>(congelado::DeTboxSS));

static_assert(ConservaEventos<TablaTBoxML>(12));
static_assert(ConservaEventos<TablaBotonazo>(11));
static_assert(ConservaEventos<TablaTboxSSML>(12));
static_assert(ConservaEventos<TablaTbox>(12));
static_assert(ConservaEventos<TablaTboxSS>(12));
static_assert(ConservaEventos<TablaArea>(10));

} // namespace pincela::componente
