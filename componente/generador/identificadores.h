// Writes the identifiers of interfaces as resources.
#pragma once

namespace pincela::generador {

/// For each class a resource "_IID_" and its name, for each control one "_SRCIID_" and its name:
/// a 32-bit length and the identifier. Throws EstadoFallido.
void EscribirIdentificadores(const wchar_t* ruta);

} // namespace pincela::generador
