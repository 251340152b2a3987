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
        propiedad<&T::AlinText, &T::PonAlinText>({L"AlinText", C::Apariencia}),
        propiedad<&T::Caption, &T::PonCaption>({L"Caption", C::Datos}),
        propiedad<&T::Font, &T::PonFont>({L"Font", C::Fuente}),
        propiedad<&T::ColorLetra, &T::PonColorLetra>({L"ColorLetra", C::Apariencia}),
        propiedad<&T::ColorFondo, &T::PonColorFondo>({L"ColorFondo", C::Apariencia}),
        propiedad<&T::MouseIcon, &T::PonMouseIcon>({L"MouseIcon", C::Otras}),
        propiedad<&T::MousePointer, &T::PonMousePointer>({L"MousePointer", C::Otras}),
        propiedad<&T::ToolTipText, &T::PonToolTipText>({L"ToolTipText", C::Otras}),
        propiedad<&T::EstilosBord, &T::PonEstilosBord>({L"EstilosBord", C::Apariencia}),
        propiedad<&T::EstilosRell, &T::PonEstilosRell>({L"EstilosRell", C::Apariencia}),
        propiedad<&T::Enabled, &T::PonEnabled>({L"Enabled", C::Comportamiento}),
        propiedad<&T::SeparaBorde, &T::PonSeparaBorde>({L"SeparaBorde", C::Apariencia}),
        propiedad<&T::ColorDegrade, &T::PonColorDegrade>({L"ColorDegrade", C::Apariencia}),
        metodo<&T::ManAreas>(L"ManAreas", 0x60030022, Parametro{L"Crear"}),
        propiedad<&T::BackStyle, &T::PonBackStyle>({L"BackStyle", C::Apariencia}),
        propiedad<&T::AnchoBorde, &T::PonAnchoBorde>({L"AnchoBorde", C::Apariencia}),
        propiedad<&T::TipoLetra, &T::PonTipoLetra>({L"TipoLetra", C::Apariencia}),
    };

    using E = EventosArea;
    static constexpr auto eventos = std::tuple{
        evento<&E::Click>(L"Click"),
        evento<&E::PresTecla>(L"PresTecla", L"Tecla", L"Shift"),
        evento<&E::TocoTecla>(L"TocoTecla", L"Tecla"),
        evento<&E::SoltoTecla>(L"SoltoTecla", L"Tecla", L"Shift"),
        evento<&E::MouseSale>(L"MouseSale"),
        evento<&E::MouseDown>(L"MouseDown", L"Button", L"Shift", L"X", L"Y"),
        evento<&E::MouseMove>(L"MouseMove", L"Button", L"Shift", L"X", L"Y"),
        evento<&E::MouseUp>(L"MouseUp", L"Button", L"Shift", L"X", L"Y"),
        evento<&E::Paint>(L"Paint"),
        evento<&E::Resize>(L"Resize"),
    };
};

} // namespace pincela::componente
