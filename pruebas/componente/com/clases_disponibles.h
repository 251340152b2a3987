// One factory for each class that can be made.
#pragma once

#include "pruebas/componente/comun/modulo.h"

#include <doctest/doctest.h>

namespace publicado {

using anfitrion::Puntero;

/// Calls `f(clase, fabrica)`; a class that is not available yet has to say so and nothing else.
template <class F>
void ParaCadaClaseDisponible(const Modulo& modulo, F f) {
    for (const Clase& una : Clases) {
        INFO(anfitrion::Estrechar(una.nombre));
        Puntero<IClassFactory> fabrica;
        const HRESULT estado =
            modulo.DarClase(Guid(una.clase), IID_IClassFactory, fabrica.RecibirVoid());
        if (estado == CLASS_E_CLASSNOTAVAILABLE) {
            CHECK_FALSE(fabrica);
            continue;
        }
        REQUIRE(estado == S_OK);
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
