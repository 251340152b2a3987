// Registration of the component: which keys it needs, and writing or removing them.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace pincela::componente {

/// One value under the classes of a hive; the default value when `nombre` is empty.
struct ClaveDeRegistro {
    std::wstring ruta; // below Software\Classes
    std::wstring nombre;
    std::wstring valor;
};

/// Everything the component registers, for the file at `archivo`.
std::vector<ClaveDeRegistro> ClavesDelComponente(const std::wstring& archivo);

/// Writes all the keys under `raiz`\Software\Classes. When one can't be written, those already
/// written are taken back and the error is returned.
HRESULT Registrar(HKEY raiz, const std::wstring& archivo);

/// Removes whatever Registrar writes, also when only a part is there.
HRESULT Desregistrar(HKEY raiz);

} // namespace pincela::componente
