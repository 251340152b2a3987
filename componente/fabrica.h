// Class factories.
#pragma once

#include <windows.h>

namespace pincela::componente {

/// Factory of a published class; CLASS_E_CLASSNOTAVAILABLE for any other.
HRESULT DarFabrica(REFCLSID clase, REFIID iid, void** salida);

} // namespace pincela::componente
