// Any bytes as a saved control. An input whose first byte is odd is what follows the header, which is
// then made to fit, so that the check sum keeps nobody out.
#include "common/guardado.h"
#include "pruebas/difusas/difusa.h"

#include <initializer_list>

using namespace pincela;

namespace {

std::uint32_t Suma(const Bytes& bytes, std::size_t desde) {
    std::uint32_t suma = 0xFFFFFFFFu;
    for (std::size_t i = desde; i < bytes.size(); ++i) {
        suma ^= bytes[i];
        for (int k = 0; k < 8; ++k)
            suma = (suma >> 1) ^ ((suma & 1) * 0xEDB88320u);
    }
    return ~suma;
}

Bytes ConCabecera(const std::uint8_t* datos, std::size_t largo) {
    Bytes bytes = EscribirGuardado({});
    bytes.resize(LargoDeCabecera);
    bytes.insert(bytes.end(), datos, datos + largo);
    std::size_t lugar = LargoDeCabecera - 2 * sizeof(std::uint32_t);
    for (const std::uint32_t numero :
         {static_cast<std::uint32_t>(largo), Suma(bytes, LargoDeCabecera)}) {
        std::memcpy(bytes.data() + lugar, &numero, sizeof numero);
        lugar += sizeof numero;
    }
    return bytes;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
    if (largo == 0)
        return 0;
    const Bytes bytes =
        datos[0] & 1 ? ConCabecera(datos + 1, largo - 1) : Bytes(datos + 1, datos + largo);
    ControlGuardado control;
    if (LeerGuardado(bytes, control) == Lectura::Bien)
        Exigir(EscribirGuardado(control) == bytes);
    else
        Exigir(control.propiedades.empty());
    return 0;
}
