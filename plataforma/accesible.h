// What assistive programs are told of a control.
#pragma once

#include "common/texto.h"

namespace pincela {

struct Accesible {
    enum class Papel { Ninguno, Boton, Grupo, Campo };

    /// Ninguno: the control has nothing to say beside what its edit fields say of themselves.
    Papel papel = Papel::Ninguno;
    Texto nombre; // the caption as it is read, without ampersand
    Texto tecla;  // the access key, in capitals; empty for none
    Texto accion; // what the default action does; empty for none
    Texto valor;  // of an edit field
    bool habilitado = true;
    bool enfocable = false;
    bool pulsado = false;
    bool bajoElRaton = false;
    bool trancado = false; // can be read and not changed

    friend bool operator==(const Accesible&, const Accesible&) = default;
};

} // namespace pincela
