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
            {L"EfectoBoton", C::Apariencia,
             L"Estilos de boton (Efectos para la concha de tu madre)"}),
        propiedad<&B::AlinText, &B::PonAlinText>(
            {L"AlinText", C::Apariencia, L"Alinea el texto a donde se te antoje"}),
        propiedad<&B::Caption, &B::PonCaption>(
            {L"Caption", C::Datos,
             L"Devuelve o establece el texto mostrado en la barra de título de un objeto o bajo el "
             L"icono de un objeto.",
             DISPID_CAPTION}),
        propiedad<&B::AlinImag, &B::PonAlinImag>({L"AlinImag", C::Apariencia, L"Alinea la imagen"}),
        propiedad<&B::Font, &B::PonFont>(
            {L"Font", C::Fuente, L"La fuente que utiliza el botonazo", DISPID_FONT}),
        propiedad<&B::ColorLetra, &B::PonColorLetra>(
            {L"ColorLetra", C::Apariencia,
             L"Es Pa' el Color de letra cuando el mouse no se posisiona sobre el control"}),
        propiedad<&B::ColorLetraSobre, &B::PonColorLetraSobre>(
            {L"ColorLetraSobre", C::Apariencia, L"¿Que puede ser? Pensa un poquito"}),
        propiedad<&B::ColorFondo, &B::PonColorFondo>(
            {L"ColorFondo", C::Apariencia,
             L"Color de fondo del botonazo, Cuando el estilo de relleno es solido, color en estado "
             L"normal"}),
        propiedad<&B::ColorFondoSobre, &B::PonColorFondoSobre>(
            {L"ColorFondoSobre", C::Apariencia,
             L"Color de fondo del botonazo, Cuando el estilo de relleno es solido, color en estado "
             L"Sobre"}),
        propiedad<&B::MouseIcon, &B::PonMouseIcon>(
            {L"MouseIcon", C::Otras, L"Establece un icono personalizado para el mouse."}),
        propiedad<&B::MousePointer, &B::PonMousePointer>(
            {L"MousePointer", C::Otras,
             L"Devuelve o establece el tipo de puntero del mouse mostrado al pasar por encima de "
             L"un "
             L"objeto."}),
        propiedad<&B::ToolTipText, &B::PonToolTipText>(
            {L"ToolTipText", C::Otras, L"sasa PEPE TITIT TOTO"}),
        propiedad<&B::EstilosBord, &B::PonEstilosBord>(
            {L"EstilosBord", C::Apariencia, L"Solo Funciona Ninguno, y Normal, por ahora"}),
        propiedad<&B::EstilosRell, &B::PonEstilosRell>({L"EstilosRell", C::Apariencia}),
        propiedad<&B::Estilos, &B::PonEstilos>({L"Estilos", C::Apariencia, L"sasa"}),
        propiedad<&B::RelX, &B::PonRelX>(
            {L"RelX", C::Apariencia,
             L"Son Valores Que estan relacionados con la curbatura del boton, solo se aplican "
             L"cuando el estilo es REDONDEADO"}),
        propiedad<&B::RelY, &B::PonRelY>(
            {L"RelY", C::Apariencia,
             L"Son Valores Que estan relacionados con la curbatura del boton, solo se aplican "
             L"cuando el estilo es REDONDEADO"}),
        propiedad<&B::ImagNormal, &B::PonImagNormal>({L"ImagNormal", C::Apariencia}),
        propiedad<&B::ImagSobre, &B::PonImagSobre>({L"ImagSobre", C::Apariencia}),
        metodoEntrePropiedades<&B::Actualizar>(L"Actualizar", 0x6003003B),
        propiedad<&B::Expandir, &B::PonExpandir>({L"Expandir", C::Apariencia}),
        propiedad<&B::Enabled, &B::PonEnabled>(
            {L"Enabled", C::Comportamiento, L"Habilita y DesHabilita (que loco no?)"}),
        propiedad<&B::FocoVisible, &B::PonFocoVisible>(
            {L"FocoVisible", C::Comportamiento,
             L"Muestra un recuadro cuando el Botonazo tiene el foco"}),
        propiedad<&B::FocoConMouse, &B::PonFocoConMouse>(
            {L"FocoConMouse", C::Comportamiento,
             L"Cuando Pasas el Raton por el objeto, el mismo obtiene el foco"}),
        propiedad<&B::AnchoBorde, &B::PonAnchoBorde>(
            {L"AnchoBorde", C::Apariencia,
             L"Es el ancho del borde; En realidad es el efecto de levantado, osea la altura del "
             L"botón"}),
        propiedad<&B::TipoLetra, &B::PonTipoLetra>({L"TipoLetra", C::Apariencia}),
        propiedad<&B::CambioProgre, &B::PonCambioProgre>({L"CambioProgre", C::Comportamiento}),
        propiedad<&B::CambioProgrePasos, &B::PonCambioProgrePasos>(
            {L"CambioProgrePasos", C::Comportamiento}),
    };

    using E = EventosBotonazo;
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
        evento<&E::Validate>(L"Validate", L"Cancel"),
        evento<&E::Resize>(L"Resize"),
    };
};

} // namespace pincela::componente
