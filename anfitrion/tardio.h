// Late binding: members of an object reached by name or by number, as a script reaches them.
#pragma once

#include "anfitrion/variante.h"

#include <initializer_list>

namespace anfitrion {

using Argumentos = std::initializer_list<Variante>;

/// Number of a member; throws FalloCom (DISP_E_UNKNOWNNAME) when there is none.
DISPID Numero(IDispatch* objeto, const wchar_t* nombre);

/// One call of Invoke with the arguments in their natural order. `modo` is DISPATCH_METHOD,
/// DISPATCH_PROPERTYGET, DISPATCH_PROPERTYPUT or DISPATCH_PROPERTYPUTREF; for the puts the value is
/// the last argument. An exception record becomes FalloCom with its status, text and source.
Variante Invocar(IDispatch* objeto, DISPID numero, WORD modo, Argumentos argumentos = {});

Variante Leer(IDispatch* objeto, const wchar_t* nombre, Argumentos argumentos = {});
void Poner(IDispatch* objeto, const wchar_t* nombre, const Variante& valor);
void PonerRef(IDispatch* objeto, const wchar_t* nombre, const Variante& valor);
Variante Llamar(IDispatch* objeto, const wchar_t* nombre, Argumentos argumentos = {});

/// True when the object publishes a member of that name.
bool Tiene(IDispatch* objeto, const wchar_t* nombre);

} // namespace anfitrion
