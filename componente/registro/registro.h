// Registration of the component. The classes and interfaces of each width are kept apart; their
// names and the type library are shared by both.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace pincela::componente {

/// One value below the root of a hive; the default value when `nombre` is empty.
struct ClaveDeRegistro {
    std::wstring ruta;
    std::wstring nombre;
    std::wstring valor;
};

/// Everything the component registers, for the file at `archivo`.
std::vector<ClaveDeRegistro> ClavesDelComponente(const std::wstring& archivo);

/// Writes all the keys below `raiz`. When one can't be written, those already written are taken
/// back, what they replaced returns, and the error is returned.
HRESULT Registrar(HKEY raiz, const std::wstring& archivo);

/// Removes what names the file at `archivo`, also when only a part is there, and what is shared as
/// soon as nobody else needs it. Goes on after an error and returns the first one; S_OK where there
/// is nothing to do.
HRESULT Desregistrar(HKEY raiz, const std::wstring& archivo);

} // namespace pincela::componente
