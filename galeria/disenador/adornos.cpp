#include "galeria/disenador/adornos.h"

#include "galeria/trazos.h"

namespace galeria {

using diseno::Agarre;
using diseno::Caja;

namespace {

constexpr wchar_t Clase[] = L"GaleriaAdornos";
constexpr COLORREF Segundo = RGB(100, 116, 139);

RECT Rect(const Caja& c) {
    return {c.izquierda, c.arriba, c.derecha, c.abajo};
}

/// Just outside of a control.
Caja Marco(const Caja& c) {
    const int g = Grueso();
    return {c.izquierda - g, c.arriba - g, c.derecha + g, c.abajo + g};
}

void Sumar(HRGN forma, const RECT& r) {
    const HRGN pedazo = CreateRectRgnIndirect(&r);
    CombineRgn(forma, forma, pedazo, RGN_OR);
    DeleteObject(pedazo);
}

void SumarMarco(HRGN forma, const Caja& c) {
    const RECT r = Rect(c);
    const int g = Grueso();
    for (const RECT& lado :
         {RECT{r.left, r.top, r.right, r.top + g}, RECT{r.left, r.bottom - g, r.right, r.bottom},
          RECT{r.left, r.top, r.left + g, r.bottom}, RECT{r.right - g, r.top, r.right, r.bottom}})
        Sumar(forma, lado);
}

} // namespace

const wchar_t* CursorDe(Agarre agarre) {
    switch (agarre) {
    case Agarre::IzqSup:
    case Agarre::DerInf:
        return IDC_SIZENWSE;
    case Agarre::DerSup:
    case Agarre::IzqInf:
        return IDC_SIZENESW;
    case Agarre::Sup:
    case Agarre::Inf:
        return IDC_SIZENS;
    case Agarre::Izq:
    case Agarre::Der:
        return IDC_SIZEWE;
    default:
        return IDC_ARROW;
    }
}

int Adornos::Lado() {
    return Escala(7) | 1;
}

Adornos::Adornos(HWND forma) {
    WNDCLASSW clase{};
    clase.lpfnWndProc = Procesar;
    clase.hInstance = GetModuleHandleW(nullptr);
    clase.lpszClassName = Clase;
    RegisterClassW(&clase); // fails harmlessly the second time
    ventana_ = CreateWindowExW(0, Clase, L"", WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 0, 0, forma,
                               nullptr, clase.hInstance, nullptr);
    SetWindowLongPtrW(ventana_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

void Adornos::Mostrar(const std::vector<Caja>& elegidas) {
    elegidas_ = elegidas;
    Formar();
}

void Adornos::Abarcar(std::optional<Caja> banda) {
    banda_ = banda;
    Formar();
}

void Adornos::Formar() {
    const HRGN forma = CreateRectRgn(0, 0, 0, 0);
    for (const Caja& caja : elegidas_) {
        SumarMarco(forma, Marco(caja));
        for (const Agarre agarre : diseno::Agarres)
            Sumar(forma, Rect(CajaDe(caja, agarre, Lado())));
    }
    if (banda_)
        SumarMarco(forma, *banda_);
    RECT r{};
    GetClientRect(GetParent(ventana_), &r);
    const HRGN vieja = CreateRectRgn(0, 0, 0, 0);
    GetWindowRgn(ventana_, vieja);
    SetWindowRgn(ventana_, forma, FALSE); // the region belongs to the window now
    const bool hay = !elegidas_.empty() || banda_;
    SetWindowPos(ventana_, HWND_TOP, 0, 0, r.right, r.bottom,
                 SWP_NOACTIVATE | (hay ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
    // What the old shape covered belongs to the controls again.
    RedrawWindow(GetParent(ventana_), nullptr, vieja, RDW_INVALIDATE | RDW_ALLCHILDREN);
    InvalidateRect(ventana_, nullptr, FALSE);
    DeleteObject(vieja);
}

void Adornos::Pintar(HDC hdc) const {
    if (banda_)
        Llenar(hdc, Rect(*banda_), ColorAcento);
    for (std::size_t i = elegidas_.size(); i-- > 0;) {
        const Caja& caja = elegidas_[i];
        const COLORREF color = i == 0 ? ColorAcento : Segundo;
        const HRGN linea = CreateRectRgn(0, 0, 0, 0);
        SumarMarco(linea, Marco(caja));
        SetDCBrushColor(hdc, color);
        FillRgn(hdc, linea, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
        DeleteObject(linea);
        // Solid where they can't be dragged.
        for (const Agarre agarre : diseno::Agarres)
            Enmarcar(hdc, Rect(CajaDe(caja, agarre, Lado())), color,
                     elegidas_.size() == 1 ? ColorTarjeta : color);
    }
}

LRESULT CALLBACK Adornos::Procesar(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) {
    const auto* adornos =
        reinterpret_cast<const Adornos*>(GetWindowLongPtrW(ventana, GWLP_USERDATA));
    switch (mensaje) {
    case WM_ERASEBKGND:
        return 1;
    case WM_NCHITTEST:
        return HTTRANSPARENT;
    case WM_PAINT: {
        PAINTSTRUCT ps;
        const HDC hdc = BeginPaint(ventana, &ps);
        if (adornos)
            adornos->Pintar(hdc);
        EndPaint(ventana, &ps);
        return 0;
    }
    default:
        return DefWindowProcW(ventana, mensaje, w, l);
    }
}

} // namespace galeria
