// Life and identity of an object.
#pragma once

#include "componente/modulo.h"
#include "plataforma/windows/aritmetica.h"

#include <windows.h>

namespace pincela::componente {

/// Counts references of an apartment-threaded object. The last release may call the container,
/// which may hold and release the object once more: that must not destroy it twice.
class CuentaReferencias {
  public:
    ULONG Sumar() { return static_cast<ULONG>(InterlockedIncrement(&cuenta_)); }

    template <class T>
    ULONG Restar(T* objeto) {
        const LONG queda = InterlockedDecrement(&cuenta_);
        if (queda == 0 && !destruyendo_) {
            destruyendo_ = true;
            const windows::AritmeticaPropia propia;
            delete objeto;
            return 0;
        }
        return static_cast<ULONG>(queda);
    }

  private:
    LONG cuenta_ = 1;
    bool destruyendo_ = false;
    BloqueoDeModulo bloqueo_;
};

} // namespace pincela::componente
