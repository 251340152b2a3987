// A button made for a test, and everything that can be read from it.
#pragma once

#include "anfitrion/imagenes.h"
#include "anfitrion/tardio.h"
#include "pruebas/componente/comun/publicado.h"

#include <ocidl.h>

#include <string>
#include <vector>

namespace publicado {

using anfitrion::Leer;
using anfitrion::Poner;
using anfitrion::PonerRef;
using anfitrion::Puntero;
using anfitrion::Variante;

/// Every property of the button, in the order of its interface.
inline constexpr const wchar_t* PropiedadesDelBoton[] = {L"EfectoBoton",
                                                         L"AlinText",
                                                         L"Caption",
                                                         L"AlinImag",
                                                         L"Font",
                                                         L"ColorLetra",
                                                         L"ColorLetraSobre",
                                                         L"ColorFondo",
                                                         L"ColorFondoSobre",
                                                         L"MouseIcon",
                                                         L"MousePointer",
                                                         L"ToolTipText",
                                                         L"EstilosBord",
                                                         L"EstilosRell",
                                                         L"Estilos",
                                                         L"RelX",
                                                         L"RelY",
                                                         L"ImagNormal",
                                                         L"ImagSobre",
                                                         L"Expandir",
                                                         L"Enabled",
                                                         L"FocoVisible",
                                                         L"FocoConMouse",
                                                         L"AnchoBorde",
                                                         L"TipoLetra",
                                                         L"CambioProgre",
                                                         L"CambioProgrePasos"};

/// A control out of the component file, not yet initialised by anybody.
struct Objeto {
    explicit Objeto(std::wstring_view clase)
        : componente(anfitrion::Componente::DeFichero(RutaDelComponente())) {
        objeto = Crear(componente, clase);
        despacho = objeto.Como<IDispatch>();
    }

    template <class T>
    Puntero<T> Como() const {
        return objeto.Como<T>();
    }
    IDispatch* get() const { return despacho.get(); }

    SesionOle ole;
    anfitrion::Componente componente;
    Puntero<IUnknown> objeto;
    Puntero<IDispatch> despacho;
};

struct Boton : Objeto {
    Boton() : Objeto(L"Botonazo") {}
};

/// A font by its attributes, a picture by its kind and size in hundredths of a millimetre, anything
/// else by its text.
std::string Describir(const Variante& valor);

/// Every property as "Name = value".
std::vector<std::string> Retrato(IDispatch* boton);

/// Gives each property that is saved a value that is not its default.
void CambiarTodo(IDispatch* boton);

Puntero<IPictureDisp> MapaDePrueba(int lado);
Puntero<IPictureDisp> IconoDePrueba();
Puntero<IPictureDisp> MetaficheroDePrueba();

/// Answer of one assignment by name, S_OK when it went well.
HRESULT IntentarPoner(IDispatch* boton, const wchar_t* nombre, const Variante& valor);

} // namespace publicado
