// The eight handles around a selected box.
#pragma once

#include "galeria/diseno/rejilla.h"

#include <array>

namespace diseno {

/// Clockwise from the upper left corner.
enum class Agarre { IzqSup, Sup, DerSup, Der, DerInf, Inf, IzqInf, Izq, Ninguno };

inline constexpr std::array Agarres{Agarre::IzqSup, Agarre::Sup, Agarre::DerSup, Agarre::Der,
                                    Agarre::DerInf, Agarre::Inf, Agarre::IzqInf, Agarre::Izq};

/// The square of a handle: outside the box and touching it, in the middle of a side or beyond a
/// corner.
Caja CajaDe(const Caja& caja, Agarre agarre, int lado);

/// The handle at a point. Corners win where they overlap with the middles of a small box.
Agarre AgarreEn(const Caja& caja, Punto punto, int lado);

/// The box with the edges of a handle moved by a distance and put on the grid; the opposite ones
/// stay. It doesn't get smaller than `minimo` on a side.
Caja Estirar(const Caja& caja, Agarre agarre, int dx, int dy, int minimo, Rejilla rejilla);

} // namespace diseno
