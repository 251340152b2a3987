// Owner of a VARIANT, and the conversions that tests and applications ask for most.
#pragma once

#include "anfitrion/com.h"

#include <oleauto.h>

#include <concepts>
#include <string>
#include <string_view>

namespace anfitrion {

/// A VARIANT that clears itself. It is a VARIANT, so it can be handed to any automation call.
class Variante : public VARIANT {
  public:
    Variante() { VariantInit(this); }
    Variante(std::same_as<bool> auto valor) : Variante() {
        vt = VT_BOOL;
        boolVal = valor ? VARIANT_TRUE : VARIANT_FALSE;
    }
    Variante(short valor) : Variante() {
        vt = VT_I2;
        iVal = valor;
    }
    Variante(int valor) : Variante(static_cast<long>(valor)) {}
    Variante(long valor) : Variante() {
        vt = VT_I4;
        lVal = valor;
    }
    Variante(float valor) : Variante() {
        vt = VT_R4;
        fltVal = valor;
    }
    Variante(double valor) : Variante() {
        vt = VT_R8;
        dblVal = valor;
    }
    Variante(const wchar_t* texto) : Variante(std::wstring_view(texto)) {}
    Variante(const std::wstring& texto) : Variante(std::wstring_view(texto)) {}
    Variante(std::wstring_view texto);
    /// Takes a reference of its own; null gives a null object of the type (Nothing).
    Variante(IDispatch* objeto);
    Variante(IUnknown* objeto);
    explicit Variante(const VARIANT& otra);
    Variante(const Variante& otra) : Variante(static_cast<const VARIANT&>(otra)) {}
    Variante(Variante&& otra) noexcept;
    Variante& operator=(Variante otra) noexcept;
    ~Variante() { VariantClear(this); }

    /// An argument passed by reference; the variable stays the caller's.
    static Variante Referencia(VARIANT& variable);
    static Variante Referencia(long& variable);
    static Variante Referencia(short& variable);
    static Variante ReferenciaLogica(VARIANT_BOOL& variable);
    static Variante Referencia(float& variable);
    static Variante Referencia(BSTR& variable);
    /// An omitted optional argument.
    static Variante Omitida();

    /// For an out-parameter; clears first.
    VARIANT* Recibir() {
        VariantClear(this);
        return this;
    }
};

/// Conversions by the automation rules in the invariant locale; references are followed.
/// They throw FalloCom when the value does not convert.
long Entero(const VARIANT& valor);
double Real(const VARIANT& valor);
bool Logico(const VARIANT& valor);
std::wstring Texto(const VARIANT& valor);

/// Any value as readable text for logs; never throws.
std::wstring Mostrar(const VARIANT& valor);

/// Writes through an argument that came by reference (typed or VARIANT); throws when `destino` is
/// not a reference.
void Asignar(VARIANT& destino, const Variante& valor);

/// Owner of a BSTR.
class Cadena {
  public:
    Cadena() = default;
    explicit Cadena(std::wstring_view texto)
        : s_(SysAllocStringLen(texto.data(), static_cast<UINT>(texto.size()))) {}
    Cadena(const Cadena&) = delete;
    Cadena& operator=(const Cadena&) = delete;
    ~Cadena() { SysFreeString(s_); }

    BSTR get() const { return s_; }
    BSTR* Recibir() {
        SysFreeString(s_);
        s_ = nullptr;
        return &s_;
    }
    std::wstring Texto() const { return s_ ? std::wstring(s_, SysStringLen(s_)) : std::wstring(); }

  private:
    BSTR s_ = nullptr;
};

} // namespace anfitrion
