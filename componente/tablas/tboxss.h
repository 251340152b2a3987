// What the two plain text boxes publish.
#pragma once

#include "componente/tablas/tbox.h"
#include "tbox/tboxss.h"

namespace pincela::componente {

struct TablaTboxSS {
    using Nucleo = TboxSS;
    using T = TboxSS;
    using C = Categoria;
    static constexpr auto miembros = std::tuple{
        metodo<&T::AjustarTexto>(0x6003001C, L"AjustarTexto"),
        propiedad<&T::AlinTBox, &T::PonAlinTBox>({0x6803001C, L"AlinTBox", C::Apariencia}),
        propiedad<&T::AlinText, &T::PonAlinText>({0x6803001B, L"AlinText", C::Apariencia}),
        propiedad<&T::MaxText, &T::PonMaxText>({0x6803001A, L"MaxText", C::Comportamiento}),
        propiedad<&T::Text, &T::PonText>(
            {DISPID_VALUE, L"Text", C::Datos, nullptr,
             FUNCFLAG_FUIDEFAULT | FUNCFLAG_FBINDABLE | FUNCFLAG_FDEFAULTBIND}),
        propiedad<&T::FuenteTexto, &T::PonFuenteTexto>({0x68030018, L"Fuente", C::Fuente}),
        propiedad<&T::ColorLetra, &T::PonColorLetra>({0x68030017, L"ColorLetra", C::Apariencia}),
        propiedad<&T::ColorLetraSobre, &T::PonColorLetraSobre>(
            {0x68030016, L"ColorLetraSobre", C::Apariencia}),
        propiedad<&T::ColorFondo, &T::PonColorFondo>({0x68030015, L"ColorFondo", C::Apariencia}),
        propiedad<&T::ColorFondoSobre, &T::PonColorFondoSobre>(
            {0x68030014, L"ColorFondoSobre", C::Apariencia}),
        propiedad<&T::ColorFonTexto, &T::PonColorFonTexto>(
            {0x68030013, L"ColorFonTexto", C::Apariencia}),
        propiedad<&T::ColorFonTextoS, &T::PonColorFonTextoS>(
            {0x68030012, L"ColorFonTextoS", C::Apariencia}),
        propiedad<&T::SelLength, &T::PonSelLength>({0x68030011, L"SelLength", C::Datos}),
        propiedad<&T::SelStart, &T::PonSelStart>({0x68030010, L"SelStart", C::Datos}),
        soloLectura<&T::SelText>({0x6803000F, L"SelText", C::Datos}),
        propiedad<&T::Tranca, &T::PonTranca>({0x6803000E, L"Tranca", C::Comportamiento}),
        propiedad<&T::MouseIcon, &T::PonMouseIcon>({0x6803000D, L"MouseIcon", C::Otras}),
        metodo<&T::ActualizarColores>(0x6003002A, L"ActualizarColores", Parametro{L"Sobre"}),
        propiedad<&T::MousePointer, &T::PonMousePointer>({0x6803000C, L"MousePointer", C::Otras}),
        propiedad<&T::ToolTipText, &T::PonToolTipText>({0x6803000B, L"ToolTipText", C::Otras}),
        propiedad<&T::BackStyle, &T::PonBackStyle>({0x6803000A, L"BackStyle", C::Apariencia}),
        propiedad<&T::SelecConFoco, &T::PonSelecConFoco>(
            {0x68030009, L"SelecConFoco", C::Comportamiento,
             L"Sirve pa seleccionar el texto cuando el objeto obtenga el foco"}),
        propiedad<&T::Separa, &T::PonSepara>({0x68030008, L"Separa", C::Apariencia}),
        propiedad<&T::Enabled, &T::PonEnabled>({0x68030007, L"Enabled", C::Comportamiento}),
        propiedad<&T::TipoTexto, &T::PonTipoTexto>({0x68030006, L"TipoTexto", C::Comportamiento}),
        propiedad<&T::Apariencia, &T::PonApariencia>({0x68030005, L"Apariencia", C::Apariencia}),
        propiedad<&T::NavConEnter, &T::PonNavConEnter>(
            {0x68030004, L"NavConEnter", C::Comportamiento}),
        propiedad<&T::FocoVisible, &T::PonFocoVisible>(
            {0x68030003, L"FocoVisible", C::Comportamiento}),
        propiedad<&T::FocoConMouse, &T::PonFocoConMouse>(
            {0x68030002, L"FocoConMouse", C::Comportamiento}),
        propiedad<&T::SeparaBorde, &T::PonSeparaBorde>({0x68030001, L"SeparaBorde", C::Apariencia}),
        propiedad<&T::TipoLetra, &T::PonTipoLetra>({0x68030000, L"TipoLetra", C::Apariencia}),
    };
    static constexpr auto eventos = EventosDeTexto;
};

/// The same members in the same order.
struct TablaTboxSSML : TablaTboxSS {
    using Nucleo = TboxSSML;
};

} // namespace pincela::componente
