// Owner types for what COM hands out.
#pragma once

#include "plataforma/windows/puntero_com.h"

#include <windows.h>

#include <oleauto.h>

#include <cstring>
#include <cwchar>
#include <utility>

namespace pincela::componente {

template <class T>
using Ptr = windows::PunteroCom<T>;

class VarianteCom : public VARIANT {
  public:
    VarianteCom() { VariantInit(this); }
    VarianteCom(const VarianteCom&) = delete;
    VarianteCom& operator=(const VarianteCom&) = delete;
    ~VarianteCom() { VariantClear(this); }
    VARIANT* Recibir() {
        VariantClear(this);
        return this;
    }
};

/// Text for a caller that frees it with CoTaskMemFree; null when there is no memory.
inline LPOLESTR DuplicarTexto(const wchar_t* texto) {
    const std::size_t bytes = (std::wcslen(texto) + 1) * sizeof(wchar_t);
    auto* copia = static_cast<LPOLESTR>(CoTaskMemAlloc(bytes));
    if (copia)
        std::memcpy(copia, texto, bytes);
    return copia;
}

} // namespace pincela::componente
