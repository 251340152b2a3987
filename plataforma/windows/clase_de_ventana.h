// A window class of the module.
#pragma once

#include "plataforma/windows/cerrojo.h"
#include "plataforma/windows/modulo.h"

#include <windows.h>

namespace pincela::windows {

/// Registered from the first window on, as long as this lives; a static one goes when the module is
/// unloaded.
class ClaseDeVentana {
  public:
    ClaseDeVentana(const wchar_t* nombre, UINT estilo, WNDPROC procedimiento)
        : nombre_(nombre), estilo_(estilo), procedimiento_(procedimiento) {}
    ClaseDeVentana(const ClaseDeVentana&) = delete;
    ClaseDeVentana& operator=(const ClaseDeVentana&) = delete;
    ~ClaseDeVentana() {
        if (registrada_)
            ::UnregisterClassW(nombre_, ModuloPropio());
    }

    /// Before each window; what the platform refused once is asked for again.
    void Asegurar() {
        const Cerrojo::Guarda guarda(cerrojo_);
        if (registrada_)
            return;
        WNDCLASSEXW clase{};
        clase.cbSize = sizeof clase;
        clase.style = estilo_;
        clase.lpfnWndProc = procedimiento_;
        clase.hInstance = ModuloPropio();
        clase.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
        clase.lpszClassName = nombre_;
        registrada_ = ::RegisterClassExW(&clase) != 0;
    }

  private:
    const wchar_t* nombre_;
    UINT estilo_;
    WNDPROC procedimiento_;
    Cerrojo cerrojo_; // windows are made in every apartment
    bool registrada_ = false;
};

} // namespace pincela::windows
