// The type library under test, once out of the component file and once out of the registry.
#pragma once

#include "pruebas/componente/comun/publicado.h"

#include <doctest/doctest.h>

namespace tipos {

inline anfitrion::Puntero<ITypeLib> BibliotecaPorTurno() {
    anfitrion::Puntero<ITypeLib> biblioteca;
    SUBCASE("in the component file") {
        REQUIRE(LoadTypeLibEx(publicado::RutaDelComponente().c_str(), REGKIND_NONE,
                              biblioteca.Recibir()) == S_OK);
    }
    SUBCASE("as registered") {
        REQUIRE(LoadRegTypeLib(publicado::Guid(publicado::Biblioteca), 1, 0, 0x409,
                               biblioteca.Recibir()) == S_OK);
    }
    return biblioteca;
}

} // namespace tipos
