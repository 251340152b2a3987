// Ratios of two pieces of work done in turns.
#pragma once

#include "anfitrion/componente.h"

#include <windows.h>

#include <functional>
#include <string>

namespace medidas {

/// Median of the time of `medido` over the median of the time of `vara`, rounds interleaved so that
/// whatever else the machine does falls on both. Each call of either is one repetition.
double Razon(const std::function<void()>& medido, const std::function<void()>& vara,
             int repeticiones, int rondas = 41);

/// Prints "medida NAME ratio R limit L"; false when the ratio is over its limit.
bool Informar(const std::string& nombre, double razon, double limite);

/// The component file that lies beside this program.
std::wstring RutaComponente();
anfitrion::Componente AbrirComponente();

// Each prints its lines and tells whether all stayed within their limits.
bool MedirDegrade();
bool MedirInvoke();
bool MedirTamanio();

} // namespace medidas
