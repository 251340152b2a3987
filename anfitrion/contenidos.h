// The interface by which form designers tell a panel what stands on it; the platform's headers
// don't have it.
#pragma once

#include <windows.h>

#include <objidl.h>

namespace anfitrion {

/// Offered by client sites.
struct IVBGetControl : IUnknown {
    /// `cuales` are OLECONTF_ bits; `donde` says which controls, seen from the one that asks.
    virtual HRESULT STDMETHODCALLTYPE EnumControls(DWORD cuales, DWORD donde,
                                                   IEnumUnknown** lista) = 0;
};

/// For `donde`: those that stand on the control that asks.
constexpr DWORD ControlesContenidos = 3;

} // namespace anfitrion

__CRT_UUID_DECL(anfitrion::IVBGetControl, 0x40A050A0, 0x3C31, 0x101B, 0xA8, 0x2E, 0x08, 0x00, 0x2B,
                0x2B, 0x23, 0x37)
