// A window class of the module.
#pragma once

#include "plataforma/windows/modulo.h"

#include <windows.h>

namespace pincela::windows {

/// Registered as long as it lives; one made by the first window goes when the module is unloaded.
class ClaseDeVentana {
  public:
    ClaseDeVentana(const wchar_t* nombre, UINT estilo, WNDPROC procedimiento) : nombre_(nombre) {
        WNDCLASSEXW clase{};
        clase.cbSize = sizeof clase;
        clase.style = estilo;
        clase.lpfnWndProc = procedimiento;
        clase.hInstance = ModuloPropio();
        clase.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
        clase.lpszClassName = nombre;
        registrada_ = ::RegisterClassExW(&clase) != 0;
    }
    ClaseDeVentana(const ClaseDeVentana&) = delete;
    ClaseDeVentana& operator=(const ClaseDeVentana&) = delete;
    ~ClaseDeVentana() {
        if (registrada_)
            ::UnregisterClassW(nombre_, ModuloPropio());
    }

  private:
    const wchar_t* nombre_;
    bool registrada_;
};

} // namespace pincela::windows
