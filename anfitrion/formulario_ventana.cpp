// The form's window: class, messages, painting, the layer of design mode and the message loops.
#include "anfitrion/formulario.h"
#include "anfitrion/unidades.h"

#include <commctrl.h>

namespace anfitrion {

static constexpr wchar_t ClaseForma[] = L"AnfitrionFormulario";
static constexpr wchar_t ClaseCapa[] = L"AnfitrionCapaDiseno";

static void RegistrarClase(const wchar_t* nombre, WNDPROC procedimiento) {
    WNDCLASSEXW clase{};
    clase.cbSize = sizeof clase;
    clase.style = CS_DBLCLKS;
    clase.lpfnWndProc = procedimiento;
    clase.hInstance = GetModuleHandleW(nullptr);
    clase.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    clase.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    clase.lpszClassName = nombre;
    RegisterClassExW(&clase); // fails harmlessly the second time
}

void Formulario::CrearVentana(const OpcionesFormulario& opciones) {
    RegistrarClase(ClaseForma, Procesar);
    RegistrarClase(ClaseCapa, ProcesarCapa);
    DWORD estilo = WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
    DWORD estiloEx = WS_EX_CONTROLPARENT;
    int x = CW_USEDEFAULT;
    int y = CW_USEDEFAULT;
    RECT r{0, 0, opciones.ancho, opciones.alto};
    if (opciones.padre) {
        estilo |= WS_CHILD;
        x = y = 0;
    } else {
        estilo |= WS_OVERLAPPEDWINDOW;
        if (!opciones.redimensionable)
            estilo &= ~static_cast<DWORD>(WS_THICKFRAME | WS_MAXIMIZEBOX);
        AdjustWindowRectEx(&r, estilo, FALSE, estiloEx);
    }
    ventana_ =
        CreateWindowExW(estiloEx, ClaseForma, opciones.titulo.c_str(), estilo, x, y, Ancho(r),
                        Alto(r), opciones.padre, nullptr, GetModuleHandleW(nullptr), nullptr);
    if (!ventana_)
        throw FalloCom(HRESULT_FROM_WIN32(GetLastError()), "ventana del formulario");
    SetWindowLongPtrW(ventana_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

Formulario* Formulario::De(HWND ventana) {
    for (; ventana; ventana = GetAncestor(ventana, GA_PARENT)) {
        wchar_t clase[40];
        if (GetClassNameW(ventana, clase, 40) && lstrcmpW(clase, ClaseForma) == 0)
            return reinterpret_cast<Formulario*>(GetWindowLongPtrW(ventana, GWLP_USERDATA));
    }
    return nullptr;
}

LRESULT CALLBACK Formulario::Procesar(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) {
    auto* forma = reinterpret_cast<Formulario*>(GetWindowLongPtrW(ventana, GWLP_USERDATA));
    return forma ? forma->Tratar(mensaje, w, l) : DefWindowProcW(ventana, mensaje, w, l);
}

LRESULT Formulario::Tratar(UINT mensaje, WPARAM w, LPARAM l) {
    const HWND ventana = ventana_;
    const auto vivo = vivo_;
    if (const auto manejador = alRecibir) {
        LRESULT resultado = 0;
        if (manejador(mensaje, w, l, resultado) || !*vivo)
            return resultado;
    }
    switch (mensaje) {
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT: {
        PAINTSTRUCT ps;
        const HDC hdc = BeginPaint(ventana, &ps);
        Pintar(hdc, ps.rcPaint);
        EndPaint(ventana, &ps);
        return 0;
    }
    case WM_PRINTCLIENT: {
        RECT todo;
        GetClientRect(ventana, &todo);
        Pintar(reinterpret_cast<HDC>(w), todo);
        return 0;
    }
    case WM_SIZE:
        if (capa_)
            PonerCapa();
        InvalidateRect(ventana, nullptr, FALSE);
        if (const auto manejador = alCambiarTamano)
            manejador();
        return 0;
    case WM_COMMAND:
        if (const auto manejador = alOrdenar; manejador && l)
            manejador(HIWORD(w), reinterpret_cast<HWND>(l));
        return 0;
    case WM_ACTIVATE:
        AlActivarVentana(LOWORD(w) != WA_INACTIVE);
        return *vivo ? DefWindowProcW(ventana, mensaje, w, l) : 0;
    case WM_SETFOCUS:
        // The form itself has no use for the focus: it hands it on.
        if (activo_)
            activo_->Verbo(OLEIVERB_UIACTIVATE);
        else if (ultimaVentana_ && IsWindow(ultimaVentana_))
            SetFocus(ultimaVentana_);
        else if (ModoUsuario())
            MoverFoco(false);
        return 0;
    case WM_CLOSE:
        cerrado_ = true;
        ShowWindow(ventana, SW_HIDE);
        return 0;
    default:
        return DefWindowProcW(ventana, mensaje, w, l);
    }
}

void Formulario::AlActivarVentana(bool activa) {
    if (const auto objeto = ObjetoActivo()) {
        const auto vivo = vivo_;
        objeto->OnFrameWindowActivate(activa);
        if (*vivo && documento_->Activo())
            objeto->OnDocWindowActivate(activa);
    }
}

void Formulario::Pintar(HDC hdc, const RECT& sucio) {
    if (const auto manejador = alPintar)
        manejador(hdc, sucio);
    else
        FillRect(hdc, &sucio, GetSysColorBrush(COLOR_BTNFACE));
    PintarControles(hdc, nullptr);
}

bool Formulario::Filtrar(ControlAlojado& control, UINT mensaje, WPARAM w, LPARAM l,
                         LRESULT& resultado) {
    const auto manejador = alFiltrar;
    return manejador && manejador(control, mensaje, w, l, resultado);
}

void Formulario::Filtrado(ControlAlojado& control, HWND ventana, UINT mensaje) {
    if (mensaje != WM_PAINT)
        return;
    // The panel has painted itself; what stands on it without a window comes over it.
    const HDC hdc = GetDC(ventana);
    PintarControles(hdc, &control);
    ReleaseDC(ventana, hdc);
}

/// Controls that are not active in place.
void Formulario::PintarControles(HDC hdc, const ControlAlojado* dentro) const {
    for (const auto& control : ControlesEn(dentro))
        control->Dibujar(hdc);
}

void Formulario::Dibujar(HDC hdc) const {
    DibujarControles(hdc, nullptr);
}

void Formulario::DibujarControles(HDC hdc, const ControlAlojado* dentro) const {
    for (const auto& control : ControlesEn(dentro)) {
        if (!control->Visible())
            continue;
        control->Retratar(hdc);
        const RECT& r = control->Rectangulo();
        const int estado = SaveDC(hdc);
        IntersectClipRect(hdc, r.left, r.top, r.right, r.bottom);
        OffsetViewportOrgEx(hdc, r.left, r.top, nullptr);
        DibujarControles(hdc, control.get());
        RestoreDC(hdc, estado);
    }
}

SIZE Formulario::Medida() const {
    RECT r{};
    GetClientRect(ventana_, &r);
    return {r.right, r.bottom};
}

void Formulario::PonerMedida(const SIZE& medida) {
    RECT r{0, 0, medida.cx, medida.cy};
    AdjustWindowRectEx(&r, static_cast<DWORD>(GetWindowLongW(ventana_, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongW(ventana_, GWL_EXSTYLE)));
    SetWindowPos(ventana_, nullptr, 0, 0, Ancho(r), Alto(r),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Formulario::PonerCapa() {
    if (ModoUsuario()) {
        if (const HWND capa = std::exchange(capa_, nullptr))
            DestroyWindow(capa);
        return;
    }
    RECT r;
    GetClientRect(ventana_, &r);
    if (!capa_) {
        capa_ =
            CreateWindowExW(WS_EX_TRANSPARENT, ClaseCapa, L"", WS_CHILD | WS_VISIBLE, 0, 0, r.right,
                            r.bottom, ventana_, nullptr, GetModuleHandleW(nullptr), nullptr);
        SetWindowLongPtrW(capa_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
    SetWindowPos(capa_, HWND_TOP, 0, 0, r.right, r.bottom, SWP_NOACTIVATE);
}

LRESULT CALLBACK Formulario::ProcesarCapa(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) {
    auto* forma = reinterpret_cast<Formulario*>(GetWindowLongPtrW(ventana, GWLP_USERDATA));
    return forma ? forma->TratarCapa(ventana, mensaje, w, l)
                 : DefWindowProcW(ventana, mensaje, w, l);
}

LRESULT Formulario::TratarCapa(HWND capa, UINT mensaje, WPARAM w, LPARAM l) {
    if (const auto manejador = alDisenar) {
        LRESULT resultado = 0;
        if (manejador(mensaje, w, l, resultado))
            return resultado;
    }
    switch (mensaje) {
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        ValidateRect(capa, nullptr);
        return 0;
    case WM_LBUTTONDOWN:
        Seleccionar(ControlEn({static_cast<short>(LOWORD(l)), static_cast<short>(HIWORD(l))}),
                    w & (MK_CONTROL | MK_SHIFT));
        return 0;
    default:
        return DefWindowProcW(capa, mensaje, w, l);
    }
}

LRESULT CALLBACK Formulario::ProcesarPropia(HWND ventana, UINT mensaje, WPARAM w, LPARAM l,
                                            UINT_PTR id, DWORD_PTR forma) {
    if (mensaje == WM_SETFOCUS) {
        // A window of the application took the focus: no control is UI active any more.
        auto& f = *reinterpret_cast<Formulario*>(forma);
        f.ultimaVentana_ = ventana;
        f.DesactivarUI();
        if (GetFocus() != ventana)
            SetFocus(ventana);
    } else if (mensaje == WM_NCDESTROY) {
        RemoveWindowSubclass(ventana, ProcesarPropia, id);
    }
    return DefSubclassProc(ventana, mensaje, w, l);
}

void Formulario::AgregarVentana(HWND ventana, long orden) {
    ventanas_.push_back({nullptr, ventana, orden});
    SetWindowSubclass(ventana, ProcesarPropia, 1, reinterpret_cast<DWORD_PTR>(this));
}

void Formulario::Despachar(MSG& mensaje) {
    if (Formulario* forma = De(mensaje.hwnd); forma && forma->Pretraducir(mensaje))
        return;
    TranslateMessage(&mensaje);
    DispatchMessageW(&mensaje);
}

void Formulario::BombearMensajes() {
    MSG mensaje;
    while (PeekMessageW(&mensaje, nullptr, 0, 0, PM_REMOVE)) {
        if (mensaje.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(mensaje.wParam));
            return;
        }
        Despachar(mensaje);
    }
}

void Formulario::Esperar(DWORD milisegundos) {
    const ULONGLONG fin = GetTickCount64() + milisegundos;
    const auto vivo = vivo_;
    for (ULONGLONG ahora = GetTickCount64(); *vivo && ahora < fin; ahora = GetTickCount64()) {
        BombearMensajes();
        MsgWaitForMultipleObjects(0, nullptr, FALSE,
                                  static_cast<DWORD>(std::min<ULONGLONG>(fin - ahora, 20)),
                                  QS_ALLINPUT);
    }
    if (*vivo)
        BombearMensajes();
}

void Formulario::Ejecutar() {
    const auto vivo = vivo_;
    MSG mensaje;
    while (*vivo && !cerrado_) {
        const BOOL hay = GetMessageW(&mensaje, nullptr, 0, 0);
        if (hay <= 0) {
            if (hay == 0)
                PostQuitMessage(static_cast<int>(mensaje.wParam));
            return;
        }
        Despachar(mensaje);
    }
}

} // namespace anfitrion
