// Functions of a dual interface, called through its virtual table.
#pragma once

#include "anfitrion/variante.h"

namespace medidas {

/// The function behind a member: found once by its name in the type information, then called as a
/// compiled program calls it. Throws FalloCom when the interface has no such member.
void* Ranura(IDispatch* objeto, const wchar_t* nombre, INVOKEKIND clase);

template <class... A>
class Funcion {
  public:
    Funcion(IDispatch* objeto, const wchar_t* nombre, INVOKEKIND clase)
        : funcion_(reinterpret_cast<Puntero>(Ranura(objeto, nombre, clase))) {}

    /// `objeto` of the same class. Throws FalloCom.
    void operator()(IDispatch* objeto, A... argumentos) const {
        anfitrion::Comprobar(funcion_(objeto, argumentos...), "dual");
    }

  private:
    using Puntero = HRESULT(STDMETHODCALLTYPE*)(IDispatch*, A...);
    Puntero funcion_;
};

} // namespace medidas
