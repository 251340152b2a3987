// The component file itself: how many objects live, and the type library it carries.
#pragma once

#include "componente/clases.h"
#include "componente/com.h"

#include <string>

#include <oaidl.h>
#include <windows.h>

namespace pincela::componente {

HINSTANCE Modulo();
/// Where the file is, whatever the length of its path; empty when the system doesn't tell.
std::wstring ArchivoDelModulo();

/// Counts what keeps the file loaded: objects, factories and explicit locks.
void BloquearModulo();
void DesbloquearModulo();
bool ModuloOcioso();

/// Held by every object for as long as it lives.
class BloqueoDeModulo {
  public:
    BloqueoDeModulo() { BloquearModulo(); }
    BloqueoDeModulo(const BloqueoDeModulo&) = delete;
    BloqueoDeModulo& operator=(const BloqueoDeModulo&) = delete;
    ~BloqueoDeModulo() { DesbloquearModulo(); }
};

/// Type information by identifier, from the library inside the component file.
HRESULT InformacionDe(REFGUID guid, ITypeInfo** info);
HRESULT BibliotecaDeTipos(ITypeLib** biblioteca);

} // namespace pincela::componente
