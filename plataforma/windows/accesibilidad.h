// What a screen reader is told about a window.
#pragma once

#include "common/texto.h"

#include <windows.h>

namespace pincela::windows {

/// Names a window for assistive programs; without effect where the platform has no such service.
void NombrarVentana(HWND ventana, const Texto& nombre);

} // namespace pincela::windows
