// The properties of an object as its type library describes them: what a property list shows.
#pragma once

#include "anfitrion/com.h"
#include "anfitrion/variante.h"

#include <oaidl.h>

#include <string>
#include <vector>

namespace anfitrion {

/// Kinds of values, by the way in which they are edited.
enum class Genero { Texto, Entero, Real, Logico, Enumerada, Color, Fuente, Imagen, Otro };

/// Member of an enumeration.
struct Opcion {
    std::wstring nombre;
    long valor;
};

struct Propiedad {
    std::wstring nombre;
    std::wstring ayuda; ///< help string; may be empty
    DISPID numero = DISPID_UNKNOWN;
    Genero genero = Genero::Otro;
    VARTYPE tipo = VT_EMPTY;      ///< automation type of the value
    WORD modo = 0;                ///< DISPATCH_PROPERTYPUT or ...PUTREF; 0 when it can only be read
    std::vector<Opcion> opciones; ///< of an enumeration

    bool SoloLectura() const { return modo == 0; }
};

/// Properties without arguments, in the order of their names; those hidden or not for browsing are
/// left out. Empty when the object tells nothing about its type.
std::vector<Propiedad> PropiedadesDe(IDispatch* objeto);

/// Value of a property, and a new one for it. They throw FalloCom.
Variante Leer(IDispatch* objeto, const Propiedad& propiedad);
void Poner(IDispatch* objeto, const Propiedad& propiedad, const Variante& valor);

} // namespace anfitrion
