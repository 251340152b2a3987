#include "common/texto.h"

namespace pincela {

std::size_t Posicion(VistaTexto pajar, VistaTexto aguja) {
    if (pajar.empty())
        return 0;
    const std::size_t indice = pajar.find(aguja);
    return indice == VistaTexto::npos ? 0 : indice + 1;
}

std::vector<Texto> Partir(VistaTexto texto, char16_t separador) {
    std::vector<Texto> partes;
    for (;;) {
        const std::size_t fin = texto.find(separador);
        partes.emplace_back(texto.substr(0, fin));
        if (fin == VistaTexto::npos)
            return partes;
        texto.remove_prefix(fin + 1);
    }
}

} // namespace pincela
