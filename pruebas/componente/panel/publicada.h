// A panel out of the component file, and everything that can be read from it.
#pragma once

#include "pruebas/componente/comun/boton.h"
#include "pruebas/componente/persistencia/flujos.h"

#include <doctest/doctest.h>

/// Lists are worth reading when they differ.
template <>
struct doctest::StringMaker<std::vector<std::string>> {
    static doctest::String convert(const std::vector<std::string>& lineas) {
        std::string texto;
        for (const std::string& linea : lineas)
            texto += (texto.empty() ? "" : " | ") + linea;
        return texto.c_str();
    }
};

namespace publicado {

struct Panel : Objeto {
    Panel() : Objeto(L"Area") {}
};

inline std::vector<std::string> RetratoDelPanel(IDispatch* panel) {
    std::vector<std::string> lineas;
    for (const wchar_t* nombre :
         {L"AlinText", L"Caption", L"Font", L"ColorLetra", L"ColorFondo", L"MouseIcon",
          L"MousePointer", L"ToolTipText", L"EstilosBord", L"EstilosRell", L"Enabled",
          L"SeparaBorde", L"ColorDegrade", L"BackStyle", L"AnchoBorde", L"TipoLetra"})
        lineas.push_back(anfitrion::Estrechar(nombre) + " = " + Describir(Leer(panel, nombre)));
    return lineas;
}

/// Gives each property a value that is neither the new panel's nor a default.
inline void CambiarPanel(IDispatch* panel) {
    Poner(panel, L"AlinText", 8);
    Poner(panel, L"Caption", L"&Año nuevo");
    PonerRef(panel, L"Font", Variante(anfitrion::CrearFuente(L"Arial", 14.25, true, true).get()));
    Poner(panel, L"ColorLetra", 0x123456);
    Poner(panel, L"ColorFondo", 0x00C0FF);
    PonerRef(panel, L"MouseIcon", Variante(IconoDePrueba().get()));
    Poner(panel, L"MousePointer", short{99});
    Poner(panel, L"ToolTipText", L"una ayuda");
    Poner(panel, L"EstilosBord", 4);
    Poner(panel, L"EstilosRell", 3);
    Poner(panel, L"Enabled", false);
    Poner(panel, L"SeparaBorde", 2);
    Poner(panel, L"ColorDegrade", L"16777215*255*0");
    Poner(panel, L"BackStyle", 0);
    Poner(panel, L"AnchoBorde", 3);
    Poner(panel, L"TipoLetra", 4);
}

inline std::vector<std::string> RetratoCambiado() {
    return {"AlinText = 8",
            "Caption = &Año nuevo",
            "Font = Arial 142500 B I",
            "ColorLetra = 1193046",
            "ColorFondo = 49407",
            "MouseIcon = icon 423x423",
            "MousePointer = 99",
            "ToolTipText = una ayuda",
            "EstilosBord = 4",
            "EstilosRell = 3",
            "Enabled = False",
            "SeparaBorde = 2",
            "ColorDegrade = 16777215*255*0",
            "BackStyle = 0",
            "AnchoBorde = 3",
            "TipoLetra = 4"};
}

} // namespace publicado
