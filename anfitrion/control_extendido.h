// The control as the container publishes it: the container's own properties (place, visibility,
// tab order, default and cancel role) in front of the control's.
#pragma once

#include "anfitrion/com.h"

#include <memory>

namespace anfitrion {

class ControlAlojado;

/// Members: Name, Visible, Cancel, Default, Left, Top, Width, Height (pixels), TabStop, TabIndex,
/// Object. Everything else is passed to the control.
class ControlExtendido : public ObjetoCom<IDispatch> {
  public:
    explicit ControlExtendido(std::weak_ptr<ControlAlojado> control)
        : control_(std::move(control)) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* cuantas) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** tipo) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* nombres, UINT cuantos,
                                            LCID idioma, DISPID* numeros) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID numero, REFIID iid, LCID idioma, WORD modo,
                                     DISPPARAMS* parametros, VARIANT* resultado,
                                     EXCEPINFO* excepcion, UINT* malo) override;

  private:
    std::weak_ptr<ControlAlojado> control_;
};

} // namespace anfitrion
