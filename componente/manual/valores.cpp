#include "componente/manual/valores.h"

#include "common/conversion.h"
#include "componente/manual/escrito.h"
#include "componente/tablas/enumeraciones.h"

#include <cstdio>

namespace pincela::manual {

using namespace pincela::componente;

namespace {

std::string EscribirNumero(long numero, const Tipo& tipo) {
    char texto[16];
    if (tipo.familia == Familia::ColorOle) {
        std::snprintf(texto, sizeof texto, "&H%08lX", static_cast<unsigned long>(numero));
        return texto;
    }
    if (tipo.familia == Familia::Enumeracion)
        for (const MiembroEnumeracion& uno : tipo.enumeracion->miembros)
            if (uno.valor == numero)
                return Utf8(uno.nombre) + " (" + std::to_string(numero) + ")";
    return std::to_string(numero);
}

std::string EscribirReal(double numero) {
    char texto[32];
    std::snprintf(texto, sizeof texto, "%.6g", numero);
    return texto;
}

std::string EscribirObjeto(const ReferenciaObjeto& objeto) {
    if (!objeto)
        return "ninguno";
    return dynamic_cast<const ObjetoFuente*>(objeto.get()) ? "la fuente del contenedor"
                                                           : "un objeto";
}

} // namespace

std::string Escribir(const Variante& valor, const Tipo& tipo) {
    return std::visit(
        [&]<class T>(const T& v) -> std::string {
            if constexpr (std::is_same_v<T, bool>)
                return v ? "True" : "False";
            else if constexpr (std::is_floating_point_v<T>)
                return EscribirReal(v);
            else if constexpr (std::is_integral_v<T>)
                return EscribirNumero(v, tipo);
            else if constexpr (std::is_same_v<T, Texto>)
                return "\"" + Utf8({reinterpret_cast<const wchar_t*>(v.data()), v.size()}) + "\"";
            else if constexpr (std::is_same_v<T, ReferenciaObjeto>)
                return EscribirObjeto(v);
            else
                return "vacío";
        },
        valor);
}

} // namespace pincela::manual
