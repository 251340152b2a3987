// One class of control: its core, its default interface and its events, from its table.
#pragma once

#include "componente/control/objeto_control.h"

namespace pincela::componente {

/// An event goes out with references to the caller's variables. A boolean has another width out
/// there, so it travels through a copy that is brought back.
template <class T>
void SacarArgumento(T& valor, VARIANTARG& v, VARIANT_BOOL& copia) {
    VariantInit(&v);
    V_VT(&v) = static_cast<VARTYPE>(TipoDe<T>().vt | VT_BYREF);
    if constexpr (std::is_same_v<T, bool>) {
        copia = HaciaBool(valor);
        V_BYREF(&v) = &copia;
    } else {
        V_BYREF(&v) = &valor;
    }
}
template <class T>
void TraerArgumento(T& valor, VARIANT_BOOL copia) {
    if constexpr (std::is_same_v<T, bool>)
        valor = copia != VARIANT_FALSE;
}

template <class Tabla, const DatosClase& DatosDeClase>
class Control final : public ObjetoControl {
  public:
    Control() : ObjetoControl(Publicar<Tabla>(DatosDeClase)), nucleo_(entorno_) {
        ParaCadaEvento<Tabla>(
            [this]<class E, std::size_t I>(const E&, std::integral_constant<std::size_t, I>) {
                Conectar<I + 1>(nucleo_.eventos.*E::Campo);
            });
        Nacer(&nucleo_);
    }
    ~Control() override { Morir(); }

  private:
    template <DISPID Numero, class... A>
    void Conectar(Evento<A...>& evento) {
        evento.Conectar([this](A&... argumentos) {
            constexpr std::size_t cuantos = sizeof...(A);
            VARIANTARG v[cuantos + 1]; // never of length 0
            [[maybe_unused]] VARIANT_BOOL copias[cuantos + 1];
            [[maybe_unused]] std::size_t lugar = cuantos; // they go backwards
            ((--lugar, SacarArgumento(argumentos, v[lugar], copias[lugar])), ...);
            RaiseEvent(Numero, v, cuantos);
            lugar = cuantos;
            ((--lugar, TraerArgumento(argumentos, copias[lugar])), ...);
        });
    }

    ControlUsuario* Nucleo() override { return &nucleo_; }

    typename Tabla::Nucleo nucleo_;
};

template <class Tabla, const DatosClase& DatosDeClase>
IUnknown* CrearControl() {
    return (new Control<Tabla, DatosDeClase>)->Identidad();
}

} // namespace pincela::componente
