// The one gate from exceptions to statuses.
#pragma once

#include "common/errores.h"
#include "componente/clases.h"
#include "plataforma/windows/aritmetica.h"

#include <windows.h>

namespace pincela::componente {

/// Status of a run-time error of the automation environment.
constexpr HRESULT EstadoDe(NumeroError numero) {
    return static_cast<HRESULT>(0x800A0000u + static_cast<unsigned>(numero));
}

/// A status of the platform that travels as an exception up to the gate.
struct FalloCom {
    HRESULT estado;
};
inline void Exigir(HRESULT estado) {
    if (FAILED(estado))
        throw FalloCom{estado};
}

/// Status of a failure that has nothing to tell beside it: the thread's error information, which is
/// somebody else's by now, must not be taken for ours.
HRESULT SinErrorInfo(HRESULT estado) noexcept;

/// Called inside a catch block: status of the exception in flight, with its error information left
/// for the caller, or none. `interfaz` is the interface that fails, `clase` the name shown as
/// source.
HRESULT EstadoDeLaExcepcion(REFIID interfaz, const wchar_t* clase) noexcept;

/// Fills error information for a run-time error without raising it.
void DejarErrorInfo(REFIID interfaz, const wchar_t* clase, NumeroError numero) noexcept;

/// Runs `f`, which returns a status, in the component's own arithmetic; nothing it throws leaves.
template <class F>
HRESULT Proteger(const DatosClase& datos, F&& f) noexcept {
    const windows::AritmeticaPropia propia;
    try {
        return f();
    } catch (...) {
        return EstadoDeLaExcepcion(datos.interfaz, datos.nombre);
    }
}

} // namespace pincela::componente
