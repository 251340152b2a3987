// The one exception type of the component: a run-time error of the automation environment.
#pragma once

#include "common/texto.h"

#include <cstdint>
#include <exception>

namespace pincela {

enum class NumeroError : std::int32_t {
    LlamadaNoValida = 5,
    Desbordamiento = 6,
    SinMemoria = 7,
    Subindice = 9,
    DivisionPorCero = 11,
    TiposNoCoinciden = 13,
    PermisoDenegado = 70,
    NuloNoValido = 94,
    ValorDePropiedad = 380,
};

/// Text shown to the user for an error number, in Spanish.
Texto DescripcionDe(NumeroError numero);

/// Thrown by the controls; crosses to the outside in one place, as a status with error information.
class ErrorEjecucion : public std::exception {
  public:
    explicit ErrorEjecucion(NumeroError numero) : numero_(numero) {}

    NumeroError Numero() const { return numero_; }
    const char* what() const noexcept override { return "run-time error of the component"; }

  private:
    NumeroError numero_;
};

[[noreturn]] void Lanzar(NumeroError numero);

} // namespace pincela
