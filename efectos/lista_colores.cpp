#include "efectos/lista_colores.h"

#include "common/conversion.h"
#include "common/entero_corto.h"

#include <algorithm>

namespace pincela {

bool EsListaUsable(VistaTexto lista) {
    return lista.find(kSeparadorColores) != VistaTexto::npos;
}

ListaColores LeerColores(VistaTexto lista) {
    ListaColores colores;
    for (;;) {
        std::int32_t valor = 0;
        std::size_t fin = LeerEnteroCorto(lista, valor);
        if (fin == 0 || (fin != lista.size() && lista[fin] != kSeparadorColores)) {
            fin = std::min(lista.find(kSeparadorColores), lista.size());
            valor = TextoAEntero32(lista.substr(0, fin));
        }
        colores.Agregar(Color(valor));
        if (fin == lista.size())
            return colores;
        lista.remove_prefix(fin + 1);
    }
}

std::vector<Color> ColoresDeEdicion(VistaTexto lista) {
    const ListaColores colores = LeerColores(lista.empty() ? kListaPredeterminada : lista);
    return {colores.Vista().begin(), colores.Vista().end()};
}

void AgregarColor(Texto& lista, Color color) {
    if (!lista.empty())
        lista += kSeparadorColores;
    lista += EnteroATexto(color.valor);
}

Texto UnirColores(std::span<const Color> colores) {
    Texto lista;
    for (const Color color : colores)
        AgregarColor(lista, color);
    return lista;
}

Texto InvertirLista(VistaTexto lista) {
    const std::vector<Texto> partes = Partir(lista, kSeparadorColores);
    Texto invertida;
    // The pieces are counted in 16 bits.
    for (int i = Entero16(static_cast<std::int64_t>(partes.size()) - 1); i >= 0; --i) {
        if (!invertida.empty())
            invertida += kSeparadorColores;
        invertida += partes[static_cast<std::size_t>(i)];
    }
    return invertida;
}

} // namespace pincela
