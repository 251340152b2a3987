// One class of control: its core, its default interface and its events, from its table.
#pragma once

#include "componente/control/objeto_control.h"

namespace pincela::componente {

template <class Tabla, const DatosClase& DatosDeClase>
class Control final : public ObjetoControl {
  public:
    Control() : ObjetoControl(Publicada<Tabla, DatosDeClase>), nucleo_(entorno_) {
        ParaCadaEvento<Tabla>(
            [this]<class E, std::size_t I>(const E&, std::integral_constant<std::size_t, I>) {
                Conectar(nucleo_.eventos.*E::Campo, static_cast<DISPID>(I + 1));
            });
        Nacer();
    }
    ~Control() override { Morir(); }

  private:
    ControlUsuario* Nucleo() override { return &nucleo_; }

    typename Tabla::Nucleo nucleo_;
};

template <class Tabla, const DatosClase& DatosDeClase>
IUnknown* CrearControl() {
    return (new Control<Tabla, DatosDeClase>)->Identidad();
}

} // namespace pincela::componente
