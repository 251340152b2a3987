// What the window of a surface asks of the edit fields in it.
#pragma once

#include "common/texto.h"

#include <windows.h>

namespace pincela::windows {

class CampoEdicion {
  public:
    /// The surface has a window now.
    virtual void CrearVentana() = 0;
    /// The surface's window is about to go: what the user did is kept.
    virtual void SoltarVentana() = 0;
    virtual HWND ventana() const = 0;
    virtual bool Habilitado() const = 0;
    /// Name for assistive programs where the platform has no place to keep it; else empty.
    virtual Texto NombreAccesible() const = 0;
    /// A notification code of the edit window.
    virtual void Orden(WORD codigo) = 0;
    /// Brush and colours the edit window paints with.
    virtual HBRUSH Colorear(HDC dc) = 0;

  protected:
    ~CampoEdicion() = default;
};

} // namespace pincela::windows
