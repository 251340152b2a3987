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
        metodo<&T::AjustarTexto>(L"AjustarTexto", 0x6003001C),
        propiedad<&T::AlinTBox, &T::PonAlinTBox>({L"AlinTBox", C::Apariencia}),
        propiedad<&T::AlinText, &T::PonAlinText>({L"AlinText", C::Apariencia}),
        propiedad<&T::MaxText, &T::PonMaxText>({L"MaxText", C::Comportamiento}),
        propiedad<&T::Text, &T::PonText>(
            {L"Text", C::Datos, nullptr, DISPID_VALUE,
             FUNCFLAG_FUIDEFAULT | FUNCFLAG_FBINDABLE | FUNCFLAG_FDEFAULTBIND}),
        propiedad<&T::FuenteTexto, &T::PonFuenteTexto>({L"Fuente", C::Fuente}),
        propiedad<&T::ColorLetra, &T::PonColorLetra>({L"ColorLetra", C::Apariencia}),
        propiedad<&T::ColorLetraSobre, &T::PonColorLetraSobre>({L"ColorLetraSobre", C::Apariencia}),
        propiedad<&T::ColorFondo, &T::PonColorFondo>({L"ColorFondo", C::Apariencia}),
        propiedad<&T::ColorFondoSobre, &T::PonColorFondoSobre>({L"ColorFondoSobre", C::Apariencia}),
        propiedad<&T::ColorFonTexto, &T::PonColorFonTexto>({L"ColorFonTexto", C::Apariencia}),
        propiedad<&T::ColorFonTextoS, &T::PonColorFonTextoS>({L"ColorFonTextoS", C::Apariencia}),
        propiedad<&T::SelLength, &T::PonSelLength>({L"SelLength", C::Datos}),
        propiedad<&T::SelStart, &T::PonSelStart>({L"SelStart", C::Datos}),
        soloLectura<&T::SelText>({L"SelText", C::Datos}),
        propiedad<&T::Tranca, &T::PonTranca>({L"Tranca", C::Comportamiento}),
        propiedad<&T::MouseIcon, &T::PonMouseIcon>({L"MouseIcon", C::Otras}),
        metodo<&T::ActualizarColores>(L"ActualizarColores", 0x6003002A, Parametro{L"Sobre"}),
        propiedad<&T::MousePointer, &T::PonMousePointer>({L"MousePointer", C::Otras}),
        propiedad<&T::ToolTipText, &T::PonToolTipText>({L"ToolTipText", C::Otras}),
        propiedad<&T::BackStyle, &T::PonBackStyle>({L"BackStyle", C::Apariencia}),
        propiedad<&T::SelecConFoco, &T::PonSelecConFoco>(
            {L"SelecConFoco", C::Comportamiento,
             L"Sirve pa seleccionar el texto cuando el objeto obtenga el foco"}),
        propiedad<&T::Separa, &T::PonSepara>({L"Separa", C::Apariencia}),
        propiedad<&T::Enabled, &T::PonEnabled>({L"Enabled", C::Comportamiento}),
        propiedad<&T::TipoTexto, &T::PonTipoTexto>({L"TipoTexto", C::Comportamiento}),
        propiedad<&T::Apariencia, &T::PonApariencia>({L"Apariencia", C::Apariencia}),
        propiedad<&T::NavConEnter, &T::PonNavConEnter>({L"NavConEnter", C::Comportamiento}),
        propiedad<&T::FocoVisible, &T::PonFocoVisible>({L"FocoVisible", C::Comportamiento}),
        propiedad<&T::FocoConMouse, &T::PonFocoConMouse>({L"FocoConMouse", C::Comportamiento}),
        propiedad<&T::SeparaBorde, &T::PonSeparaBorde>({L"SeparaBorde", C::Apariencia}),
        propiedad<&T::TipoLetra, &T::PonTipoLetra>({L"TipoLetra", C::Apariencia}),
    };
    static constexpr auto eventos = EventosDeTexto;
};

/// The same members in the same order.
struct TablaTboxSSML : TablaTboxSS {
    using Nucleo = TboxSSML;
};

} // namespace pincela::componente
