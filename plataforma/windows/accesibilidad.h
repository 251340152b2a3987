// What a screen reader is told about a window.
#pragma once

#include "common/texto.h"

#include <windows.h>

namespace pincela::windows {

/// Names a window for assistive programs; false where the platform has no such service.
bool NombrarVentana(HWND ventana, const Texto& nombre);

} // namespace pincela::windows
