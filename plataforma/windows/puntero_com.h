// Owning interface pointer.
#pragma once

#include "plataforma/windows/aritmetica.h"

#include <windows.h>

#include <ocidl.h>

#include <concepts>
#include <cstddef>
#include <utility>

namespace pincela::windows {

/// Interfaces behind which the container's own code runs, in the container's own arithmetic.
template <class T>
concept DelContenedor = std::same_as<T, IOleClientSite> || std::same_as<T, IOleControlSite> ||
    std::same_as<T, IOleInPlaceSite> || std::same_as<T, IOleInPlaceFrame> ||
    std::same_as<T, IOleInPlaceUIWindow> || std::same_as<T, ISimpleFrameSite> ||
    std::same_as<T, IAdviseSink> || std::same_as<T, IOleAdviseHolder> ||
    std::same_as<T, IDataAdviseHolder> || std::same_as<T, IPropertyPageSite> ||
    std::same_as<T, IOleContainer> || std::same_as<T, IEnumUnknown> ||
    std::same_as<T, IOleWindow> || std::same_as<T, IOleObject> || std::same_as<T, IPropertyBag> ||
    std::same_as<T, IStream>;

/// One call to the outside; ends with the expression that makes it.
template <class T>
class LlamadaAfuera {
  public:
    explicit LlamadaAfuera(T* p) : p_(p) {}
    LlamadaAfuera(const LlamadaAfuera&) = delete;
    LlamadaAfuera& operator=(const LlamadaAfuera&) = delete;
    T* operator->() const { return p_; }

  private:
    T* p_;
    AritmeticaAjena ajena_;
};

/// Counted reference to an object of the platform. The member is cleared before the old object is
/// released, since a release may call back.
template <class T>
class PunteroCom {
  public:
    PunteroCom() = default;
    PunteroCom(std::nullptr_t) {}
    /// Takes a reference of its own.
    explicit PunteroCom(T* p) : p_(p) {
        if (p_)
            p_->AddRef();
    }
    PunteroCom(const PunteroCom& otro) : PunteroCom(otro.p_) {}
    PunteroCom(PunteroCom&& otro) noexcept : p_(std::exchange(otro.p_, nullptr)) {}
    PunteroCom& operator=(PunteroCom otro) noexcept {
        std::swap(p_, otro.p_);
        return *this;
    }
    ~PunteroCom() {
        if (p_)
            p_->Release();
    }

    /// Takes over a reference the caller holds.
    static PunteroCom Adoptar(T* p) {
        PunteroCom r;
        r.p_ = p;
        return r;
    }
    template <class U>
    static PunteroCom De(U* objeto, REFIID iid = __uuidof(T)) {
        PunteroCom r;
        if (objeto)
            r.Pedir(
                [&](T** p) { return objeto->QueryInterface(iid, reinterpret_cast<void**>(p)); });
        return r;
    }

    void Soltar() { PunteroCom().swap(*this); }
    void swap(PunteroCom& otro) noexcept { std::swap(p_, otro.p_); }
    T* Ceder() { return std::exchange(p_, nullptr); }

    T* get() const { return p_; }
    T* operator->() const requires(!DelContenedor<T>) { return p_; }
    LlamadaAfuera<T> operator->() const requires DelContenedor<T> { return LlamadaAfuera<T>(p_); }
    explicit operator bool() const { return p_ != nullptr; }

    /// Asks somebody else's object for a reference: `llamada(T**)` answers a status. Success
    /// without an object is E_UNEXPECTED, and what stands beside a failure is nobody's reference.
    /// What was held is released first; what the call does to this pointer meanwhile is lost.
    template <class F>
    HRESULT Pedir(F&& llamada) {
        Soltar();
        T* p = nullptr;
        const HRESULT estado = llamada(&p);
        if (FAILED(estado))
            return estado;
        if (!p)
            return E_UNEXPECTED;
        *this = Adoptar(p);
        return estado;
    }

    /// For the platform's own functions, which can be taken at their word; what was held is
    /// released first. Everybody else is asked by Pedir.
    T** Recibir() {
        Soltar();
        return &p_;
    }
    void** RecibirVacio() { return reinterpret_cast<void**>(Recibir()); }

  private:
    T* p_ = nullptr;
};

/// What tells one object from another. One that does not tell is itself alone.
template <class T>
PunteroCom<IUnknown> IdentidadDe(T* objeto) {
    auto identidad = PunteroCom<IUnknown>::De(objeto);
    return identidad ? identidad : PunteroCom<IUnknown>(objeto);
}

} // namespace pincela::windows
