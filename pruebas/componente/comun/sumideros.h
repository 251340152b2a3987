// A receiver of property notifications that writes down what it hears.
#pragma once

#include "anfitrion/com.h"

#include <ocidl.h>

#include <functional>
#include <vector>

namespace publicado {

class Oyente : public anfitrion::ObjetoCom<IPropertyNotifySink> {
  public:
    std::vector<DISPID> oidos;
    HRESULT respuesta = S_OK;
    std::function<void(DISPID)> alOir;

    HRESULT STDMETHODCALLTYPE OnChanged(DISPID numero) override {
        oidos.push_back(numero);
        if (const auto hacer = alOir)
            hacer(numero);
        return respuesta;
    }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override { return respuesta; }
};

/// A connection that ends with its owner.
class Conexion {
  public:
    Conexion(IUnknown* objeto, REFIID iid, IUnknown* oyente) {
        const auto contenedor =
            anfitrion::Puntero<IUnknown>(objeto).Como<IConnectionPointContainer>();
        if (contenedor && SUCCEEDED(contenedor->FindConnectionPoint(iid, punto_.Recibir())))
            punto_->Advise(oyente, &galleta_);
    }
    Conexion(const Conexion&) = delete;
    Conexion& operator=(const Conexion&) = delete;
    ~Conexion() { Cortar(); }

    bool Hecha() const { return galleta_ != 0; }
    HRESULT Cortar() {
        const DWORD galleta = std::exchange(galleta_, 0);
        return galleta ? punto_->Unadvise(galleta) : S_FALSE;
    }

  private:
    anfitrion::Puntero<IConnectionPoint> punto_;
    DWORD galleta_ = 0;
};

} // namespace publicado
