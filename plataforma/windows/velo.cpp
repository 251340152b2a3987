#include "plataforma/windows/velo.h"

#include "plataforma/windows/clase_de_ventana.h"
#include "plataforma/windows/ventana_superficie.h"

#include <windowsx.h>

#include <utility>

namespace pincela::windows {

namespace {

constexpr wchar_t NombreDeClase[] = L"PincelaVelo";

bool EsDeClase(HWND ventana, const wchar_t* nombre) {
    wchar_t clase[32];
    return ventana && ::GetWindowThreadProcessId(ventana, nullptr) == ::GetCurrentThreadId() &&
           ::GetClassNameW(ventana, clase, static_cast<int>(std::size(clase))) &&
           ::lstrcmpW(clase, nombre) == 0;
}

/// What stands on a surface and is cut down like it lets its mouse through to the veil below all.
HWND MasHonda(HWND superficie, POINT enPantalla) {
    for (HWND hija = ::GetWindow(superficie, GW_CHILD); hija;
         hija = ::GetWindow(hija, GW_HWNDNEXT)) {
        RECT lugar{};
        if (EsSuperficie(hija) && ::IsWindowVisible(hija) && ::IsWindowEnabled(hija) &&
            ::GetWindowRect(hija, &lugar) && ::PtInRect(&lugar, enPantalla))
            return MasHonda(hija, enPantalla);
    }
    return superficie;
}

bool ConPunto(UINT mensaje) {
    return mensaje >= WM_MOUSEFIRST && mensaje <= WM_MBUTTONDBLCLK;
}

} // namespace

bool EsSuperficie(HWND ventana) {
    return EsDeClase(ventana, VentanaSuperficie::NombreDeClase);
}

bool Velo::EsVelo(HWND ventana) {
    return EsDeClase(ventana, NombreDeClase);
}

void Velo::Crear() {
    static ClaseDeVentana clase(NombreDeClase, CS_DBLCLKS, &Velo::Procedimiento);
    clase.Asegurar();
    ::CreateWindowExW(WS_EX_TRANSPARENT | WS_EX_NOPARENTNOTIFY, NombreDeClase, nullptr,
                      WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 0, 0, ::GetAncestor(superficie_, GA_PARENT),
                      nullptr, ModuloPropio(), this);
}

void Velo::Seguir(HWND superficie) {
    superficie_ = superficie;
    const HWND padre = ::GetAncestor(superficie, GA_PARENT);
    if (!ventana_)
        Crear();
    else if (::GetAncestor(ventana_, GA_PARENT) != padre)
        ::SetParent(ventana_, padre);
    if (!ventana_)
        return;
    RECT lugar{};
    ::GetWindowRect(superficie, &lugar);
    ::MapWindowPoints(HWND_DESKTOP, padre, reinterpret_cast<POINT*>(&lugar), 2);
    const bool visible = (::GetWindowLongW(superficie, GWL_STYLE) & WS_VISIBLE) != 0;
    // It shows nothing: where it was and where it comes need no painting.
    ::SetWindowPos(ventana_, superficie, lugar.left, lugar.top, lugar.right - lugar.left,
                   lugar.bottom - lugar.top,
                   SWP_NOACTIVATE | SWP_NOREDRAW | SWP_NOCOPYBITS |
                       (visible ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
    const BOOL habilitada = ::IsWindowEnabled(superficie);
    if (ventana_ && ::IsWindowEnabled(ventana_) != habilitada)
        ::EnableWindow(ventana_, habilitada);
}

void Velo::Soltar() {
    if (const HWND ventana = std::exchange(ventana_, nullptr))
        ::DestroyWindow(ventana);
}

HWND Velo::SuperficieEn(HWND velo, POINT enPantalla) {
    const auto* yo = reinterpret_cast<const Velo*>(::GetWindowLongPtrW(velo, GWLP_USERDATA));
    return yo ? MasHonda(yo->superficie_, enPantalla) : nullptr;
}

HWND Velo::BajoElRaton(HWND superficie) {
    POINT punto{};
    ::GetCursorPos(&punto);
    const HWND bajo = ::WindowFromPoint(punto);
    return EsVelo(bajo) && SuperficieEn(bajo, punto) == superficie ? bajo : superficie;
}

LRESULT CALLBACK Velo::Procedimiento(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) noexcept {
    if (mensaje == WM_NCCREATE) {
        auto* nuevo = static_cast<Velo*>(reinterpret_cast<CREATESTRUCTW*>(l)->lpCreateParams);
        ::SetWindowLongPtrW(ventana, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(nuevo));
        nuevo->ventana_ = ventana;
    }
    auto* yo = reinterpret_cast<Velo*>(::GetWindowLongPtrW(ventana, GWLP_USERDATA));
    if (!yo)
        return ::DefWindowProcW(ventana, mensaje, w, l);
    const HWND superficie = yo->superficie_;
    switch (mensaje) {
    case WM_NCDESTROY: // the container's window may take it along before the surface's
        yo->ventana_ = nullptr;
        ::SetWindowLongPtrW(ventana, GWLP_USERDATA, 0);
        break;
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        ::ValidateRect(ventana, nullptr);
        return 0;
    case WM_GETDLGCODE:
        return DLGC_STATIC;
    case WM_SETFOCUS:
        ::SetFocus(superficie);
        return 0;
    case WM_SETCURSOR:
    case WM_MOUSEACTIVATE:
    case WM_MOUSELEAVE:
    case WM_GETOBJECT: {
        POINT punto{};
        ::GetCursorPos(&punto);
        const HWND quien = mensaje == WM_GETOBJECT ? superficie : MasHonda(superficie, punto);
        return ::SendMessageW(quien, mensaje,
                              mensaje == WM_SETCURSOR ? reinterpret_cast<WPARAM>(quien) : w, l);
    }
    default:
        if (ConPunto(mensaje)) {
            POINT punto{GET_X_LPARAM(l), GET_Y_LPARAM(l)};
            ::ClientToScreen(ventana, &punto);
            const HWND quien = MasHonda(superficie, punto);
            ::ScreenToClient(quien, &punto);
            return ::SendMessageW(quien, mensaje, w, MAKELPARAM(punto.x, punto.y));
        }
        if (mensaje > WM_MBUTTONDBLCLK && mensaje <= WM_MOUSELAST)
            return ::SendMessageW(superficie, mensaje, w, l);
    }
    return ::DefWindowProcW(ventana, mensaje, w, l);
}

} // namespace pincela::windows
