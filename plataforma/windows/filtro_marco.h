// A message of a window as the container of the controls inside it sees it: before the window
// handles it and after (ISimpleFrameSite).
#pragma once

#include "plataforma/windows/puntero_com.h"

#include <ocidl.h>

namespace pincela::windows {

class FiltroDeMarco {
  public:
    /// `sitio` may be null: then nobody is asked. It is held, so that both questions go to the same
    /// one even when the control changes its site meanwhile.
    FiltroDeMarco(ISimpleFrameSite* sitio, HWND ventana, UINT mensaje, WPARAM w, LPARAM l)
        : sitio_(sitio), ventana_(ventana), mensaje_(mensaje), w_(w), l_(l) {}

    /// True when the container keeps the message for itself, with its result.
    bool Antes(LRESULT& resultado) {
        if (!sitio_)
            return false;
        const HRESULT estado =
            sitio_->PreMessageFilter(ventana_, mensaje_, w_, l_, &resultado, &galleta_);
        // Kept, or of no interest: in neither case does it want to hear of the message again.
        if (estado != S_OK)
            sitio_.Soltar();
        return estado == S_FALSE;
    }

    void Despues(LRESULT& resultado) {
        if (sitio_)
            sitio_->PostMessageFilter(ventana_, mensaje_, w_, l_, &resultado, galleta_);
    }

  private:
    PunteroCom<ISimpleFrameSite> sitio_;
    HWND ventana_;
    UINT mensaje_;
    WPARAM w_;
    LPARAM l_;
    DWORD galleta_ = 0;
};

} // namespace pincela::windows
