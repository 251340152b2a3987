// The road of assistive programs to a window, and what they read there.
#pragma once

#include "anfitrion/com.h"

#include <doctest/doctest.h>

#include <oleacc.h>

#include <string>

namespace acceso {

using anfitrion::Puntero;

inline const VARIANT Yo = [] {
    VARIANT v{};
    v.vt = VT_I4;
    v.lVal = CHILDID_SELF;
    return v;
}();

/// The platform's road from a window to its object, as assistive programs take it.
inline Puntero<IAccessible> AccesibleDe(HWND ventana) {
    static const HMODULE oleacc = LoadLibraryW(L"oleacc.dll");
    using Pregunta = HRESULT(WINAPI*)(HWND, DWORD, REFIID, void**);
    const auto pregunta = reinterpret_cast<Pregunta>(
        reinterpret_cast<void*>(GetProcAddress(oleacc, "AccessibleObjectFromWindow")));
    const bool hay = pregunta != nullptr;
    REQUIRE(hay);
    IAccessible* accesible = nullptr;
    REQUIRE(pregunta(ventana, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                     reinterpret_cast<void**>(&accesible)) == S_OK);
    Puntero<IAccessible> propio(accesible);
    accesible->Release();
    return propio;
}

inline std::wstring Tomar(BSTR texto) {
    std::wstring copia = texto ? texto : L"";
    SysFreeString(texto);
    return copia;
}

inline std::wstring Nombre(IAccessible* a) {
    BSTR texto = nullptr;
    a->get_accName(Yo, &texto);
    return Tomar(texto);
}

inline long Estado(IAccessible* a) {
    VARIANT v{};
    REQUIRE(a->get_accState(Yo, &v) == S_OK);
    return v.lVal;
}

} // namespace acceso
