// A machine without our registration, for the length of a test.
#pragma once

#include "pruebas/componente/comun/modulo.h"

#include <doctest/doctest.h>

namespace publicado {

/// The machine is left registered and the user without, as they were found.
class SinRegistro {
  public:
    SinRegistro() {
        REQUIRE(modulo_.Instalar(false, L"user") == S_OK);
        REQUIRE(modulo_.Desregistrar() == S_OK);
    }
    SinRegistro(const SinRegistro&) = delete;
    SinRegistro& operator=(const SinRegistro&) = delete;
    ~SinRegistro() { modulo_.Registrar(); }

  private:
    Modulo modulo_;
};

} // namespace publicado
