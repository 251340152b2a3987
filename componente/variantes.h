// Between VARIANT and the values of the core.
#pragma once

#include "common/conversion.h"
#include "common/errores.h"
#include "common/variante.h"
#include "componente/com.h"

#include <windows.h>

#include <oaidl.h>

namespace pincela::componente {

/// Any other object of the outside, held as it came.
class ObjetoCom final : public Objeto {
  public:
    explicit ObjetoCom(IUnknown* objeto) : objeto_(objeto) {}
    IUnknown* Com() const { return objeto_.get(); }
    bool EsElMismo(const Objeto& otro) const override;

  private:
    Ptr<IUnknown> objeto_;
};

/// Follows references; fonts and pictures become the core's own reference types. A type that has no
/// counterpart (arrays, records) raises TiposNoCoinciden.
Variante DesdeVariant(const VARIANT& v);
/// `*v` is overwritten, not cleared.
void HaciaVariant(const Variante& valor, VARIANT* v);

VARIANT_BOOL HaciaBool(bool valor);
Texto DesdeBstr(BSTR texto);
/// Throws std::bad_alloc.
BSTR HaciaBstr(const Texto& texto);

/// Reference for the caller; null for an empty reference.
IDispatch* HaciaDispatch(const ReferenciaObjeto& objeto);
ReferenciaObjeto DesdeObjeto(IUnknown* objeto);

} // namespace pincela::componente
