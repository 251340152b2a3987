// What a control keeps with its form, learnt by letting it save and restore itself.
#pragma once

#include "common/variante.h"
#include "plataforma/control.h"

#include <optional>
#include <vector>

namespace pincela::manual {

struct Clave {
    Texto nombre;
    std::optional<Variante> siFalta;     ///< default when it is restored; none: it isn't read
    std::optional<Variante> noSeEscribe; ///< default when it is saved; none: it isn't written
};

/// The keys of a control just created, in the order of reading; those only written, last.
std::vector<Clave> ClavesDe(ControlUsuario& control);

} // namespace pincela::manual
