// What `Area` publishes.
#pragma once

#include "area/area.h"
#include "componente/tabla.h"

namespace pincela::componente {

struct TablaArea {
    using Nucleo = Area;
    using T = Area;
    using C = Categoria;
    static constexpr auto miembros = std::tuple{
        propiedad<&T::AlinText, &T::PonAlinText>({0x6803000F, L"AlinText", C::Apariencia}),
        propiedad<&T::Caption, &T::PonCaption>({0x6803000E, L"Caption", C::Datos}),
        propiedad<&T::Font, &T::PonFont>({0x6803000D, L"Font", C::Fuente}),
        propiedad<&T::ColorLetra, &T::PonColorLetra>({0x6803000C, L"ColorLetra", C::Apariencia}),
        propiedad<&T::ColorFondo, &T::PonColorFondo>({0x6803000B, L"ColorFondo", C::Apariencia}),
        propiedad<&T::MouseIcon, &T::PonMouseIcon>({0x6803000A, L"MouseIcon", C::Otras}),
        propiedad<&T::MousePointer, &T::PonMousePointer>({0x68030009, L"MousePointer", C::Otras}),
        propiedad<&T::ToolTipText, &T::PonToolTipText>({0x68030008, L"ToolTipText", C::Otras}),
        propiedad<&T::EstilosBord, &T::PonEstilosBord>({0x68030007, L"EstilosBord", C::Apariencia}),
        propiedad<&T::EstilosRell, &T::PonEstilosRell>({0x68030006, L"EstilosRell", C::Apariencia}),
        propiedad<&T::Enabled, &T::PonEnabled>({0x68030005, L"Enabled", C::Comportamiento}),
        propiedad<&T::SeparaBorde, &T::PonSeparaBorde>({0x68030004, L"SeparaBorde", C::Apariencia}),
        propiedad<&T::ColorDegrade, &T::PonColorDegrade>(
            {0x68030003, L"ColorDegrade", C::Apariencia}),
        metodo<&T::ManAreas>(0x60030022, L"ManAreas", Parametro{L"Crear"}),
        propiedad<&T::BackStyle, &T::PonBackStyle>({0x68030002, L"BackStyle", C::Apariencia}),
        propiedad<&T::AnchoBorde, &T::PonAnchoBorde>({0x68030001, L"AnchoBorde", C::Apariencia}),
        propiedad<&T::TipoLetra, &T::PonTipoLetra>({0x68030000, L"TipoLetra", C::Apariencia}),
    };

    using E = EventosArea;
    static constexpr auto eventos = std::tuple{
        evento<&E::Click>(1, L"Click"),
        evento<&E::PresTecla>(2, L"PresTecla", L"Tecla", L"Shift"),
        evento<&E::TocoTecla>(3, L"TocoTecla", L"Tecla"),
        evento<&E::SoltoTecla>(4, L"SoltoTecla", L"Tecla", L"Shift"),
        evento<&E::MouseSale>(5, L"MouseSale"),
        evento<&E::MouseDown>(6, L"MouseDown", L"Button", L"Shift", L"X", L"Y"),
        evento<&E::MouseMove>(7, L"MouseMove", L"Button", L"Shift", L"X", L"Y"),
        evento<&E::MouseUp>(8, L"MouseUp", L"Button", L"Shift", L"X", L"Y"),
        evento<&E::Paint>(9, L"Paint"),
        evento<&E::Resize>(10, L"Resize"),
    };
};

} // namespace pincela::componente
