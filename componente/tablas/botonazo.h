// What `Botonazo` publishes.
#pragma once

#include "botonazo/botonazo.h"
#include "componente/tabla.h"

#include <olectl.h>

namespace pincela::componente {

struct TablaBotonazo {
    using Nucleo = Botonazo;
    using B = Botonazo;
    using C = Categoria;
    static constexpr auto miembros = std::tuple{
        propiedad<&B::EfectoBoton, &B::PonEfectoBoton>(
            {0x6803001B, L"EfectoBoton", C::Apariencia,
             L"Estilos de boton (Efectos para la concha de tu madre)"}),
        propiedad<&B::AlinText, &B::PonAlinText>(
            {0x6803001A, L"AlinText", C::Apariencia, L"Alinea el texto a donde se te antoje"}),
        propiedad<&B::Caption, &B::PonCaption>(
            {DISPID_CAPTION, L"Caption", C::Datos,
             L"Devuelve o establece el texto mostrado en la barra de título de un objeto o bajo el "
             L"icono de un objeto."}),
        propiedad<&B::AlinImag, &B::PonAlinImag>(
            {0x68030018, L"AlinImag", C::Apariencia, L"Alinea la imagen"}),
        propiedad<&B::Font, &B::PonFont>(
            {DISPID_FONT, L"Font", C::Fuente, L"La fuente que utiliza el botonazo"}),
        propiedad<&B::ColorLetra, &B::PonColorLetra>(
            {0x68030016, L"ColorLetra", C::Apariencia,
             L"Es Pa' el Color de letra cuando el mouse no se posisiona sobre el control"}),
        propiedad<&B::ColorLetraSobre, &B::PonColorLetraSobre>(
            {0x68030015, L"ColorLetraSobre", C::Apariencia, L"¿Que puede ser? Pensa un poquito"}),
        propiedad<&B::ColorFondo, &B::PonColorFondo>(
            {0x68030014, L"ColorFondo", C::Apariencia,
             L"Color de fondo del botonazo, Cuando el estilo de relleno es solido, color en estado "
             L"normal"}),
        propiedad<&B::ColorFondoSobre, &B::PonColorFondoSobre>(
            {0x68030013, L"ColorFondoSobre", C::Apariencia,
             L"Color de fondo del botonazo, Cuando el estilo de relleno es solido, color en estado "
             L"Sobre"}),
        propiedad<&B::MouseIcon, &B::PonMouseIcon>(
            {0x68030012, L"MouseIcon", C::Otras,
             L"Establece un icono personalizado para el mouse."}),
        propiedad<&B::MousePointer, &B::PonMousePointer>(
            {0x68030011, L"MousePointer", C::Otras,
             L"Devuelve o establece el tipo de puntero del mouse mostrado al pasar por encima de "
             L"un "
             L"objeto."}),
        propiedad<&B::ToolTipText, &B::PonToolTipText>(
            {0x68030010, L"ToolTipText", C::Otras, L"sasa PEPE TITIT TOTO"}),
        propiedad<&B::EstilosBord, &B::PonEstilosBord>(
            {0x6803000F, L"EstilosBord", C::Apariencia,
             L"Solo Funciona Ninguno, y Normal, por ahora"}),
        propiedad<&B::EstilosRell, &B::PonEstilosRell>({0x6803000E, L"EstilosRell", C::Apariencia}),
        propiedad<&B::Estilos, &B::PonEstilos>({0x6803000D, L"Estilos", C::Apariencia, L"sasa"}),
        propiedad<&B::RelX, &B::PonRelX>(
            {0x6803000C, L"RelX", C::Apariencia,
             L"Son Valores Que estan relacionados con la curbatura del boton, solo se aplican "
             L"cuando el estilo es REDONDEADO"}),
        propiedad<&B::RelY, &B::PonRelY>(
            {0x6803000B, L"RelY", C::Apariencia,
             L"Son Valores Que estan relacionados con la curbatura del boton, solo se aplican "
             L"cuando el estilo es REDONDEADO"}),
        propiedad<&B::ImagNormal, &B::PonImagNormal>({0x6803000A, L"ImagNormal", C::Apariencia}),
        propiedad<&B::ImagSobre, &B::PonImagSobre>({0x68030009, L"ImagSobre", C::Apariencia}),
        metodo<&B::Actualizar>(0x6003003B, L"Actualizar"),
        propiedad<&B::Expandir, &B::PonExpandir>({0x68030007, L"Expandir", C::Apariencia}),
        propiedad<&B::Enabled, &B::PonEnabled>(
            {0x68030006, L"Enabled", C::Comportamiento, L"Habilita y DesHabilita (que loco no?)"}),
        propiedad<&B::FocoVisible, &B::PonFocoVisible>(
            {0x68030005, L"FocoVisible", C::Comportamiento,
             L"Muestra un recuadro cuando el Botonazo tiene el foco"}),
        propiedad<&B::FocoConMouse, &B::PonFocoConMouse>(
            {0x68030004, L"FocoConMouse", C::Comportamiento,
             L"Cuando Pasas el Raton por el objeto, el mismo obtiene el foco"}),
        propiedad<&B::AnchoBorde, &B::PonAnchoBorde>(
            {0x68030003, L"AnchoBorde", C::Apariencia,
             L"Es el ancho del borde; En realidad es el efecto de levantado, osea la altura del "
             L"botón"}),
        propiedad<&B::TipoLetra, &B::PonTipoLetra>({0x68030002, L"TipoLetra", C::Apariencia}),
        propiedad<&B::CambioProgre, &B::PonCambioProgre>(
            {0x68030001, L"CambioProgre", C::Comportamiento}),
        propiedad<&B::CambioProgrePasos, &B::PonCambioProgrePasos>(
            {0x68030000, L"CambioProgrePasos", C::Comportamiento}),
    };

    using E = EventosBotonazo;
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
        evento<&E::Validate>(10, L"Validate", L"Cancel"),
        evento<&E::Resize>(11, L"Resize"),
    };
};

} // namespace pincela::componente
