// Writes the type library from the tables, with the platform's own creator.
#pragma once

#include <windows.h>

#include <oaidl.h>

namespace pincela::generador {

/// Writes the library for one kind of system to `ruta`, replacing what is there.
/// Throws EstadoFallido when a step is refused.
void EscribirBiblioteca(SYSKIND sistema, const wchar_t* ruta);

struct EstadoFallido {
    HRESULT estado;
    const char* paso;
};

} // namespace pincela::generador
