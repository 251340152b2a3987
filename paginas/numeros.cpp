#include "paginas/numeros.h"

#include "common/conversion.h"

#include <algorithm>

namespace pincela {

double LeerNumero(VistaTexto texto) {
    const char16_t decimal = RegionalActual().decimal;
    Texto escrito(texto);
    // With a separator of its own in the number, a comma can only part thousands.
    if (escrito.find(decimal) == Texto::npos)
        std::replace(escrito.begin(), escrito.end(), u',', decimal);
    return TextoADoble(escrito);
}

double NumeroInicial(VistaTexto texto) {
    Texto escrito(texto);
    std::replace(escrito.begin(), escrito.end(), u',', u'.');
    return Val(escrito);
}

} // namespace pincela
