// Owning automation string.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <string_view>

namespace pincela::windows {

class TextoCom {
  public:
    TextoCom() = default;
    TextoCom(const TextoCom&) = delete;
    TextoCom& operator=(const TextoCom&) = delete;
    ~TextoCom() { ::SysFreeString(b_); }

    /// Asks somebody else's object for a text: `llamada(BSTR*)` answers a status. What stands
    /// beside a failure is no text, and success without one is the empty text.
    template <class F>
    HRESULT Pedir(F&& llamada) {
        ::SysFreeString(b_);
        b_ = nullptr;
        BSTR b = nullptr;
        const HRESULT estado = llamada(&b);
        if (SUCCEEDED(estado))
            b_ = b;
        return estado;
    }

    /// Whole units: an odd byte at the end is left out.
    std::u16string_view Vista() const {
        return {reinterpret_cast<const char16_t*>(b_), b_ ? ::SysStringLen(b_) : 0};
    }

  private:
    BSTR b_ = nullptr;
};

} // namespace pincela::windows
