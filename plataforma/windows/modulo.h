// The module this code was linked into.
#pragma once

#include <windows.h>

namespace pincela::windows {

/// The module this code was linked into, a program or a library.
HINSTANCE ModuloPropio();

} // namespace pincela::windows
