// Size of the 32-bit component file against what a download should not exceed.
#include "medidas/medida.h"

namespace medidas {

bool MedirTamanio() {
    if constexpr (sizeof(void*) != 4)
        return true; // the other program's
    constexpr double limite = 600.0 * 1024;
    WIN32_FILE_ATTRIBUTE_DATA datos{};
    if (!GetFileAttributesExW(RutaComponente().c_str(), GetFileExInfoStandard, &datos))
        return false;
    return Informar("tamanio", datos.nFileSizeLow / limite, 1.0);
}

} // namespace medidas
