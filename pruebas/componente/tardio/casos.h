// Every kind of value that a late-bound caller can hand over, with its edges.
#pragma once

#include "anfitrion/com.h"
#include "anfitrion/variante.h"

#include <string>
#include <vector>

namespace publicado {

using anfitrion::Puntero;
using anfitrion::Variante;

/// An object that has nothing but a default member, or not even that.
class ConDefecto : public anfitrion::ObjetoCom<IDispatch> {
  public:
    ConDefecto() = default;
    explicit ConDefecto(Variante valor) : valor_(std::move(valor)), tiene_(true) {}

    /// An object whose default member is the object itself.
    bool esElMismo = false;
    int lecturas = 0;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* cuantos) override {
        *cuantos = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID numero, REFIID, LCID, WORD modo, DISPPARAMS*,
                                     VARIANT* resultado, EXCEPINFO*, UINT*) override {
        if (numero != DISPID_VALUE || !(modo & DISPATCH_PROPERTYGET) || !resultado ||
            !(tiene_ || esElMismo))
            return DISP_E_MEMBERNOTFOUND;
        ++lecturas;
        const Variante valor = esElMismo ? Variante(static_cast<IDispatch*>(this)) : valor_;
        VariantInit(resultado);
        return VariantCopy(resultado, const_cast<Variante*>(&valor));
    }

  private:
    Variante valor_;
    bool tiene_ = false;
};

/// A value and what it is called when it fails.
struct Caso {
    std::string nombre;
    Variante valor;
};

/// One of each type at least. The objects among them are made anew each time.
std::vector<Caso> CasosTardios();

} // namespace publicado
