// What the designer shows over the controls: frames and handles of the selected ones, and the
// rectangle that the mouse spans.
#pragma once

#include "galeria/diseno/agarres.h"

#include <windows.h>

#include <optional>
#include <vector>

namespace galeria {

/// The platform's cursor for a handle; the arrow for none.
const wchar_t* CursorDe(diseno::Agarre agarre);

/// A window on the form with the shape of what it shows: controls never paint over it, and the
/// mouse goes through everywhere else.
class Adornos {
  public:
    /// The window belongs to `forma`.
    explicit Adornos(HWND forma);
    Adornos(const Adornos&) = delete;
    Adornos& operator=(const Adornos&) = delete;
    ~Adornos() { DestroyWindow(ventana_); }

    /// Side of a handle in pixels; odd, so that it has a middle.
    static int Lado();

    /// Boxes in pixels of the form; the first one leads, and shows handles to be dragged where it
    /// is the only one.
    void Mostrar(const std::vector<diseno::Caja>& elegidas);
    /// The rectangle that is being spanned.
    void Abarcar(std::optional<diseno::Caja> banda);

  private:
    static LRESULT CALLBACK Procesar(HWND ventana, UINT mensaje, WPARAM w, LPARAM l);
    void Formar();
    void Pintar(HDC hdc) const;

    HWND ventana_;
    std::vector<diseno::Caja> elegidas_;
    std::optional<diseno::Caja> banda_;
};

} // namespace galeria
