// Writes the side-by-side manifest, with which a program uses the component unregistered.
#pragma once

#include <windows.h>

#include <oaidl.h>

namespace pincela::generador {

/// The assembly `Pincela` of one width: its classes, type library and interfaces, to lie beside
/// the component's file. Replaces what is at `ruta`; throws EstadoFallido.
void EscribirManifiesto(SYSKIND sistema, const wchar_t* ruta);

} // namespace pincela::generador
