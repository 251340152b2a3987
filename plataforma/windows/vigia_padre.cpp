#include "plataforma/windows/vigia_padre.h"

#include <commctrl.h>

namespace pincela::windows {

void VigiaDelPadre::Vigilar(HWND hija) {
    const HWND padre = ::GetAncestor(hija, GA_PARENT);
    if (hija == hija_ && padre == padre_)
        return;
    Soltar();
    // Refused for a window of another thread: that one is seen as it was at the last painting.
    if (padre &&
        ::SetWindowSubclass(padre, &VigiaDelPadre::Procedimiento, reinterpret_cast<UINT_PTR>(this),
                            reinterpret_cast<DWORD_PTR>(this))) {
        hija_ = hija;
        padre_ = padre;
    }
}

void VigiaDelPadre::Soltar() {
    if (padre_)
        ::RemoveWindowSubclass(padre_, &VigiaDelPadre::Procedimiento,
                               reinterpret_cast<UINT_PTR>(this));
    hija_ = padre_ = nullptr;
}

LRESULT CALLBACK VigiaDelPadre::Procedimiento(HWND padre, UINT mensaje, WPARAM w, LPARAM l,
                                              UINT_PTR, DWORD_PTR vigia) noexcept {
    auto* yo = reinterpret_cast<VigiaDelPadre*>(vigia);
    if (mensaje == WM_NCDESTROY) {
        yo->Soltar();
        return ::DefSubclassProc(padre, mensaje, w, l);
    }
    if (mensaje != WM_PAINT)
        return ::DefSubclassProc(padre, mensaje, w, l);
    const HWND hija = yo->hija_;
    RECT sucio{};
    const bool hay = ::GetUpdateRect(padre, &sucio, FALSE) != 0;
    const LRESULT resultado = ::DefSubclassProc(padre, mensaje, w, l);
    // The painting may have ended the child, and the watch with it.
    if (hay && ::IsWindow(hija)) {
        ::MapWindowPoints(padre, hija, reinterpret_cast<POINT*>(&sucio), 2);
        ::InvalidateRect(hija, &sucio, FALSE);
    }
    return resultado;
}

} // namespace pincela::windows
