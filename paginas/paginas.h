// The members the property pages publish.
#pragma once

#include "common/objeto.h"

#include <cstdint>

namespace pincela {

/// Colours of a button. `Obj` and `Objs` are rows of colour-stop buttons, `I` the highest index of
/// the row or the state (0 normal, 1 with the mouse over).
class ProPColores {
  public:
    void AgregarColorD(const ReferenciaObjeto& Obj, const std::uint8_t& I);
    void EliminarColorD(const ReferenciaObjeto& Obj, const std::uint8_t& I);
    void PreVis(const std::uint8_t& I, const ReferenciaObjeto& Objs);
};

/// General settings of a button; publishes no members of its own.
class ProPGeneral {};

/// Colours and general settings of a panel.
class ProPColoresArea {
  public:
    void AgregarColorD(const ReferenciaObjeto& Obj, const std::uint8_t& I);
    void EliminarColorD(const ReferenciaObjeto& Obj, const std::uint8_t& I);
    void PreVis(const ReferenciaObjeto& Objs);
};

} // namespace pincela
