#include "componente/manual/presentaciones.h"

namespace pincela::manual {

namespace {

constexpr Presentacion Presentaciones[] = {
    {L"Efectos",
     "La clase que dibuja: degradados, formas de ventana, copias transparentes y canales de un "
     "color. La puede crear cualquier programa o guion.",
     nullptr},
    {L"Botonazo",
     "Un botón que se pinta solo: cara lisa o degradada, cuadrada o redondeada, una imagen y un "
     "título en cualquiera de nueve lugares, y otro aspecto con el ratón encima.",
     "galeria.png"},
    {L"Area", "Un panel con título, fondo liso o degradado y bordes dibujados.",
     "galeria-paneles.png"},
    {L"Tbox", "Un campo de texto de una línea, con título y sombra.", "galeria-cajas.png"},
    {L"TBoxML", "Un campo de texto de varias líneas, con título y sombra.", nullptr},
    {L"TboxSS",
     "Un campo de texto de una línea, sin título ni sombra, con la selección a la vista del "
     "programa y Enter para ir al campo siguiente.",
     nullptr},
    {L"TboxSSML", "Como `TboxSS`, de varias líneas.", nullptr},
    {L"ProPGeneral", "Página de propiedades de `Botonazo`: lo general.", nullptr},
    {L"ProPColores", "Página de propiedades de `Botonazo`: colores y degradados.", nullptr},
    {L"ProPColoresArea", "Página de propiedades de `Area`: colores y degradado.", nullptr},
};

} // namespace

Presentacion PresentacionDe(std::wstring_view clase) {
    for (const Presentacion& una : Presentaciones)
        if (una.clase == clase)
            return una;
    return {clase, "", nullptr};
}

} // namespace pincela::manual
