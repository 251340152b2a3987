// The interface by which form designers tell a control what they placed inside it; the platform's
// headers don't have it. Not in an anonymous namespace: the compiler would take it for granted that
// nobody implements it.
#pragma once

#include "componente/guid.h"

#include <objidl.h>

namespace pincela::componente {

/// Offered by their client sites.
struct IVBGetControl : IUnknown {
    /// `cuales` are OLECONTF_ bits; `donde` says which controls, seen from the one that asks.
    virtual HRESULT STDMETHODCALLTYPE EnumControls(DWORD cuales, DWORD donde,
                                                   IEnumUnknown** lista) = 0;
};
inline constexpr IID IidGetControl = "{40A050A0-3C31-101B-A82E-08002B2B2337}"_guid;

/// For `donde`: those inside the control that asks.
inline constexpr DWORD ControlesDentro = 3;

} // namespace pincela::componente
