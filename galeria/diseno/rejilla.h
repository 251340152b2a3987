// The grid that edges snap to.
#pragma once

#include "galeria/diseno/geometria.h"

namespace diseno {

/// A step of 1 snaps to nothing.
struct Rejilla {
    int paso = 1;

    /// The nearest line of the grid; halfway goes to the greater one.
    int Ajustar(int valor) const {
        const int corrido = valor + paso / 2;
        const int lineas = corrido >= 0 ? corrido / paso : (corrido - paso + 1) / paso;
        return lineas * paso;
    }
    Punto Ajustar(Punto p) const { return {Ajustar(p.x), Ajustar(p.y)}; }
};

} // namespace diseno
