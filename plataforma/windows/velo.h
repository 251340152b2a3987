// The input window of a transparent surface: it takes the mouse where nothing is drawn.
#pragma once

#include <windows.h>

namespace pincela::windows {

/// Lies right below a surface's window, in the same place, and shows nothing. The surface's window
/// is cut down to what is drawn on it, so that the container paints everywhere else itself; over
/// those places the mouse meets this window, which hands its messages on. Its own extended style,
/// WS_EX_TRANSPARENT, keeps it out of what the container and its other children are clipped to.
class Velo {
  public:
    Velo() = default;
    Velo(const Velo&) = delete;
    Velo& operator=(const Velo&) = delete;
    ~Velo() { Soltar(); }

    /// Makes it for the window of a surface, or takes it where that window is now.
    void Seguir(HWND superficie);
    void Soltar();
    HWND ventana() const { return ventana_; }

    static bool EsVelo(HWND ventana);
    /// The window of a surface that a point of the screen belongs to when `velo` was found there:
    /// its own, or that of a transparent surface standing on it.
    static HWND SuperficieEn(HWND velo, POINT enPantalla);
    /// The window the mouse really is over while `superficie` hears of it: itself or a veil.
    static HWND BajoElRaton(HWND superficie);

  private:
    static LRESULT CALLBACK Procedimiento(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) noexcept;
    void Crear();

    HWND ventana_ = nullptr, superficie_ = nullptr;
};

/// Whether a window is that of a surface of this module, and on this thread.
bool EsSuperficie(HWND ventana);

} // namespace pincela::windows
