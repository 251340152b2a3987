// Text of the clipboard.
#pragma once

#include <windows.h>

#include <string>

namespace galeria {

/// False when another program holds the clipboard.
bool PonerEnPortapapeles(HWND ventana, const std::wstring& texto);
/// Empty when there is no text.
std::wstring LeerPortapapeles(HWND ventana);

} // namespace galeria
