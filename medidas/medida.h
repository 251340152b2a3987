// Ratios of two pieces of work done in turns.
#pragma once

#include "anfitrion/componente.h"

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace medidas {

using Accion = std::function<void()>;

/// One side of a comparison: what is timed, and what stands around it each round and is not.
struct Lado {
    Accion hacer;
    Accion preparar = [] {};
    Accion recoger = [] {};
};

/// Median of the time of `medido` over the median of the time of `vara`, rounds interleaved so that
/// whatever else the machine does falls on both. `hacer` of either runs `repeticiones` times a
/// round; many short rounds, of a millisecond or less, are seldom interrupted.
double Razon(const Lado& medido, const Lado& vara, int repeticiones, int rondas = 201);

/// The middle one; `valores` is not empty.
double Mediana(std::vector<double> valores);

/// Prints "medida NAME ratio R limit L"; false when the ratio is over its limit.
bool Informar(const std::string& nombre, double razon, double limite);

/// The component file that lies beside this program.
std::wstring RutaComponente();
anfitrion::Componente AbrirComponente();

// Each prints its lines and tells whether all stayed within their limits. Throws
// anfitrion::FalloCom when what is measured does not work.
bool MedirDegrade();
bool MedirPintar();
bool MedirInvoke();
bool MedirCrear();
bool MedirCargar();
bool MedirMemoria();
bool MedirTamanio();
bool MedirTransparencia();

} // namespace medidas
