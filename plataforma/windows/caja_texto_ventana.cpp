// The edit window: its making and its messages.
#include "plataforma/windows/accesibilidad.h"
#include "plataforma/windows/caja_texto_windows.h"
#include "plataforma/windows/colores.h"
#include "plataforma/windows/foco.h"
#include "plataforma/windows/globos.h"
#include "plataforma/windows/modulo.h"
#include "plataforma/windows/raton.h"
#include "plataforma/windows/temporizador_windows.h"

#include <commctrl.h>
#include <imm.h>
#include <windowsx.h>

#include <utility>

namespace pincela::windows {

namespace {

constexpr UINT_PTR Subclase = 1;

bool EsDeRaton(UINT mensaje) {
    return mensaje >= WM_MOUSEFIRST && mensaje <= WM_MBUTTONDBLCLK;
}

/// What comes from the user and would change a field that has the focus.
bool EsDelUsuario(UINT mensaje) {
    return (mensaje >= WM_MOUSEFIRST && mensaje <= WM_MOUSEHWHEEL) ||
           (mensaje >= WM_KEYFIRST && mensaje <= WM_KEYLAST) || mensaje == WM_CONTEXTMENU ||
           mensaje == WM_IME_COMPOSITION || mensaje == WM_IME_CHAR || mensaje == WM_GETDLGCODE;
}

} // namespace

DWORD CajaTextoWindows::Estilo() const {
    constexpr DWORD alineaciones[] = {ES_LEFT, ES_RIGHT, ES_CENTER};
    return WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | alineaciones[alineacion_] |
           (multilinea_ ? ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL
                        : ES_AUTOHSCROLL) |
           (bloqueada_ ? ES_READONLY : 0) | (apariencia_ == 1 ? 0 : WS_BORDER) |
           (habilitada_ ? 0 : WS_DISABLED);
}

void CajaTextoWindows::CrearVentana() {
    if (ventana_ || !nucleo_.ventana)
        return;
    RefFuenteGdi fuente = FuenteDeVentana(); // what takes memory comes before the window
    const RECT r = Rectangulo();
    ventana_ = ::CreateWindowExW(apariencia_ == 1 ? WS_EX_CLIENTEDGE : 0, L"EDIT", nullptr,
                                 Estilo(), r.left, r.top, r.right - r.left, r.bottom - r.top,
                                 nucleo_.ventana, nullptr, ModuloPropio(), nullptr);
    if (!ventana_)
        return;
    ::SendMessageW(ventana_, EM_SETLIMITTEXT, static_cast<WPARAM>(maximo_), 0);
    PonFuenteEnVentana(std::move(fuente));
    callada_ = true;
    ::SetWindowTextW(ventana_, reinterpret_cast<const wchar_t*>(texto_.c_str()));
    callada_ = false;
    ::SendMessageW(ventana_, EM_SETSEL, static_cast<WPARAM>(inicio_), inicio_ + largo_);
    anotada_ = false;
    Nombrar();
    ::SetWindowSubclass(ventana_, &CajaTextoWindows::Procedimiento, Subclase,
                        reinterpret_cast<DWORD_PTR>(this));
}

void CajaTextoWindows::SoltarVentana() {
    if (!ventana_)
        return;
    try {
        Texto texto = Text();
        const std::int32_t inicio = SelStart(), largo = SelLength();
        texto_ = std::move(texto);
        inicio_ = inicio;
        largo_ = largo;
    } catch (const std::bad_alloc&) {
        // The window goes all the same; what was typed in it can't be kept.
    }
    ::RemoveWindowSubclass(ventana_, &CajaTextoWindows::Procedimiento, Subclase);
    ventana_ = nullptr;
    manija_.reset();
    izquierdoAbajo_ = false;
}

// Some looks are settled when an edit window is made. The new one takes over what the old one had,
// the focus included, and nobody is told.
void CajaTextoWindows::Rehacer() {
    const HWND vieja = ventana_;
    if (!vieja)
        return;
    const bool conFoco = EsActivo();
    const LRESULT primera = ::SendMessageW(vieja, EM_GETFIRSTVISIBLELINE, 0, 0);
    SoltarVentana();
    const Dueno<HWND, CierreVentana> alFinal(vieja); // even if there is no memory for the new one
    CrearVentana();
    DesplazarHasta(primera);
    callada_ = true;
    if (conFoco && ventana_)
        ::SetFocus(ventana_);
    callada_ = false;
}

/// Shows from this line on or, in a field of one line, from this character.
void CajaTextoWindows::DesplazarHasta(LRESULT primera) {
    if (!ventana_)
        return;
    if (multilinea_) {
        const LRESULT ahora = ::SendMessageW(ventana_, EM_GETFIRSTVISIBLELINE, 0, 0);
        ::SendMessageW(ventana_, EM_LINESCROLL, 0, primera - ahora);
        return;
    }
    if (primera == 0)
        return;
    // The field follows its caret: to the end, and back to where it began.
    const auto ir = [this](WPARAM desde, LPARAM hasta) {
        ::SendMessageW(ventana_, EM_SETSEL, desde, hasta);
        ::SendMessageW(ventana_, EM_SCROLLCARET, 0, 0);
    };
    const auto total = static_cast<LPARAM>(texto_.size());
    ir(static_cast<WPARAM>(total), total);
    ir(static_cast<WPARAM>(primera), primera);
    ::SendMessageW(ventana_, EM_SETSEL, static_cast<WPARAM>(inicio_), inicio_ + largo_);
}

void CajaTextoWindows::Orden(WORD codigo) {
    if (codigo != EN_CHANGE || callada_)
        return;
    inicioPedido_ = largoPedido_ = -1; // what the user types settles the selection
    nucleo_.VistaCambiada();
    Decir([](OyenteEdicion& oyente) { oyente.Change(); });
}

HBRUSH CajaTextoWindows::Colorear(HDC dc) {
    const COLORREF fondo = Resolver(colorFondo_);
    ::SetTextColor(dc, Resolver(colorLetra_));
    ::SetBkColor(dc, fondo);
    if (fondo != colorPincel_ || !pincel_) {
        pincel_.Poner(::CreateSolidBrush(fondo));
        colorPincel_ = fondo;
    }
    return pincel_.get();
}

/// Tells the listener; false when the field did not survive.
template <class Accion>
bool CajaTextoWindows::Decir(Accion&& accion) {
    const std::weak_ptr<const void> testigo = vida_;
    if (OyenteEdicion* oyente = oyente_)
        Proteger(nucleo_.sitio, [&] { accion(*oyente); });
    return !testigo.expired();
}

LRESULT CALLBACK CajaTextoWindows::Procedimiento(HWND ventana, UINT mensaje, WPARAM w, LPARAM l,
                                                 UINT_PTR, DWORD_PTR yo) noexcept {
    auto& caja = *reinterpret_cast<CajaTextoWindows*>(yo);
    if (mensaje == WM_NCDESTROY) {
        caja.SoltarVentana();
        return ::DefSubclassProc(ventana, mensaje, w, l);
    }
    return caja.nucleo_.cerrando ? ::DefSubclassProc(ventana, mensaje, w, l)
                                 : caja.Recibir(mensaje, w, l);
}

LRESULT CajaTextoWindows::Recibir(UINT mensaje, WPARAM w, LPARAM l) noexcept {
    if (std::exchange(directo_, false))
        return ::DefSubclassProc(ventana_, mensaje, w, l);
    SitioControl& sitio = nucleo_.sitio;
    const Sosten sosten(sitio);
    const std::weak_ptr<const void> testigo = vida_;
    const HWND ventana = ventana_;
    LRESULT resultado = 0;
    bool terminado = false;
    Proteger(sitio, [&] { terminado = sitio.Mensaje(ventana, mensaje, w, l, &resultado); });
    if (!terminado && !testigo.expired())
        Proteger(sitio, [&] { terminado = Procesar(mensaje, w, l, resultado); });
    if (terminado || testigo.expired())
        return resultado;
    bool puede = true;
    const bool pide = !editando_ && CambiaElTexto(mensaje, w, l);
    if (pide && !Decir([&](OyenteEdicion& oyente) { puede = oyente.PideEditar(); }))
        return resultado;
    if (!puede || !ventana_)
        return resultado;
    editando_ = editando_ || pide;
    if (ventana_ == ventana) {
        resultado = ::DefSubclassProc(ventana, mensaje, w, l);
    } else if (mensaje == WM_CHAR) {
        // A handler changed what only a new window can show: the character goes there.
        directo_ = true;
        resultado = ::SendMessageW(ventana_, mensaje, w, l);
    }
    if (pide && !testigo.expired())
        editando_ = false;
    return resultado;
}

/// Whether the platform's handling of a message changes the text of a field that isn't locked.
bool CajaTextoWindows::CambiaElTexto(UINT mensaje, WPARAM w, LPARAM l) const {
    if (bloqueada_)
        return false;
    switch (mensaje) {
    case WM_CHAR:
        return w >= u' ' || w == VK_BACK || (w == VK_RETURN && multilinea_);
    case WM_KEYDOWN:
        return w == VK_DELETE;
    case WM_IME_COMPOSITION:
        return (l & GCS_RESULTSTR) != 0;
    case WM_PASTE:
    case WM_CUT:
    case WM_CLEAR:
    case WM_UNDO:
    case EM_UNDO:
    case EM_REPLACESEL:
        return true;
    default:
        return false;
    }
}

bool CajaTextoWindows::Procesar(UINT mensaje, WPARAM& w, LPARAM l, LRESULT& resultado) {
    const HWND ventana = ventana_;
    if (mensaje == WM_SETFOCUS || mensaje == WM_KILLFOCUS)
        return ProcesarFoco(mensaje, w, l, resultado);
    if (mensaje == WM_CAPTURECHANGED)
        izquierdoAbajo_ = false;
    if (nucleo_.sitio.EntradaCongelada()) {
        const bool delUsuario = EsDelUsuario(mensaje);
        if (delUsuario) // what the platform does with it in any window, and no more
            resultado = ::DefWindowProcW(ventana, mensaje, w, l);
        else
            resultado = HTTRANSPARENT; // a designer drags the control by any part of it
        return delUsuario || mensaje == WM_NCHITTEST;
    }
    if (EsTabulador(mensaje, w)) {
        if (mensaje == WM_KEYDOWN)
            nucleo_.sitio.MoverFoco(::GetKeyState(VK_SHIFT) < 0);
        return true;
    }
    switch (mensaje) {
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_SYSKEYDOWN:
    case WM_SYSKEYUP:
    case WM_CHAR:
        return ProcesarTecla(mensaje, w);
    case WM_GETDLGCODE:
        resultado = CodigoDeDialogo(l);
        return true;
    case WM_MOUSELEAVE:
        TemporizadorWindows::RatonSale(nucleo_);
        return false;
    default:
        return EsDeRaton(mensaje) && !ProcesarRaton(mensaje, w, l);
    }
}

bool CajaTextoWindows::ProcesarFoco(UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado) {
    resultado = ::DefSubclassProc(ventana_, mensaje, w, l);
    if (mensaje == WM_SETFOCUS) {
        if (!callada_ && FocoEntra(nucleo_) && !nucleo_.sitio.EntradaCongelada()) {
            focoDicho_ = true;
            Decir([](OyenteEdicion& oyente) { oyente.GotFocus(); });
        }
        return true;
    }
    Nucleo& nucleo = nucleo_;
    const auto testigo = nucleo.Testigo();
    if (!callada_ && std::exchange(focoDicho_, false))
        Decir([](OyenteEdicion& oyente) { oyente.LostFocus(); });
    if (!testigo.expired())
        FocoSale(nucleo, reinterpret_cast<HWND>(w));
    return true;
}

// The platform's own answer would make a field of many lines take TAB and Escape from a dialog.
LRESULT CajaTextoWindows::CodigoDeDialogo(LPARAM l) const {
    const auto* pendiente = reinterpret_cast<const MSG*>(l);
    const bool enter = pendiente && pendiente->wParam == VK_RETURN && nucleo_.control &&
                       nucleo_.control->ComeEnter();
    return DLGC_WANTCHARS | DLGC_HASSETSEL | DLGC_WANTARROWS | (enter ? DLGC_WANTMESSAGE : 0);
}

bool CajaTextoWindows::ProcesarTecla(UINT mensaje, WPARAM& w) {
    auto codigo = static_cast<std::int16_t>(w);
    const std::int16_t shift = ShiftActual();
    const HWND ventana = ventana_;
    const bool baja = mensaje == WM_KEYDOWN || mensaje == WM_SYSKEYDOWN;
    const bool vive = Decir([&](OyenteEdicion& oyente) {
        if (mensaje == WM_CHAR)
            oyente.KeyPress(codigo);
        else if (baja)
            oyente.KeyDown(codigo, shift);
        else
            oyente.KeyUp(codigo, shift);
    });
    w = static_cast<std::uint16_t>(codigo);
    if (codigo == 0 && baja && ::IsWindow(ventana)) {
        MSG letra; // the character of a dropped key is waiting already
        ::PeekMessageW(&letra, ventana, WM_CHAR, WM_CHAR, PM_REMOVE);
    }
    if (codigo == 0 || !vive)
        return true;
    if (mensaje == WM_KEYDOWN && multilinea_ && codigo == VK_TAB) {
        // With CTRL, as here, the keyboard makes a character of it on some platforms only.
        MSG letra;
        ::PeekMessageW(&letra, ventana, WM_CHAR, WM_CHAR, PM_REMOVE);
        ::SendMessageW(ventana, WM_CHAR, VK_TAB, 1);
        return true;
    }
    if (mensaje != WM_CHAR)
        return false;
    if (multilinea_ && codigo == VK_TAB)
        InsertarTabulador();
    // A single-line field has no use for these and would beep.
    return codigo == VK_TAB || (!multilinea_ && (codigo == VK_RETURN || codigo == VK_ESCAPE));
}

// CTRL and TAB; the platform's field takes it or not, depending on what it believes to lie in.
void CajaTextoWindows::InsertarTabulador() {
    const bool cabe = maximo_ <= 0 || ::GetWindowTextLengthW(ventana_) - SelLength() < maximo_;
    if (ventana_ && !bloqueada_ && cabe)
        ::SendMessageW(ventana_, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"\t"));
}

bool CajaTextoWindows::ProcesarRaton(UINT mensaje, WPARAM w, LPARAM l) {
    const std::weak_ptr<const void> testigo = vida_;
    if (nucleo_.globos) {
        POINT punto{GET_X_LPARAM(l), GET_Y_LPARAM(l)};
        ::MapWindowPoints(ventana_, nucleo_.ventana, &punto, 1);
        nucleo_.globos->Mensaje(mensaje, w, MAKELPARAM(punto.x, punto.y));
    }
    const auto x = static_cast<float>(GET_X_LPARAM(l)), y = static_cast<float>(GET_Y_LPARAM(l));
    const std::int16_t shift = ShiftDeRaton(w);
    const std::int16_t boton = BotonDeMensaje(mensaje);
    switch (mensaje) {
    case WM_MOUSEMOVE:
        TemporizadorWindows::RatonEncima(nucleo_, ventana_);
        Decir([&](OyenteEdicion& o) { o.MouseMove(BotonesAbajo(w), shift, x, y); });
        return true;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
        izquierdoAbajo_ = true;
        if (!nucleo_.EsVentanaPropia(::GetFocus()))
            Proteger(nucleo_.sitio, [this] { nucleo_.sitio.PedirFoco(); });
        if (testigo.expired())
            return true;
        // The platform's field would take a focus that was refused.
        const bool admitida = nucleo_.EsVentanaPropia(::GetFocus());
        Decir([&](OyenteEdicion& o) { o.MouseDown(boton, shift, x, y); });
        return admitida;
    }
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
        Decir([&](OyenteEdicion& o) { o.MouseDown(boton, shift, x, y); });
        return true;
    default:
        break;
    }
    RECT cliente{};
    ::GetClientRect(ventana_, &cliente);
    const bool click = mensaje == WM_LBUTTONUP && izquierdoAbajo_ &&
                       ::PtInRect(&cliente, POINT{GET_X_LPARAM(l), GET_Y_LPARAM(l)});
    if (mensaje == WM_LBUTTONUP)
        izquierdoAbajo_ = false;
    if (Decir([&](OyenteEdicion& o) { o.MouseUp(boton, shift, x, y); }) && click)
        Decir([](OyenteEdicion& o) { o.Click(); });
    return true;
}

} // namespace pincela::windows
