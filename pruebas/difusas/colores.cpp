// Any text as a list of colours.
#include "common/errores.h"
#include "efectos/lista_colores.h"
#include "pruebas/difusas/difusa.h"

#include <algorithm>

using namespace pincela;

namespace {

void Leer(const Texto& texto) {
    const ListaColores lista = LeerColores(texto);
    const auto colores = lista.Vista();
    Exigir(colores.size() == Partir(texto, kSeparadorColores).size());
    Exigir(EsListaUsable(texto) == (colores.size() > 1));
    const ListaColores vuelta = LeerColores(UnirColores(colores));
    Exigir(std::ranges::equal(vuelta.Vista(), colores));
    Exigir(ColoresDeEdicion(texto).size() == colores.size());
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
    const Texto texto = TextoDe(datos, largo);
    try {
        Leer(texto);
    } catch (const ErrorEjecucion&) {
    }
    try {
        const Texto vuelta = InvertirLista(texto);
        Exigir(vuelta.size() <= texto.size());
    } catch (const ErrorEjecucion& error) {
        Exigir(error.Numero() == NumeroError::Desbordamiento);
    }
    return 0;
}
