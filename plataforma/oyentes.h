// What widgets tell their control.
#pragma once

#include <cstdint>

namespace pincela {

/// Mouse notifications; coordinates are pixels of the widget that is told. `Button` is 1 left,
/// 2 right, 4 middle (a set of bits in MouseMove); `Shift` is 1 SHIFT, 2 CTRL, 4 ALT.
class OyenteRaton {
  public:
    virtual void Click() {}
    virtual void MouseDown(std::int16_t, std::int16_t, float, float) {}
    virtual void MouseMove(std::int16_t, std::int16_t, float, float) {}
    virtual void MouseUp(std::int16_t, std::int16_t, float, float) {}

  protected:
    ~OyenteRaton() = default;
};

/// Keyboard and focus notifications; a handler may change a code, 0 drops the key.
class OyenteTeclado {
  public:
    virtual void KeyDown(std::int16_t& /*codigo*/, std::int16_t /*shift*/) {}
    virtual void KeyPress(std::int16_t& /*caracter*/) {}
    virtual void KeyUp(std::int16_t& /*codigo*/, std::int16_t /*shift*/) {}

  protected:
    ~OyenteTeclado() = default;
};

/// What an edit field tells; its mouse and keys come through the other two.
class OyenteEdicion : public OyenteRaton, public OyenteTeclado {
  public:
    virtual void Change() {}
    /// The user is about to change the text; false keeps it as it is.
    virtual bool PideEditar() { return true; }
    virtual void GotFocus() {}
    virtual void LostFocus() {}

  protected:
    ~OyenteEdicion() = default;
};

} // namespace pincela
