// One factory for each published class: all of them can be made.
#pragma once

#include "pruebas/componente/comun/modulo.h"

#include <doctest/doctest.h>

namespace publicado {

using anfitrion::Puntero;

/// Calls `f(clase, fabrica)`.
template <class F>
void ParaCadaClase(const Modulo& modulo, F f) {
    for (const Clase& una : Clases) {
        INFO(anfitrion::Estrechar(una.nombre));
        Puntero<IClassFactory> fabrica;
        REQUIRE(modulo.DarClase(Guid(una.clase), IID_IClassFactory, fabrica.RecibirVoid()) == S_OK);
        f(una, fabrica.get());
    }
}

inline Puntero<IUnknown> Hecho(IClassFactory* fabrica) {
    Puntero<IUnknown> objeto;
    REQUIRE(fabrica->CreateInstance(nullptr, IID_IUnknown, objeto.RecibirVoid()) == S_OK);
    return objeto;
}

inline void* const Veneno = reinterpret_cast<void*>(static_cast<UINT_PTR>(0xDEAD));
inline constexpr const wchar_t* Inexistente = L"{0F0E0D0C-0B0A-0908-0706-050403020100}";

} // namespace publicado
