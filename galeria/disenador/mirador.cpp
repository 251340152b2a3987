#include "galeria/disenador/mirador.h"

#include "anfitrion/unidades.h"
#include "galeria/trazos.h"

#include <windowsx.h>

#include <algorithm>

namespace galeria {

using namespace anfitrion;
using diseno::Agarre;
using diseno::Caja;
using diseno::Gesto;
using diseno::Punto;

namespace {

constexpr wchar_t Clase[] = L"GaleriaMirador";
constexpr COLORREF Mostrador = RGB(226, 232, 240);
constexpr COLORREF Borde = RGB(148, 163, 184);
constexpr Agarre DeLaForma[] = {Agarre::DerInf, Agarre::Der, Agarre::Inf};
constexpr int Margen96 = 14;
constexpr int Minimo96 = 40;

} // namespace

Mirador::Mirador(HWND padre) {
    WNDCLASSW clase{};
    clase.lpfnWndProc = Procesar;
    clase.hInstance = GetModuleHandleW(nullptr);
    clase.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    clase.lpszClassName = Clase;
    RegisterClassW(&clase); // fails harmlessly the second time
    ventana_ = CreateWindowExW(WS_EX_CONTROLPARENT, Clase, L"",
                               WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_HSCROLL | WS_VSCROLL, 0,
                               0, 0, 0, padre, nullptr, clase.hInstance, nullptr);
    SetWindowLongPtrW(ventana_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

Mirador::~Mirador() {
    SetWindowLongPtrW(ventana_, GWLP_USERDATA, 0);
}

void Mirador::Mostrar(Mesa& mesa) {
    mesa_ = &mesa;
    Ajustar();
}

void Mirador::Colocar(const RECT& lugar) {
    SetWindowPos(ventana_, nullptr, lugar.left, lugar.top, Ancho(lugar), Alto(lugar),
                 SWP_NOZORDER | SWP_NOACTIVATE);
    Ajustar();
}

void Mirador::Ajustar() {
    if (!mesa_)
        return;
    const SIZE medida = mesa_->Forma().Medida();
    const int margenes = 2 * Escala(Margen96);
    // Each bar takes room from the other one: twice settles it.
    for (int vez = 0; vez < 2; ++vez) {
        RECT r{};
        GetClientRect(ventana_, &r);
        SCROLLINFO info{sizeof info,
                        SIF_RANGE | SIF_PAGE | SIF_POS,
                        0,
                        static_cast<int>(medida.cx) + margenes - 1,
                        static_cast<UINT>(r.right),
                        x_,
                        0};
        SetScrollInfo(ventana_, SB_HORZ, &info, TRUE);
        info.nMax = static_cast<int>(medida.cy) + margenes - 1;
        info.nPage = static_cast<UINT>(r.bottom);
        info.nPos = y_;
        SetScrollInfo(ventana_, SB_VERT, &info, TRUE);
    }
    x_ = GetScrollPos(ventana_, SB_HORZ);
    y_ = GetScrollPos(ventana_, SB_VERT);
    SetWindowPos(mesa_->Forma().Ventana(), nullptr, Escala(Margen96) - x_, Escala(Margen96) - y_, 0,
                 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    InvalidateRect(ventana_, nullptr, FALSE);
}

void Mirador::Desplazar(int barra, int posicion) {
    (barra == SB_HORZ ? x_ : y_) = posicion;
    Ajustar();
}

void Mirador::Rodar(int barra, WPARAM w) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(ventana_, barra, &info);
    const int hoja = static_cast<int>(info.nPage);
    switch (LOWORD(w)) {
    case SB_LINEUP:
        return Desplazar(barra, info.nPos - Escala(24));
    case SB_LINEDOWN:
        return Desplazar(barra, info.nPos + Escala(24));
    case SB_PAGEUP:
        return Desplazar(barra, info.nPos - hoja);
    case SB_PAGEDOWN:
        return Desplazar(barra, info.nPos + hoja);
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
        return Desplazar(barra, info.nTrackPos);
    default:
        return;
    }
}

Caja Mirador::CajaDeLaForma() const {
    const SIZE medida = mesa_->Forma().Medida();
    const int x = Escala(Margen96) - x_, y = Escala(Margen96) - y_;
    return {x, y, x + static_cast<int>(medida.cx), y + static_cast<int>(medida.cy)};
}

Agarre Mirador::AgarreEn(Punto punto) const {
    if (!mesa_ || mesa_->Ejecutando())
        return Agarre::Ninguno;
    for (const Agarre agarre : DeLaForma)
        if (CajaDe(CajaDeLaForma(), agarre, Adornos::Lado()).Contiene(punto))
            return agarre;
    return Agarre::Ninguno;
}

void Mirador::Pintar(HDC hdc) const {
    RECT r{};
    GetClientRect(ventana_, &r);
    Llenar(hdc, r, Mostrador);
    if (!mesa_)
        return;
    const Caja forma = CajaDeLaForma();
    const int grueso = Grueso();
    Llenar(hdc,
           {forma.izquierda - grueso, forma.arriba - grueso, forma.derecha + grueso,
            forma.abajo + grueso},
           Borde);
    if (mesa_->Ejecutando())
        return;
    for (const Agarre agarre : DeLaForma) {
        const Caja c = CajaDe(forma, agarre, Adornos::Lado());
        Enmarcar(hdc, {c.izquierda, c.arriba, c.derecha, c.abajo}, Borde, ColorTarjeta);
    }
}

void Mirador::SoltarBoton() {
    const bool arrancado = gesto_ && gesto_->Arrancado();
    gesto_.reset();
    ReleaseCapture();
    if (arrancado)
        mesa_->PonerMedida(mesa_->Forma().Medida());
}

bool Mirador::Tratar(UINT mensaje, WPARAM w, LPARAM l) {
    const Punto punto{GET_X_LPARAM(l), GET_Y_LPARAM(l)};
    switch (mensaje) {
    case WM_ERASEBKGND:
        return true;
    case WM_PAINT: {
        PAINTSTRUCT ps;
        Pintar(BeginPaint(ventana_, &ps));
        EndPaint(ventana_, &ps);
        return true;
    }
    case WM_SIZE:
        Ajustar();
        return true;
    case WM_HSCROLL:
        Rodar(SB_HORZ, w);
        return true;
    case WM_VSCROLL:
        Rodar(SB_VERT, w);
        return true;
    case WM_MOUSEWHEEL:
        Desplazar(GetKeyState(VK_SHIFT) < 0 ? SB_HORZ : SB_VERT,
                  (GetKeyState(VK_SHIFT) < 0 ? x_ : y_) -
                      GET_WHEEL_DELTA_WPARAM(w) * Escala(72) / WHEEL_DELTA);
        return true;
    case WM_SETCURSOR: {
        POINT donde;
        GetCursorPos(&donde);
        ScreenToClient(ventana_, &donde);
        const Agarre agarre = AgarreEn({static_cast<int>(donde.x), static_cast<int>(donde.y)});
        if (agarre == Agarre::Ninguno || LOWORD(l) != HTCLIENT)
            return false;
        SetCursor(LoadCursorW(nullptr, CursorDe(agarre)));
        return true;
    }
    case WM_LBUTTONDOWN:
        if (const Agarre agarre = AgarreEn(punto); agarre != Agarre::Ninguno) {
            gesto_ = Gesto::Estirar(punto, CajaDeLaForma(), agarre, Escala(Minimo96), {});
            SetCapture(ventana_);
        } else if (mesa_ && !mesa_->Ejecutando()) {
            mesa_->Forma().Seleccionar({});
            SetFocus(mesa_->Forma().Ventana());
        }
        return true;
    case WM_MOUSEMOVE:
        if (gesto_ && gesto_->Seguir(punto, false)) {
            const diseno::Rejilla rejilla{mesa_->Paso()};
            const Caja caja = gesto_->Cajas().front();
            mesa_->Forma().PonerMedida(
                {rejilla.Ajustar(caja.Ancho()), rejilla.Ajustar(caja.Alto())});
            InvalidateRect(ventana_, nullptr, FALSE);
        }
        return true;
    case WM_LBUTTONUP:
        if (gesto_)
            SoltarBoton();
        return true;
    default:
        return false;
    }
}

LRESULT CALLBACK Mirador::Procesar(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) {
    auto* mirador = reinterpret_cast<Mirador*>(GetWindowLongPtrW(ventana, GWLP_USERDATA));
    if (mirador && mirador->Tratar(mensaje, w, l))
        return mensaje == WM_SETCURSOR || mensaje == WM_ERASEBKGND;
    return DefWindowProcW(ventana, mensaje, w, l);
}

} // namespace galeria
