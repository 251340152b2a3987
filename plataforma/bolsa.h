// The property bag of the host.
#pragma once

#include "common/texto.h"
#include "common/variante.h"

namespace pincela {

class BolsaPropiedades {
  public:
    virtual ~BolsaPropiedades() = default;

    /// The stored value, or `porDefecto` when the bag has no such key. An error of the bag other
    /// than a missing key is raised.
    virtual Variante ReadProperty(VistaTexto clave, const Variante& porDefecto) = 0;

    /// Leaves a value out that equals its default by the automation rules.
    virtual void WriteProperty(VistaTexto clave, const Variante& valor,
                               const Variante& porDefecto) = 0;
};

} // namespace pincela
