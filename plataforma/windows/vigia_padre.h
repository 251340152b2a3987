// Keeps a transparent window up to date with what its parent shows behind it.
#pragma once

#include <windows.h>

namespace pincela::windows {

/// A parent that clips its children is painted without them, so a transparent child would keep the
/// picture of what was behind it before. While there is something to watch, each painting of the
/// parent is followed by one of the child.
class VigiaDelPadre {
  public:
    VigiaDelPadre() = default;
    VigiaDelPadre(const VigiaDelPadre&) = delete;
    VigiaDelPadre& operator=(const VigiaDelPadre&) = delete;
    ~VigiaDelPadre() { Soltar(); }

    /// Watches the parent that `hija` has now, in place of any other.
    void Vigilar(HWND hija);
    void Soltar();

  private:
    static LRESULT CALLBACK Procedimiento(HWND padre, UINT mensaje, WPARAM w, LPARAM l, UINT_PTR id,
                                          DWORD_PTR vigia) noexcept;

    HWND hija_ = nullptr, padre_ = nullptr;
};

} // namespace pincela::windows
