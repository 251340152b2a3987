// One class of control: its core and its events, from its table.
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

/// What the core raises through `evento` goes out of `objeto` as number `numero`.
template <class... A>
void Conectar(ObjetoControl& objeto, Evento<A...>& evento, DISPID numero) {
    evento.Conectar([&objeto, numero](A&... argumentos) {
        constexpr std::size_t cuantos = sizeof...(A);
        VARIANTARG v[cuantos + 1]; // never of length 0
        [[maybe_unused]] VARIANT_BOOL copias[cuantos + 1];
        [[maybe_unused]] std::size_t lugar = cuantos; // they go backwards
        ((--lugar, SacarArgumento(argumentos, v[lugar], copias[lugar])), ...);
        objeto.RaiseEvent(numero, v, cuantos);
        lugar = cuantos;
        ((--lugar, TraerArgumento(argumentos, copias[lugar])), ...);
    });
}

/// `eventos` holds the events that `descripciones` name.
template <class E, class... Descripciones>
void ConectarTodos(ObjetoControl& objeto, E& eventos,
                   const std::tuple<Descripciones...>& descripciones) {
    std::apply(
        [&](const Descripciones&... una) {
            (Conectar(objeto, eventos.*Descripciones::Campo, una.dispid), ...);
        },
        descripciones);
}

template <class Tabla>
std::unique_ptr<ControlUsuario> HacerNucleo(ObjetoControl& objeto,
                                            windows::EntornoWindows& entorno) {
    auto nucleo = std::make_unique<typename Tabla::Nucleo>(entorno);
    ConectarTodos(objeto, nucleo->eventos, Tabla::eventos);
    return nucleo;
}

template <class Tabla, const DatosClase& Datos>
IUnknown* CrearControl() {
    return (new ObjetoControl(Publicada<Tabla, Datos>, &HacerNucleo<Tabla>))->Identidad();
}

} // namespace pincela::componente
