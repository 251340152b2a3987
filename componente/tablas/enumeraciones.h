// The published enumerations and the record. A member's help string is its own name.
#pragma once

#include "common/enumeraciones.h"
#include "componente/guid.h"

#include <span>
#include <type_traits>

namespace pincela::componente {

struct MiembroEnumeracion {
    const wchar_t* nombre;
    long valor;
};

struct Enumeracion {
    const wchar_t* nombre;
    GUID guid;
    std::span<const MiembroEnumeracion> miembros;
};

/// What is published of enumeration `E`, as `datos`. An enumeration without one can't be the type
/// of a member: it does not compile.
template <class E>
struct EnumeracionDe;

namespace detalle {
template <class E>
constexpr MiembroEnumeracion m(const wchar_t* nombre, E valor) {
    return {nombre, static_cast<long>(valor)};
}
} // namespace detalle

template <>
struct EnumeracionDe<TBack> {
    static constexpr MiembroEnumeracion miembros[] = {
        detalle::m(L"Opaco", TBack::Opaco), detalle::m(L"Transparente", TBack::Transparente)};
    static constexpr Enumeracion datos{L"TBack", "{0DE26D32-590F-49AC-A55A-B0B78E8EFA80}"_guid,
                                       miembros};
};

template <>
struct EnumeracionDe<TText> {
    static constexpr MiembroEnumeracion miembros[] = {
        detalle::m(L"TextNorm", TText::TextNorm), detalle::m(L"Mayuscula", TText::Mayuscula),
        detalle::m(L"NumericoEnt", TText::NumericoEnt),
        detalle::m(L"NumericoDes", TText::NumericoDes)};
    static constexpr Enumeracion datos{L"TText", "{6EFB45C1-8EDB-41CE-BD60-AD525F49F788}"_guid,
                                       miembros};
};

template <>
struct EnumeracionDe<TSombra> {
    static constexpr MiembroEnumeracion miembros[] = {
        detalle::m(L"Negra", TSombra::Negra), detalle::m(L"Gris", TSombra::Gris),
        detalle::m(L"Blanca", TSombra::Blanca), detalle::m(L"Invertida", TSombra::Invertida)};
    static constexpr Enumeracion datos{L"TSombra", "{AA00A1DF-7578-4CBD-B948-6711011B43BD}"_guid,
                                       miembros};
};

template <>
struct EnumeracionDe<Tamanio> {
    static constexpr MiembroEnumeracion miembros[] = {detalle::m(L"Chico", Tamanio::Chico),
                                                      detalle::m(L"Mediano", Tamanio::Mediano),
                                                      detalle::m(L"Grande", Tamanio::Grande)};
    static constexpr Enumeracion datos{L"Tamanio", "{C37B02BB-CF4E-482D-A9B1-1D2B539B48D3}"_guid,
                                       miembros};
};

template <>
struct EnumeracionDe<EfectosBoton> {
    static constexpr MiembroEnumeracion miembros[] = {
        detalle::m(L"boton", EfectosBoton::boton),
        detalle::m(L"BotOculoSobre", EfectosBoton::BotOculoSobre),
        detalle::m(L"BotVisibSobre", EfectosBoton::BotVisibSobre)};
    static constexpr Enumeracion datos{L"EfectosBoton",
                                       "{0D37A4A8-6E17-4CB0-B796-6E4B3F1DD269}"_guid, miembros};
};

template <>
struct EnumeracionDe<TLetra> {
    static constexpr MiembroEnumeracion miembros[] = {
        detalle::m(L"Normal", TLetra::Normal), detalle::m(L"Levantada", TLetra::Levantada),
        detalle::m(L"Undida", TLetra::Undida), detalle::m(L"InvesoL", TLetra::InvesoL),
        detalle::m(L"InvesoU", TLetra::InvesoU)};
    static constexpr Enumeracion datos{L"TLetra", "{540D5CFF-1FCC-43A5-9A6C-6573DD3C6CB1}"_guid,
                                       miembros};
};

template <>
struct EnumeracionDe<TEstilos> {
    static constexpr MiembroEnumeracion miembros[] = {
        detalle::m(L"CLASICO", TEstilos::CLASICO), detalle::m(L"REDONDEADO", TEstilos::REDONDEADO)};
    static constexpr Enumeracion datos{L"TEstilos", "{3FC65C1D-E6D6-40E8-8070-0BC47EFB4511}"_guid,
                                       miembros};
};

template <>
struct EnumeracionDe<TEstilosR> {
    static constexpr MiembroEnumeracion miembros[] = {
        detalle::m(L"Solido", TEstilosR::Solido), detalle::m(L"D_Hori", TEstilosR::D_Hori),
        detalle::m(L"D_Vert", TEstilosR::D_Vert), detalle::m(L"D_Pirami", TEstilosR::D_Pirami),
        detalle::m(L"D_Diagonal", TEstilosR::D_Diagonal)};
    static constexpr Enumeracion datos{L"TEstilosR", "{3FC7A711-2270-4B53-B99C-D59912B1B5DE}"_guid,
                                       miembros};
};

template <>
struct EnumeracionDe<ColoresRGB> {
    static constexpr MiembroEnumeracion miembros[] = {detalle::m(L"Rojo", ColoresRGB::Rojo),
                                                      detalle::m(L"Verde", ColoresRGB::Verde),
                                                      detalle::m(L"Azul", ColoresRGB::Azul)};
    static constexpr Enumeracion datos{L"ColoresRGB", "{A7C2C96C-0ECF-46A7-9A64-D7526073EAF7}"_guid,
                                       miembros};
};

template <>
struct EnumeracionDe<TEstilosB> {
    static constexpr MiembroEnumeracion miembros[] = {
        detalle::m(L"Ninguno", TEstilosB::Ninguno), detalle::m(L"Normal", TEstilosB::Normal),
        detalle::m(L"Lineal", TEstilosB::Lineal), detalle::m(L"Colores", TEstilosB::Colores),
        detalle::m(L"Degradados", TEstilosB::Degradados)};
    static constexpr Enumeracion datos{L"TEstilosB", "{8D36FF89-DCC0-409C-9031-0A9F93FEE8FA}"_guid,
                                       miembros};
};

template <>
struct EnumeracionDe<Alineaciones> {
    static constexpr MiembroEnumeracion miembros[] = {
        detalle::m(L"Izq_Sup", Alineaciones::Izq_Sup),
        detalle::m(L"Izq_Med", Alineaciones::Izq_Med),
        detalle::m(L"Izq_Inf", Alineaciones::Izq_Inf),
        detalle::m(L"Med_Sup", Alineaciones::Med_Sup),
        detalle::m(L"Medio", Alineaciones::Medio),
        detalle::m(L"Med_Inf", Alineaciones::Med_Inf),
        detalle::m(L"Der_Sup", Alineaciones::Der_Sup),
        detalle::m(L"Der_Med", Alineaciones::Der_Med),
        detalle::m(L"Der_Inf", Alineaciones::Der_Inf)};
    static constexpr Enumeracion datos{L"Alineaciones",
                                       "{5F871854-97C6-4895-9414-8D429981662D}"_guid, miembros};
};

/// The enumerations in the order of the type library. New ones are appended.
template <class... E>
struct ListaDeEnumeraciones {
    static constexpr const Enumeracion* todas[] = {&EnumeracionDe<E>::datos...};
    template <class T>
    static constexpr bool Contiene = (std::is_same_v<T, E> || ...);
};
using Enumeraciones =
    ListaDeEnumeraciones<TBack, TText, TSombra, Tamanio, EfectosBoton, TLetra, TEstilos, TEstilosR,
                         ColoresRGB, TEstilosB, Alineaciones>;

inline constexpr GUID GuidDeRectRedo = "{46A309C5-FAC7-4F80-A323-E16A7CE22438}"_guid;

} // namespace pincela::componente
