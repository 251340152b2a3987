// Reading and assigning a property, whatever its type and its class of control.
#pragma once

#include "componente/abi.h"
#include "componente/tabla.h"
#include "plataforma/control.h"

#include <cstring>

namespace pincela::componente {

/// What the virtual table passes by value: whole numbers and pointers as one word, whose first
/// bytes hold the narrower ones, so that properties of many types share a function.
template <class T>
using Portador =
    std::conditional_t<std::is_integral_v<T> || std::is_pointer_v<T>, std::uintptr_t, T>;

class Acceso {
  public:
    const std::uint8_t tamanio; // bytes of the value as the virtual table carries it
    const bool porReferencia;   // it is assigned through a pointer

    /// Writes `tamanio` bytes; what they refer to belongs to the caller.
    virtual void Leer(const ControlUsuario& control, void* salida) const = 0;
    /// Reads `tamanio` bytes, aligned or not.
    virtual void Poner(ControlUsuario& control, const void* valor) const = 0;
    /// Converts by the automation rules; `convertido` tells when that is over.
    virtual void PonerTardio(ControlUsuario& control, const VARIANT& valor,
                             bool& convertido) const = 0;

  protected:
    constexpr Acceso(std::uint8_t tamanio_, bool porReferencia_)
        : tamanio(tamanio_), porReferencia(porReferencia_) {}
    ~Acceso() = default;
};

/// Access to a property of type `T`, assigned by a function that takes a `P`.
template <class T, class P>
class AccesoDe final : public Acceso {
  public:
    using LeerDe = T (ControlUsuario::*)() const;
    using PonerDe = void (ControlUsuario::*)(P);

    /// `poner` is null when it can only be read.
    constexpr AccesoDe(LeerDe leer, PonerDe poner)
        : Acceso(sizeof(Externo), std::is_reference_v<P>), leer_(leer), poner_(poner) {}

    void Leer(const ControlUsuario& control, void* salida) const override {
        const Externo valor = Abi<T>::Salir((control.*leer_)());
        std::memcpy(salida, &valor, sizeof valor);
    }
    void Poner(ControlUsuario& control, const void* valor) const override {
        Externo externo;
        std::memcpy(&externo, valor, sizeof externo);
        (control.*poner_)(Abi<T>::Entrar(externo));
    }
    void PonerTardio(ControlUsuario& control, const VARIANT& valor,
                     bool& convertido) const override {
        T propio = Abi<T>::DeVariant(valor);
        convertido = true;
        (control.*poner_)(std::move(propio));
    }

  private:
    using Externo = typename Abi<T>::Tipo;

    LeerDe leer_;
    PonerDe poner_;
};

namespace detalle {
// The functions are named, not held in constants: only so may a constant be cast to the base.
template <class M>
struct AccesoHecho;
template <auto Leer, auto Poner>
struct AccesoHecho<Propiedad<Leer, Poner>> {
    static constexpr auto Hacer() {
        using T = typename FirmaDe<Leer>::Resultado;
        if constexpr (std::is_null_pointer_v<decltype(Poner)>) {
            using A = AccesoDe<T, T>;
            return A(static_cast<typename A::LeerDe>(Leer), nullptr);
        } else {
            using A = AccesoDe<T, std::tuple_element_t<0, typename FirmaDe<Poner>::Argumentos>>;
            return A(static_cast<typename A::LeerDe>(Leer),
                     static_cast<typename A::PonerDe>(Poner));
        }
    }
};
} // namespace detalle

/// Access to property `M` of the tables.
template <class M>
inline constexpr auto AccesoA = detalle::AccesoHecho<M>::Hacer();

} // namespace pincela::componente
