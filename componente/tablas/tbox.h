// What the two labelled text boxes publish.
#pragma once

#include "componente/tabla.h"
#include "tbox/tbox.h"

namespace pincela::componente {

/// The twelve events of all four text boxes.
inline constexpr auto EventosDeTexto = std::tuple{
    evento<&EventosTbox::Change>(1, L"Change"),
    evento<&EventosTbox::Click>(2, L"Click"),
    evento<&EventosTbox::MouseSale>(3, L"MouseSale"),
    evento<&EventosTbox::MouseDown>(4, L"MouseDown", L"Button", L"Shift", L"X", L"Y"),
    evento<&EventosTbox::MouseMove>(5, L"MouseMove", L"Button", L"Shift", L"X", L"Y"),
    evento<&EventosTbox::MouseUp>(6, L"MouseUp", L"Button", L"Shift", L"X", L"Y"),
    evento<&EventosTbox::PresTecla>(7, L"PresTecla", L"Tecla", L"Shift"),
    evento<&EventosTbox::TocoTecla>(8, L"TocoTecla", L"Tecla"),
    evento<&EventosTbox::SoltoTecla>(9, L"SoltoTecla", L"Tecla", L"Shift"),
    evento<&EventosTbox::Paint>(10, L"Paint"),
    evento<&EventosTbox::Validate>(11, L"Validate", L"Cancel"),
    evento<&EventosTbox::Resize>(12, L"Resize"),
};

struct TablaTBoxML {
    using Nucleo = TBoxML;
    using T = Tbox;
    using C = Categoria;
    static constexpr auto miembros = std::tuple{
        metodo<&T::AjustarTexto>(0x6003001C, L"AjustarTexto"),
        metodo<&T::ActualizarColores>(0x60030022, L"ActualizarColores", Parametro{L"Sobre"}),
        propiedad<&T::Tranca, &T::PonTranca>({0x6803001C, L"Tranca", C::Comportamiento}),
        propiedad<&T::AlinTBox, &T::PonAlinTBox>({0x6803001B, L"AlinTBox", C::Apariencia}),
        propiedad<&T::AlinText, &T::PonAlinText>({0x6803001A, L"AlinText", C::Apariencia}),
        propiedad<&T::Caption, &T::PonCaption>({0x68030019, L"Caption", C::Datos}),
        propiedad<&T::MaxText, &T::PonMaxText>({0x68030018, L"MaxText", C::Comportamiento}),
        propiedad<&T::Text, &T::PonText>(
            {DISPID_VALUE, L"Text", C::Datos, nullptr, FUNCFLAG_FUIDEFAULT}),
        propiedad<&T::FuenteEtic, &T::PonFuenteEtic>({0x68030016, L"FuenteEtic", C::Fuente}),
        propiedad<&T::FuenteTexto, &T::PonFuenteTexto>({0x68030015, L"Fuente", C::Fuente}),
        propiedad<&T::ColorLetra, &T::PonColorLetra>({0x68030014, L"ColorLetra", C::Apariencia}),
        propiedad<&T::ColorLetraSobre, &T::PonColorLetraSobre>(
            {0x68030013, L"ColorLetraSobre", C::Apariencia}),
        propiedad<&T::ColorLetraE, &T::PonColorLetraE>({0x68030012, L"ColorLetraE", C::Apariencia}),
        propiedad<&T::ColorLetraES, &T::PonColorLetraES>(
            {0x68030011, L"ColorLetraES", C::Apariencia}),
        propiedad<&T::ColorFondo, &T::PonColorFondo>({0x68030010, L"ColorFondo", C::Apariencia}),
        propiedad<&T::ColorFondoSobre, &T::PonColorFondoSobre>(
            {0x6803000F, L"ColorFondoSobre", C::Apariencia}),
        propiedad<&T::ColorFonTexto, &T::PonColorFonTexto>(
            {0x6803000E, L"ColorFonTexto", C::Apariencia}),
        propiedad<&T::ColorFonTextoS, &T::PonColorFonTextoS>(
            {0x6803000D, L"ColorFonTextoS", C::Apariencia}),
        propiedad<&T::MouseIcon, &T::PonMouseIcon>({0x6803000C, L"MouseIcon", C::Otras}),
        propiedad<&T::MousePointer, &T::PonMousePointer>({0x6803000B, L"MousePointer", C::Otras}),
        propiedad<&T::ToolTipText, &T::PonToolTipText>({0x6803000A, L"ToolTipText", C::Otras}),
        propiedad<&T::BackStyle, &T::PonBackStyle>({0x68030009, L"BackStyle", C::Apariencia}),
        propiedad<&T::Separa, &T::PonSepara>({0x68030008, L"Separa", C::Apariencia}),
        propiedad<&T::Enabled, &T::PonEnabled>({0x68030007, L"Enabled", C::Comportamiento}),
        propiedad<&T::TipoTexto, &T::PonTipoTexto>({0x68030006, L"TipoTexto", C::Comportamiento}),
        propiedad<&T::Apariencia, &T::PonApariencia>({0x68030005, L"Apariencia", C::Apariencia}),
        propiedad<&T::FocoVisible, &T::PonFocoVisible>(
            {0x68030004, L"FocoVisible", C::Comportamiento}),
        propiedad<&T::FocoConMouse, &T::PonFocoConMouse>(
            {0x68030003, L"FocoConMouse", C::Comportamiento}),
        propiedad<&T::TipoSombra, &T::PonTipoSombra>({0x68030002, L"TipoSombra", C::Apariencia}),
        propiedad<&T::SeparaBorde, &T::PonSeparaBorde>({0x68030001, L"SeparaBorde", C::Apariencia}),
        propiedad<&T::TipoLetra, &T::PonTipoLetra>({0x68030000, L"TipoLetra", C::Apariencia}),
    };
    static constexpr auto eventos = EventosDeTexto;
};

struct TablaTbox {
    using Nucleo = Tbox;
    using T = Tbox;
    using C = Categoria;
    static constexpr auto miembros = std::tuple{
        metodo<&T::AjustarTexto>(0x6003001C, L"AjustarTexto"),
        propiedad<&T::AlinTBox, &T::PonAlinTBox>({0x6803001C, L"AlinTBox", C::Apariencia}),
        propiedad<&T::AlinText, &T::PonAlinText>({0x6803001B, L"AlinText", C::Apariencia}),
        propiedad<&T::Caption, &T::PonCaption>({0x6803001A, L"Caption", C::Datos}),
        propiedad<&T::MaxText, &T::PonMaxText>({0x68030019, L"MaxText", C::Comportamiento}),
        propiedad<&T::Text, &T::PonText>(
            {DISPID_VALUE, L"Text", C::Datos, nullptr, FUNCFLAG_FUIDEFAULT}),
        propiedad<&T::FuenteEtic, &T::PonFuenteEtic>({0x68030017, L"FuenteEtic", C::Fuente}),
        propiedad<&T::FuenteTexto, &T::PonFuenteTexto>({0x68030016, L"Fuente", C::Fuente}),
        propiedad<&T::ColorLetra, &T::PonColorLetra>({0x68030015, L"ColorLetra", C::Apariencia}),
        propiedad<&T::ColorLetraSobre, &T::PonColorLetraSobre>(
            {0x68030014, L"ColorLetraSobre", C::Apariencia}),
        propiedad<&T::ColorLetraE, &T::PonColorLetraE>({0x68030013, L"ColorLetraE", C::Apariencia}),
        propiedad<&T::ColorLetraES, &T::PonColorLetraES>(
            {0x68030012, L"ColorLetraES", C::Apariencia}),
        propiedad<&T::ColorFondo, &T::PonColorFondo>({0x68030011, L"ColorFondo", C::Apariencia}),
        propiedad<&T::ColorFondoSobre, &T::PonColorFondoSobre>(
            {0x68030010, L"ColorFondoSobre", C::Apariencia}),
        propiedad<&T::ColorFonTexto, &T::PonColorFonTexto>(
            {0x6803000F, L"ColorFonTexto", C::Apariencia}),
        propiedad<&T::ColorFonTextoS, &T::PonColorFonTextoS>(
            {0x6803000E, L"ColorFonTextoS", C::Apariencia}),
        propiedad<&T::Tranca, &T::PonTranca>({0x6803000D, L"Tranca", C::Comportamiento}),
        propiedad<&T::MouseIcon, &T::PonMouseIcon>({0x6803000C, L"MouseIcon", C::Otras}),
        metodo<&T::ActualizarColores>(0x6003002C, L"ActualizarColores", Parametro{L"Sobre"}),
        propiedad<&T::MousePointer, &T::PonMousePointer>({0x6803000B, L"MousePointer", C::Otras}),
        propiedad<&T::ToolTipText, &T::PonToolTipText>({0x6803000A, L"ToolTipText", C::Otras}),
        propiedad<&T::BackStyle, &T::PonBackStyle>({0x68030009, L"BackStyle", C::Apariencia}),
        propiedad<&T::Separa, &T::PonSepara>({0x68030008, L"Separa", C::Apariencia}),
        propiedad<&T::Enabled, &T::PonEnabled>({0x68030007, L"Enabled", C::Comportamiento}),
        propiedad<&T::TipoTexto, &T::PonTipoTexto>({0x68030006, L"TipoTexto", C::Comportamiento}),
        propiedad<&T::Apariencia, &T::PonApariencia>({0x68030005, L"Apariencia", C::Apariencia}),
        propiedad<&T::FocoVisible, &T::PonFocoVisible>(
            {0x68030004, L"FocoVisible", C::Comportamiento}),
        propiedad<&T::FocoConMouse, &T::PonFocoConMouse>(
            {0x68030003, L"FocoConMouse", C::Comportamiento}),
        propiedad<&T::TipoSombra, &T::PonTipoSombra>({0x68030002, L"TipoSombra", C::Apariencia}),
        propiedad<&T::SeparaBorde, &T::PonSeparaBorde>({0x68030001, L"SeparaBorde", C::Apariencia}),
        propiedad<&T::TipoLetra, &T::PonTipoLetra>({0x68030000, L"TipoLetra", C::Apariencia}),
    };
    static constexpr auto eventos = EventosDeTexto;
};

} // namespace pincela::componente
