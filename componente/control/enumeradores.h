// Enumerators over a list taken at the moment of asking.
#pragma once

#include "componente/com.h"
#include "componente/objeto.h"

#include <ocidl.h>
#include <oleidl.h>

#include <new>
#include <type_traits>
#include <vector>

namespace pincela::componente {

/// Copies what an element holds for whoever receives it; false when there is no memory.
inline bool CopiarElemento(const CONNECTDATA& de, CONNECTDATA* a) {
    *a = de;
    a->pUnk->AddRef();
    return true;
}
inline bool CopiarElemento(IConnectionPoint* const& de, IConnectionPoint** a) {
    *a = de;
    de->AddRef();
    return true;
}
inline bool CopiarElemento(const FORMATETC& de, FORMATETC* a) {
    *a = de;
    return true;
}
inline bool CopiarElemento(const OLEVERB& de, OLEVERB* a) {
    *a = de;
    a->lpszVerbName = DuplicarTexto(de.lpszVerbName);
    return a->lpszVerbName != nullptr;
}
/// Takes back what was copied.
inline void DevolverElemento(const CONNECTDATA& e) {
    e.pUnk->Release();
}
inline void DevolverElemento(IConnectionPoint* e) {
    e->Release();
}
inline void DevolverElemento(const FORMATETC&) {}
inline void DevolverElemento(const OLEVERB& e) {
    CoTaskMemFree(e.lpszVerbName);
}
inline void Retener(const CONNECTDATA& e) {
    e.pUnk->AddRef();
}
inline void Liberar(const CONNECTDATA& e) {
    e.pUnk->Release();
}
template <class E>
void Retener(const E&) {}
template <class E>
void Liberar(const E&) {}

/// `Interfaz` is the enumerator's interface, `Elemento` what it hands out. Holds `dueno`, which
/// elements that are parts of it need alive.
template <class Interfaz, class Elemento>
class Enumerador final : public Interfaz {
  public:
    Enumerador(IUnknown* dueno, std::vector<Elemento> lista)
        : dueno_(dueno), lista_(std::move(lista)) {
        for (const Elemento& e : lista_)
            Retener(e);
    }
    virtual ~Enumerador() {
        for (const Elemento& e : lista_)
            Liberar(e);
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** salida) override {
        if (!salida)
            return E_POINTER;
        *salida = nullptr;
        if (iid != IID_IUnknown && iid != __uuidof(Interfaz))
            return E_NOINTERFACE;
        *salida = static_cast<Interfaz*>(this);
        this->AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return cuenta_.Sumar(); }
    ULONG STDMETHODCALLTYPE Release() override { return cuenta_.Restar(this); }

    HRESULT STDMETHODCALLTYPE Next(ULONG cuantos, Elemento* salida, ULONG* dados) override {
        if (!salida || (!dados && cuantos != 1))
            return E_POINTER;
        ULONG n = 0;
        while (n < cuantos && lugar_ < lista_.size()) {
            if (!CopiarElemento(lista_[lugar_], salida + n)) {
                lugar_ -= n;
                while (n > 0)
                    DevolverElemento(salida[--n]);
                if (dados)
                    *dados = 0;
                return E_OUTOFMEMORY;
            }
            ++lugar_;
            ++n;
        }
        if (dados)
            *dados = n;
        return n == cuantos ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG cuantos) override {
        const bool hay = lista_.size() - lugar_ >= cuantos;
        lugar_ = hay ? lugar_ + cuantos : lista_.size();
        return hay ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Reset() override {
        lugar_ = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(Interfaz** salida) override {
        if (!salida)
            return E_POINTER;
        *salida = nullptr;
        try {
            auto* copia = new Enumerador(dueno_.get(), lista_);
            copia->lugar_ = lugar_;
            *salida = copia;
            return S_OK;
        } catch (const std::bad_alloc&) {
            return E_OUTOFMEMORY;
        }
    }

  private:
    CuentaReferencias cuenta_;
    Ptr<IUnknown> dueno_;
    std::vector<Elemento> lista_;
    std::size_t lugar_ = 0;
};

} // namespace pincela::componente
