#include "common/errores.h"

namespace pincela {

Texto DescripcionDe(NumeroError numero) {
    switch (numero) {
    case NumeroError::LlamadaNoValida:
        return u"Llamada a procedimiento o argumento no válidos";
    case NumeroError::Desbordamiento:
        return u"Desbordamiento";
    case NumeroError::SinMemoria:
        return u"Memoria insuficiente";
    case NumeroError::Subindice:
        return u"El subíndice está fuera del intervalo";
    case NumeroError::DivisionPorCero:
        return u"División por cero";
    case NumeroError::TiposNoCoinciden:
        return u"No coinciden los tipos";
    case NumeroError::PermisoDenegado:
        return u"Permiso denegado";
    case NumeroError::NuloNoValido:
        return u"Uso no válido de Null";
    case NumeroError::ValorDePropiedad:
        return u"El valor de la propiedad no es válido";
    }
    return u"Error en tiempo de ejecución";
}

void Lanzar(NumeroError numero) {
    throw ErrorEjecucion(numero);
}

} // namespace pincela
