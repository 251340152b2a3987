#include "plataforma/windows/ventana_superficie.h"

#include "plataforma/windows/campo_edicion.h"
#include "plataforma/windows/clase_de_ventana.h"
#include "plataforma/windows/composicion.h"
#include "plataforma/windows/filtro_marco.h"
#include "plataforma/windows/foco.h"
#include "plataforma/windows/modulo.h"
#include "plataforma/windows/puntero.h"
#include "plataforma/windows/temporizador_windows.h"

#include <algorithm>
#include <cstdint>

namespace pincela::windows {

namespace {

bool EsDeEntrada(UINT mensaje) {
    return (mensaje >= WM_MOUSEFIRST && mensaje <= WM_MBUTTONDBLCLK) ||
           (mensaje >= WM_KEYFIRST && mensaje <= WM_KEYLAST) || mensaje == WM_MOUSEACTIVATE ||
           mensaje == WM_SETCURSOR || mensaje == WM_GETDLGCODE;
}

// TAB and the arrows stay with the container; characters and Enter are the control's.
LRESULT CodigoDeDialogo(LPARAM l) {
    const auto* pendiente = reinterpret_cast<const MSG*>(l);
    const bool enter = pendiente && pendiente->wParam == VK_RETURN &&
                       (pendiente->message == WM_KEYDOWN || pendiente->message == WM_CHAR);
    return DLGC_WANTCHARS | (enter ? DLGC_WANTMESSAGE : 0);
}

} // namespace

RECT LugarDeVentana(const RECT& pedido) {
    const auto lado = [](std::int64_t desde, std::int64_t hasta) {
        return static_cast<LONG>(std::clamp<std::int64_t>(hasta - desde, 0, LadoMaximoDeVentana));
    };
    const auto sitio = [](LONG valor) {
        return std::clamp<LONG>(valor, -LadoMaximoDeVentana - 1, LadoMaximoDeVentana);
    };
    const LONG x = sitio(pedido.left), y = sitio(pedido.top);
    return {x, y, x + lado(pedido.left, pedido.right), y + lado(pedido.top, pedido.bottom)};
}

HWND VentanaSuperficie::Crear(HWND padre, const RECT& pedido, const RECT* recorte) {
    static ClaseDeVentana clase(NombreDeClase, CS_DBLCLKS, &VentanaSuperficie::Procedimiento);
    clase.Asegurar();
    if (nucleo_.ventana)
        Destruir();
    const RECT lugar = LugarDeVentana(pedido);
    superficie_.PonTamano({lugar.right - lugar.left, lugar.bottom - lugar.top});
    const auto testigo = nucleo_.Testigo();
    // TAB goes through what is placed inside, also where the platform moves the focus.
    const DWORD estiloEx = nucleo_.sitio.MarcoSimple() ? WS_EX_CONTROLPARENT : 0;
    const HWND ventana = ::CreateWindowExW(
        estiloEx, NombreDeClase, nullptr, WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, lugar.left,
        lugar.top, lugar.right - lugar.left, lugar.bottom - lugar.top, padre, nullptr,
        ModuloPropio(), this);
    if (!ventana || testigo.expired())
        return nullptr;
    silueta_.PonRecorte(lugar, recorte);
    silueta_.Ajustar();
    if (testigo.expired())
        return nullptr;
    const auto campos = nucleo_.campos;
    for (CampoEdicion* campo : campos)
        campo->CrearVentana();
    ::SetWindowPos(ventana, HWND_TOP, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    return testigo.expired() ? nullptr : nucleo_.ventana;
}

void VentanaSuperficie::Mover(const RECT& lugar, const RECT* recorte) {
    const auto testigo = nucleo_.Testigo();
    silueta_.PonRecorte(lugar, recorte);
    // What is copied along with a window shows up before its region is in the new place.
    const UINT copia = silueta_.Recortada() ? SWP_NOCOPYBITS : 0;
    ::SetWindowPos(nucleo_.ventana, nullptr, lugar.left, lugar.top, lugar.right - lugar.left,
                   lugar.bottom - lugar.top, SWP_NOZORDER | SWP_NOACTIVATE | copia);
    if (!testigo.expired())
        silueta_.Ajustar(); // also where only the clip is another
}

void VentanaSuperficie::Destruir() {
    if (nucleo_.ventana)
        ::DestroyWindow(nucleo_.ventana);
}

HWND VentanaSuperficie::DeFoco() const {
    for (const CampoEdicion* campo : nucleo_.campos)
        if (campo->ventana() && campo->Habilitado())
            return campo->ventana();
    return nucleo_.ventana;
}

LRESULT CALLBACK VentanaSuperficie::Procedimiento(HWND ventana, UINT mensaje, WPARAM w,
                                                  LPARAM l) noexcept {
    if (mensaje == WM_NCCREATE) {
        const auto* creacion = reinterpret_cast<const CREATESTRUCTW*>(l);
        ::SetWindowLongPtrW(ventana, GWLP_USERDATA,
                            reinterpret_cast<LONG_PTR>(creacion->lpCreateParams));
        static_cast<VentanaSuperficie*>(creacion->lpCreateParams)->nucleo_.ventana = ventana;
    }
    auto* yo = reinterpret_cast<VentanaSuperficie*>(::GetWindowLongPtrW(ventana, GWLP_USERDATA));
    return yo ? yo->Recibir(ventana, mensaje, w, l) : ::DefWindowProcW(ventana, mensaje, w, l);
}

LRESULT VentanaSuperficie::Recibir(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) noexcept {
    // Whoever sends these does not have to mean them: from here on the window is nobody's.
    const bool final = mensaje == WM_DESTROY || mensaje == WM_NCDESTROY;
    if (final)
        ::SetWindowLongPtrW(ventana, GWLP_USERDATA, 0);
    if (nucleo_.cerrando) { // the object may be half gone: nobody may be told anything
        if (final)
            Perdida();
        return ::DefWindowProcW(ventana, mensaje, w, l);
    }
    SitioControl& sitio = nucleo_.sitio;
    const Sosten sosten(sitio);
    const auto testigo = nucleo_.Testigo();
    LRESULT resultado = 0;
    FiltroDeMarco filtro(sitio.MarcoSimple(), ventana, mensaje, w, l);
    if (filtro.Antes(resultado))
        return resultado;
    bool terminado = false;
    if (!testigo.expired())
        Proteger(sitio, [&] { terminado = sitio.Mensaje(ventana, mensaje, w, l, &resultado); });
    if (!terminado && !testigo.expired())
        Proteger(sitio, [&] { terminado = Procesar(mensaje, w, l, resultado); });
    if (!terminado)
        resultado = ::DefWindowProcW(ventana, mensaje, w, l);
    filtro.Despues(resultado);
    return resultado;
}

bool VentanaSuperficie::Procesar(UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado) {
    resultado = 0;
    if (EsDeEntrada(mensaje))
        return !nucleo_.sitio.EntradaCongelada() && ProcesarEntrada(mensaje, w, l, resultado);
    switch (mensaje) {
    case WM_ERASEBKGND:
        resultado = 1; // painting covers everything
        return true;
    case WM_PAINT:
        Pintar();
        return true;
    case WM_NCPAINT:
        RepintarHijas();
        return false;
    case WM_PRINT:
    case WM_PRINTCLIENT:
        ImprimirVentana(nucleo_, superficie_, reinterpret_cast<HDC>(w), l, mensaje == WM_PRINT);
        return true;
    case WM_SIZE:
        CambioDeTamano({LOWORD(l), HIWORD(l)});
        return true;
    case WM_MOVE: // there is something else behind it now
        if (superficie_.Transparente())
            ::InvalidateRect(nucleo_.ventana, nullptr, FALSE);
        return false;
    case WM_WINDOWPOSCHANGED:
        CambioDeLugar(*reinterpret_cast<const WINDOWPOS*>(l));
        return false;
    case WM_ENABLE:
        silueta_.SeguirVelo();
        return false;
    case WM_PARENTNOTIFY:
        if (LOWORD(w) != WM_CREATE && LOWORD(w) != WM_DESTROY)
            return false;
        [[fallthrough]];
    case CambioEncima:
        if (superficie_.Transparente()) {
            silueta_.Envejecer();
            ::InvalidateRect(nucleo_.ventana, nullptr, FALSE);
        }
        return mensaje == CambioEncima;
    case WM_SETFOCUS:
        FocoRecibido();
        return true;
    case WM_KILLFOCUS:
        FocoSale(nucleo_, reinterpret_cast<HWND>(w));
        return true;
    case WM_CAPTURECHANGED:
        if (reinterpret_cast<HWND>(l) != nucleo_.ventana)
            raton_.CapturaPerdida();
        return true;
    case WM_MOUSELEAVE:
        TemporizadorWindows::RatonSale(nucleo_);
        return false;
    case WM_SYSCOLORCHANGE:
        nucleo_.VistaCambiada();
        return false;
    case WM_COMMAND:
        if (CampoEdicion* campo = CampoDe(reinterpret_cast<HWND>(l)))
            campo->Orden(HIWORD(w));
        return true;
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
        if (CampoEdicion* campo = CampoDe(reinterpret_cast<HWND>(l)))
            resultado = reinterpret_cast<LRESULT>(campo->Colorear(reinterpret_cast<HDC>(w)));
        return resultado != 0;
    case WM_NEXTDLGCTL: // an edit field thinks that its parent is a dialog
        if (LOWORD(l) == FALSE)
            nucleo_.sitio.MoverFoco(w != 0);
        return true;
    case WM_CLOSE: // the same, for Escape: the window is the container's to close
        return true;
    case WM_DESTROY:
    case WM_NCDESTROY: // without the other
        Perdida();
        return mensaje == WM_DESTROY;
    default:
        return false;
    }
}

bool VentanaSuperficie::ProcesarEntrada(UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado) {
    switch (mensaje) {
    case WM_MOUSEACTIVATE:
        resultado = MA_ACTIVATE;
        return true;
    case WM_SETCURSOR:
        resultado = PonPuntero(l);
        return resultado != 0;
    case WM_GETDLGCODE:
        resultado = CodigoDeDialogo(l);
        return true;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_KEYUP:
    case WM_SYSKEYUP:
    case WM_CHAR:
        return Tecla(mensaje, w);
    case WM_MOUSEMOVE:
        TemporizadorWindows::RatonEncima(nucleo_, Velo::BajoElRaton(nucleo_.ventana));
        [[fallthrough]];
    default:
        globos_.Mensaje(mensaje, w, l);
        return raton_.Mensaje(mensaje, w, l);
    }
}

// The surface has no action of its own for a key, but system keys go on to the platform unless
// the control dropped them.
bool VentanaSuperficie::Tecla(UINT mensaje, WPARAM w) {
    if (!nucleo_.campos.empty() && EsTabulador(mensaje, w)) {
        if (mensaje == WM_KEYDOWN)
            nucleo_.sitio.MoverFoco(::GetKeyState(VK_SHIFT) < 0);
        return true;
    }
    auto codigo = static_cast<std::int16_t>(w);
    const std::int16_t shift = ShiftActual();
    nucleo_.Notificar([&](ControlUsuario& control) {
        if (mensaje == WM_CHAR)
            control.KeyPress(codigo);
        else if (mensaje == WM_KEYDOWN || mensaje == WM_SYSKEYDOWN)
            control.KeyDown(codigo, shift);
        else
            control.KeyUp(codigo, shift);
    });
    return codigo == 0 || (mensaje != WM_SYSKEYDOWN && mensaje != WM_SYSKEYUP);
}

bool VentanaSuperficie::PonPuntero(LPARAM l) {
    if (LOWORD(l) != HTCLIENT)
        return false;
    const HCURSOR puntero = PunteroDe(superficie_.MousePointer(), superficie_.MouseIcon());
    if (puntero)
        ::SetCursor(puntero);
    return puntero != nullptr;
}

void VentanaSuperficie::CambioDeTamano(SIZE tamano) {
    const SIZE anterior = superficie_.Tamano();
    if (anterior.cx == tamano.cx && anterior.cy == tamano.cy)
        return;
    superficie_.PonTamano(tamano);
    nucleo_.Notificar([](ControlUsuario& control) { control.Resize(); });
}

void VentanaSuperficie::CambioDeLugar(const WINDOWPOS& cambio) {
    constexpr UINT Quieta = SWP_NOMOVE | SWP_NOSIZE;
    constexpr UINT Vista = SWP_SHOWWINDOW | SWP_HIDEWINDOW;
    const auto testigo = nucleo_.Testigo();
    const HWND ventana = nucleo_.ventana;
    if ((cambio.flags & Quieta) != Quieta)
        silueta_.Ajustar();
    if (testigo.expired() || nucleo_.ventana != ventana)
        return;
    if ((cambio.flags & (Quieta | SWP_NOZORDER)) != (Quieta | SWP_NOZORDER) || cambio.flags & Vista)
        silueta_.SeguirVelo();
    if ((cambio.flags & Quieta) != Quieta || cambio.flags & Vista)
        AvisarAQuienSostiene(ventana);
}

// Nothing behind a transparent surface is copied to the screen, except under what lets it through.
void VentanaSuperficie::Pintar() {
    const auto testigo = nucleo_.Testigo();
    silueta_.AntesDePintar();
    if (testigo.expired() || !nucleo_.ventana)
        return;
    const bool hay = PintarVentana(nucleo_, superficie_, silueta_);
    if (testigo.expired())
        return;
    silueta_.DespuesDePintar();
    if (hay && !testigo.expired())
        nucleo_.Notificar([](ControlUsuario& control) { control.Paint(); });
}

// The frame is painted anew when somebody else painted over the window. A container that does not
// clip its children has then painted over what stands in the window as well, and nobody tells that.
void VentanaSuperficie::RepintarHijas() {
    const HWND padre = ::GetAncestor(nucleo_.ventana, GA_PARENT);
    if (::GetWindowLongW(padre, GWL_STYLE) & WS_CLIPCHILDREN)
        return;
    for (HWND hija = ::GetWindow(nucleo_.ventana, GW_CHILD); hija;
         hija = ::GetWindow(hija, GW_HWNDNEXT))
        ::RedrawWindow(hija, nullptr, nullptr,
                       RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void VentanaSuperficie::FocoRecibido() {
    if (!FocoEntra(nucleo_) || nucleo_.sitio.EntradaCongelada())
        return;
    // The control may have passed the focus on already.
    const HWND querida = DeFoco();
    if (querida && querida != nucleo_.ventana && ::GetFocus() == nucleo_.ventana)
        ::SetFocus(querida);
}

CampoEdicion* VentanaSuperficie::CampoDe(HWND ventana) const {
    for (CampoEdicion* campo : nucleo_.campos)
        if (ventana && campo->ventana() == ventana)
            return campo;
    return nullptr;
}

void VentanaSuperficie::Perdida() {
    for (CampoEdicion* campo : nucleo_.campos)
        campo->SoltarVentana();
    globos_.Soltar();
    silueta_.Soltar();
    raton_.CapturaPerdida();
    nucleo_.ventana = nullptr;
    nucleo_.VistaDibujada();
    if (!nucleo_.cerrando)
        FocoSale(nucleo_, nullptr);
}

} // namespace pincela::windows
