// What the two labelled text boxes publish.
#pragma once

#include "componente/tabla.h"
#include "tbox/tbox.h"

namespace pincela::componente {

/// The twelve events of all four text boxes.
inline constexpr auto EventosDeTexto = std::tuple{
    evento<&EventosTbox::Change>(L"Change"),
    evento<&EventosTbox::Click>(L"Click"),
    evento<&EventosTbox::MouseSale>(L"MouseSale"),
    evento<&EventosTbox::MouseDown>(L"MouseDown", L"Button", L"Shift", L"X", L"Y"),
    evento<&EventosTbox::MouseMove>(L"MouseMove", L"Button", L"Shift", L"X", L"Y"),
    evento<&EventosTbox::MouseUp>(L"MouseUp", L"Button", L"Shift", L"X", L"Y"),
    evento<&EventosTbox::PresTecla>(L"PresTecla", L"Tecla", L"Shift"),
    evento<&EventosTbox::TocoTecla>(L"TocoTecla", L"Tecla"),
    evento<&EventosTbox::SoltoTecla>(L"SoltoTecla", L"Tecla", L"Shift"),
    evento<&EventosTbox::Paint>(L"Paint"),
    evento<&EventosTbox::Validate>(L"Validate", L"Cancel"),
    evento<&EventosTbox::Resize>(L"Resize"),
};

struct TablaTBoxML {
    using Nucleo = TBoxML;
    using T = Tbox;
    using C = Categoria;
    static constexpr auto miembros = std::tuple{
        metodo<&T::AjustarTexto>(L"AjustarTexto", 0x6003001C),
        metodo<&T::ActualizarColores>(L"ActualizarColores", 0x60030022, Parametro{L"Sobre"}),
        propiedad<&T::Tranca, &T::PonTranca>({L"Tranca", C::Comportamiento}),
        propiedad<&T::AlinTBox, &T::PonAlinTBox>({L"AlinTBox", C::Apariencia}),
        propiedad<&T::AlinText, &T::PonAlinText>({L"AlinText", C::Apariencia}),
        propiedad<&T::Caption, &T::PonCaption>({L"Caption", C::Datos}),
        propiedad<&T::MaxText, &T::PonMaxText>({L"MaxText", C::Comportamiento}),
        propiedad<&T::Text, &T::PonText>(
            {L"Text", C::Datos, nullptr, DISPID_VALUE, FUNCFLAG_FUIDEFAULT}),
        propiedad<&T::FuenteEtic, &T::PonFuenteEtic>({L"FuenteEtic", C::Fuente}),
        propiedad<&T::FuenteTexto, &T::PonFuenteTexto>({L"Fuente", C::Fuente}),
        propiedad<&T::ColorLetra, &T::PonColorLetra>({L"ColorLetra", C::Apariencia}),
        propiedad<&T::ColorLetraSobre, &T::PonColorLetraSobre>({L"ColorLetraSobre", C::Apariencia}),
        propiedad<&T::ColorLetraE, &T::PonColorLetraE>({L"ColorLetraE", C::Apariencia}),
        propiedad<&T::ColorLetraES, &T::PonColorLetraES>({L"ColorLetraES", C::Apariencia}),
        propiedad<&T::ColorFondo, &T::PonColorFondo>({L"ColorFondo", C::Apariencia}),
        propiedad<&T::ColorFondoSobre, &T::PonColorFondoSobre>({L"ColorFondoSobre", C::Apariencia}),
        propiedad<&T::ColorFonTexto, &T::PonColorFonTexto>({L"ColorFonTexto", C::Apariencia}),
        propiedad<&T::ColorFonTextoS, &T::PonColorFonTextoS>({L"ColorFonTextoS", C::Apariencia}),
        propiedad<&T::MouseIcon, &T::PonMouseIcon>({L"MouseIcon", C::Otras}),
        propiedad<&T::MousePointer, &T::PonMousePointer>({L"MousePointer", C::Otras}),
        propiedad<&T::ToolTipText, &T::PonToolTipText>({L"ToolTipText", C::Otras}),
        propiedad<&T::BackStyle, &T::PonBackStyle>({L"BackStyle", C::Apariencia}),
        propiedad<&T::Separa, &T::PonSepara>({L"Separa", C::Apariencia}),
        propiedad<&T::Enabled, &T::PonEnabled>({L"Enabled", C::Comportamiento}),
        propiedad<&T::TipoTexto, &T::PonTipoTexto>({L"TipoTexto", C::Comportamiento}),
        propiedad<&T::Apariencia, &T::PonApariencia>({L"Apariencia", C::Apariencia}),
        propiedad<&T::FocoVisible, &T::PonFocoVisible>({L"FocoVisible", C::Comportamiento}),
        propiedad<&T::FocoConMouse, &T::PonFocoConMouse>({L"FocoConMouse", C::Comportamiento}),
        propiedad<&T::TipoSombra, &T::PonTipoSombra>({L"TipoSombra", C::Apariencia}),
        propiedad<&T::SeparaBorde, &T::PonSeparaBorde>({L"SeparaBorde", C::Apariencia}),
        propiedad<&T::TipoLetra, &T::PonTipoLetra>({L"TipoLetra", C::Apariencia}),
    };
    static constexpr auto eventos = EventosDeTexto;
};

struct TablaTbox {
    using Nucleo = Tbox;
    using T = Tbox;
    using C = Categoria;
    static constexpr auto miembros = std::tuple{
        metodo<&T::AjustarTexto>(L"AjustarTexto", 0x6003001C),
        propiedad<&T::AlinTBox, &T::PonAlinTBox>({L"AlinTBox", C::Apariencia}),
        propiedad<&T::AlinText, &T::PonAlinText>({L"AlinText", C::Apariencia}),
        propiedad<&T::Caption, &T::PonCaption>({L"Caption", C::Datos}),
        propiedad<&T::MaxText, &T::PonMaxText>({L"MaxText", C::Comportamiento}),
        propiedad<&T::Text, &T::PonText>(
            {L"Text", C::Datos, nullptr, DISPID_VALUE, FUNCFLAG_FUIDEFAULT}),
        propiedad<&T::FuenteEtic, &T::PonFuenteEtic>({L"FuenteEtic", C::Fuente}),
        propiedad<&T::FuenteTexto, &T::PonFuenteTexto>({L"Fuente", C::Fuente}),
        propiedad<&T::ColorLetra, &T::PonColorLetra>({L"ColorLetra", C::Apariencia}),
        propiedad<&T::ColorLetraSobre, &T::PonColorLetraSobre>({L"ColorLetraSobre", C::Apariencia}),
        propiedad<&T::ColorLetraE, &T::PonColorLetraE>({L"ColorLetraE", C::Apariencia}),
        propiedad<&T::ColorLetraES, &T::PonColorLetraES>({L"ColorLetraES", C::Apariencia}),
        propiedad<&T::ColorFondo, &T::PonColorFondo>({L"ColorFondo", C::Apariencia}),
        propiedad<&T::ColorFondoSobre, &T::PonColorFondoSobre>({L"ColorFondoSobre", C::Apariencia}),
        propiedad<&T::ColorFonTexto, &T::PonColorFonTexto>({L"ColorFonTexto", C::Apariencia}),
        propiedad<&T::ColorFonTextoS, &T::PonColorFonTextoS>({L"ColorFonTextoS", C::Apariencia}),
        propiedad<&T::Tranca, &T::PonTranca>({L"Tranca", C::Comportamiento}),
        propiedad<&T::MouseIcon, &T::PonMouseIcon>({L"MouseIcon", C::Otras}),
        metodo<&T::ActualizarColores>(L"ActualizarColores", 0x6003002C, Parametro{L"Sobre"}),
        propiedad<&T::MousePointer, &T::PonMousePointer>({L"MousePointer", C::Otras}),
        propiedad<&T::ToolTipText, &T::PonToolTipText>({L"ToolTipText", C::Otras}),
        propiedad<&T::BackStyle, &T::PonBackStyle>({L"BackStyle", C::Apariencia}),
        propiedad<&T::Separa, &T::PonSepara>({L"Separa", C::Apariencia}),
        propiedad<&T::Enabled, &T::PonEnabled>({L"Enabled", C::Comportamiento}),
        propiedad<&T::TipoTexto, &T::PonTipoTexto>({L"TipoTexto", C::Comportamiento}),
        propiedad<&T::Apariencia, &T::PonApariencia>({L"Apariencia", C::Apariencia}),
        propiedad<&T::FocoVisible, &T::PonFocoVisible>({L"FocoVisible", C::Comportamiento}),
        propiedad<&T::FocoConMouse, &T::PonFocoConMouse>({L"FocoConMouse", C::Comportamiento}),
        propiedad<&T::TipoSombra, &T::PonTipoSombra>({L"TipoSombra", C::Apariencia}),
        propiedad<&T::SeparaBorde, &T::PonSeparaBorde>({L"SeparaBorde", C::Apariencia}),
        propiedad<&T::TipoLetra, &T::PonTipoLetra>({L"TipoLetra", C::Apariencia}),
    };
    static constexpr auto eventos = EventosDeTexto;
};

} // namespace pincela::componente
