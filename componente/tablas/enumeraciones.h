// The published enumerations and the record. A member's help string is its own name.
#pragma once

#include "componente/guid.h"
#include "componente/tipos.h"

#include <span>

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

namespace detalle {
template <class E>
constexpr MiembroEnumeracion m(const wchar_t* nombre, E valor) {
    return {nombre, static_cast<long>(valor)};
}

inline constexpr MiembroEnumeracion MiembrosTBack[] = {m(L"Opaco", TBack::Opaco),
                                                       m(L"Transparente", TBack::Transparente)};
inline constexpr MiembroEnumeracion MiembrosTText[] = {
    m(L"TextNorm", TText::TextNorm), m(L"Mayuscula", TText::Mayuscula),
    m(L"NumericoEnt", TText::NumericoEnt), m(L"NumericoDes", TText::NumericoDes)};
inline constexpr MiembroEnumeracion MiembrosTSombra[] = {
    m(L"Negra", TSombra::Negra), m(L"Gris", TSombra::Gris), m(L"Blanca", TSombra::Blanca),
    m(L"Invertida", TSombra::Invertida)};
inline constexpr MiembroEnumeracion MiembrosTamanio[] = {
    m(L"Chico", Tamanio::Chico), m(L"Mediano", Tamanio::Mediano), m(L"Grande", Tamanio::Grande)};
inline constexpr MiembroEnumeracion MiembrosEfectosBoton[] = {
    m(L"boton", EfectosBoton::boton), m(L"BotOculoSobre", EfectosBoton::BotOculoSobre),
    m(L"BotVisibSobre", EfectosBoton::BotVisibSobre)};
inline constexpr MiembroEnumeracion MiembrosTLetra[] = {
    m(L"Normal", TLetra::Normal), m(L"Levantada", TLetra::Levantada), m(L"Undida", TLetra::Undida),
    m(L"InvesoL", TLetra::InvesoL), m(L"InvesoU", TLetra::InvesoU)};
inline constexpr MiembroEnumeracion MiembrosTEstilos[] = {m(L"CLASICO", TEstilos::CLASICO),
                                                          m(L"REDONDEADO", TEstilos::REDONDEADO)};
inline constexpr MiembroEnumeracion MiembrosTEstilosR[] = {
    m(L"Solido", TEstilosR::Solido), m(L"D_Hori", TEstilosR::D_Hori),
    m(L"D_Vert", TEstilosR::D_Vert), m(L"D_Pirami", TEstilosR::D_Pirami),
    m(L"D_Diagonal", TEstilosR::D_Diagonal)};
inline constexpr MiembroEnumeracion MiembrosColoresRGB[] = {
    m(L"Rojo", ColoresRGB::Rojo), m(L"Verde", ColoresRGB::Verde), m(L"Azul", ColoresRGB::Azul)};
inline constexpr MiembroEnumeracion MiembrosTEstilosB[] = {
    m(L"Ninguno", TEstilosB::Ninguno), m(L"Normal", TEstilosB::Normal),
    m(L"Lineal", TEstilosB::Lineal), m(L"Colores", TEstilosB::Colores),
    m(L"Degradados", TEstilosB::Degradados)};
inline constexpr MiembroEnumeracion MiembrosAlineaciones[] = {
    m(L"Izq_Sup", Alineaciones::Izq_Sup), m(L"Izq_Med", Alineaciones::Izq_Med),
    m(L"Izq_Inf", Alineaciones::Izq_Inf), m(L"Med_Sup", Alineaciones::Med_Sup),
    m(L"Medio", Alineaciones::Medio),     m(L"Med_Inf", Alineaciones::Med_Inf),
    m(L"Der_Sup", Alineaciones::Der_Sup), m(L"Der_Med", Alineaciones::Der_Med),
    m(L"Der_Inf", Alineaciones::Der_Inf)};
} // namespace detalle

/// In the order of CualEnumeracion.
inline constexpr Enumeracion Enumeraciones[] = {
    {L"TBack", "{0DE26D32-590F-49AC-A55A-B0B78E8EFA80}"_guid, detalle::MiembrosTBack},
    {L"TText", "{6EFB45C1-8EDB-41CE-BD60-AD525F49F788}"_guid, detalle::MiembrosTText},
    {L"TSombra", "{AA00A1DF-7578-4CBD-B948-6711011B43BD}"_guid, detalle::MiembrosTSombra},
    {L"Tamanio", "{C37B02BB-CF4E-482D-A9B1-1D2B539B48D3}"_guid, detalle::MiembrosTamanio},
    {L"EfectosBoton", "{0D37A4A8-6E17-4CB0-B796-6E4B3F1DD269}"_guid, detalle::MiembrosEfectosBoton},
    {L"TLetra", "{540D5CFF-1FCC-43A5-9A6C-6573DD3C6CB1}"_guid, detalle::MiembrosTLetra},
    {L"TEstilos", "{3FC65C1D-E6D6-40E8-8070-0BC47EFB4511}"_guid, detalle::MiembrosTEstilos},
    {L"TEstilosR", "{3FC7A711-2270-4B53-B99C-D59912B1B5DE}"_guid, detalle::MiembrosTEstilosR},
    {L"ColoresRGB", "{A7C2C96C-0ECF-46A7-9A64-D7526073EAF7}"_guid, detalle::MiembrosColoresRGB},
    {L"TEstilosB", "{8D36FF89-DCC0-409C-9031-0A9F93FEE8FA}"_guid, detalle::MiembrosTEstilosB},
    {L"Alineaciones", "{5F871854-97C6-4895-9414-8D429981662D}"_guid, detalle::MiembrosAlineaciones},
};
static_assert(std::size(Enumeraciones) == static_cast<std::size_t>(CualEnumeracion::Ninguna));

constexpr const Enumeracion& EnumeracionDe(CualEnumeracion cual) {
    return Enumeraciones[static_cast<std::size_t>(cual)];
}

inline constexpr GUID GuidDeRectRedo = "{46A309C5-FAC7-4F80-A323-E16A7CE22438}"_guid;

} // namespace pincela::componente
