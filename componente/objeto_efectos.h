// The creatable class `Efectos` as automation clients see it.
#pragma once

#include "componente/despacho.h"
#include "componente/objeto.h"
#include "efectos/efectos.h"

#include <ocidl.h>
#include <olectl.h>

namespace pincela::componente {

class ObjetoEfectos final : public ISupportErrorInfo, public IProvideClassInfo {
  public:
    ObjetoEfectos();
    virtual ~ObjetoEfectos() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** salida) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return cuenta_.Sumar(); }
    ULONG STDMETHODCALLTYPE Release() override { return cuenta_.Restar(this); }

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override;
    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override;

  private:
    CuentaReferencias cuenta_;
    Efectos efectos_;
    InterfazDual interfaz_;
};

} // namespace pincela::componente
