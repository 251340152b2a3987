// The little of COM that every part of the container needs: a counted pointer, a base for our own
// objects, and one exception for a failing status.
#pragma once

#include <windows.h>

#include <ole2.h>

#include <stdexcept>
#include <string>
#include <utility>

namespace anfitrion {

/// A failing status turned into an exception. `descripcion` and `fuente` are filled when the object
/// gave error information; otherwise they are empty.
class FalloCom : public std::runtime_error {
  public:
    FalloCom(HRESULT estado, const std::string& que, std::wstring descripcion = {},
             std::wstring fuente = {});

    HRESULT estado;
    std::wstring descripcion;
    std::wstring fuente;
};

/// Throws FalloCom when `estado` is a failure; `que` names what was being tried.
void Comprobar(HRESULT estado, const char* que);

/// UTF-8 rendering for messages and logs.
std::string Estrechar(std::wstring_view texto);

/// Owner of one reference to a COM object.
template <class T>
class Puntero {
  public:
    Puntero() = default;
    Puntero(std::nullptr_t) {}
    /// Takes a reference of its own.
    Puntero(T* objeto) : p_(objeto) {
        if (p_)
            p_->AddRef();
    }
    Puntero(const Puntero& otro) : Puntero(otro.p_) {}
    Puntero(Puntero&& otro) noexcept : p_(std::exchange(otro.p_, nullptr)) {}
    ~Puntero() { Soltar(); }
    Puntero& operator=(Puntero otro) noexcept {
        std::swap(p_, otro.p_);
        return *this;
    }

    /// Takes over a reference that the caller owned.
    static Puntero Adoptar(T* objeto) {
        Puntero p;
        p.p_ = objeto;
        return p;
    }

    T* get() const { return p_; }
    T* operator->() const { return p_; }
    explicit operator bool() const { return p_ != nullptr; }

    /// Address for an out-parameter; what was held is released first.
    T** Recibir() {
        Soltar();
        return &p_;
    }
    void** RecibirVoid() { return reinterpret_cast<void**>(Recibir()); }

    /// Hands the reference to the caller.
    T* Separar() { return std::exchange(p_, nullptr); }

    /// Releases what is held and returns the count that the object reported (0 when empty). The
    /// member is cleared first: the release may come back to us.
    ULONG Soltar() {
        T* viejo = std::exchange(p_, nullptr);
        return viejo ? viejo->Release() : 0;
    }

    /// Another interface of the same object; empty when it is not offered.
    template <class U>
    Puntero<U> Como() const {
        Puntero<U> otro;
        if (p_)
            p_->QueryInterface(__uuidof(U), otro.RecibirVoid());
        return otro;
    }

    friend bool operator==(const Puntero& a, const Puntero& b) { return a.p_ == b.p_; }

  private:
    T* p_ = nullptr;
};

// COM interfaces have no virtual destructor; ours is protected and objects delete themselves.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
/// Base of the container's own objects: counting and the search of interfaces, declared once. The
/// first interface of the list is the object's identity.
template <class Primera, class... Otras>
class ObjetoCom : public Primera, public Otras... {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** salida) override {
        if (!salida)
            return E_POINTER;
        *salida = nullptr;
        if (iid == IID_IUnknown)
            *salida = static_cast<Primera*>(this);
        else if (Ofrece(iid))
            *salida = Buscar(iid);
        if (!*salida)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++cuenta_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG queda = --cuenta_;
        if (queda == 0)
            delete this;
        return queda;
    }

  protected:
    ObjetoCom() = default;
    ObjetoCom(const ObjetoCom&) = delete;
    ObjetoCom& operator=(const ObjetoCom&) = delete;
    virtual ~ObjetoCom() = default;

    /// Lets an object hide an interface that it implements.
    virtual bool Ofrece(REFIID) const { return true; }

    /// Interfaces that the listed ones inherit from.
    virtual void* Heredada(REFIID) { return nullptr; }

  private:
    void* Buscar(REFIID iid) {
        void* hallada = nullptr;
        if (iid == __uuidof(Primera))
            return static_cast<Primera*>(this);
        ((iid == __uuidof(Otras) ? void(hallada = static_cast<Otras*>(this)) : void()), ...);
        return hallada ? hallada : Heredada(iid);
    }

    ULONG cuenta_ = 0;
};
#pragma GCC diagnostic pop

/// Makes one of our objects, held by its first reference.
template <class T, class... Args>
Puntero<T> Hacer(Args&&... args) {
    return Puntero<T>(new T(std::forward<Args>(args)...));
}

} // namespace anfitrion
