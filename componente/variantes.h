// Between VARIANT and the values of the core.
#pragma once

#include "common/color.h"
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
/// counterpart (arrays, records) raises TiposNoCoinciden; numbers that have none become doubles.
Variante DesdeVariant(const VARIANT& v);

// Late-bound values as the type that a member wants, by the automation runtime's own conversions in
// the user's locale: references are followed, and an object stands for its default member. They
// raise FalloCom with the runtime's status (DISP_E_TYPEMISMATCH, DISP_E_OVERFLOW…).

/// `tipo` is a number's or VT_BOOL: the result owns nothing.
VARIANT NumeroTardio(const VARIANT& v, VARTYPE tipo);
Texto TextoTardio(const VARIANT& v);
/// Any pattern of 32 bits, as a negative number or as a positive one: scripts write system colours
/// either way.
Color ColorTardio(const VARIANT& v);

/// A value of any type. An object without a default member stays the object.
Variante ValorTardioDe(const VARIANT& v);

/// Whether an argument stands for one that was left out.
bool EsOmitido(const VARIANT& v);
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
