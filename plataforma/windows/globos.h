// Tool tips of a surface. The tip window is made when the first text needs it.
#pragma once

#include "plataforma/windows/manijas.h"
#include "plataforma/windows/nucleo.h"

namespace pincela::windows {

struct CierreVentana {
    void operator()(HWND ventana) const { ::DestroyWindow(ventana); }
};

class Globos {
  public:
    explicit Globos(Nucleo& nucleo) : nucleo_(nucleo) {}

    /// Shows every mouse message of the surface's window to the tips before it is handled.
    void Mensaje(UINT mensaje, WPARAM w, LPARAM l);
    /// The surface's window is going, and the tip window with it.
    void Soltar();
    HWND ventana() const { return ventana_.get(); }

  private:
    bool Crear();
    void Anadir(HWND herramienta);
    void PedirTexto(HWND herramienta);
    void PonTexto(Texto texto);

    Nucleo& nucleo_;
    Dueno<HWND, CierreVentana> ventana_;
    HWND velo_ = nullptr; // takes the mouse for the surface's window here and there
    Texto texto_;
};

} // namespace pincela::windows
