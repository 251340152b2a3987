#include "plataforma/windows/modulo.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace pincela::windows {

HINSTANCE ModuloPropio() {
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

} // namespace pincela::windows
