// Widgets that are drawn here: colour buttons, their rows and picture boxes.
#include "plataforma/windows/accesibilidad.h"
#include "plataforma/windows/colores.h"
#include "plataforma/windows/elementos_pagina_windows.h"
#include "plataforma/windows/modulo.h"

#include <algorithm>

namespace pincela::windows {

namespace {

/// What a disabled button leaves of its colour: half of it, in the colour of the page.
COLORREF Apagado(COLORREF color) {
    const COLORREF fondo = ::GetSysColor(COLOR_BTNFACE);
    return RGB((GetRValue(color) + GetRValue(fondo)) / 2, (GetGValue(color) + GetGValue(fondo)) / 2,
               (GetBValue(color) + GetBValue(fondo)) / 2);
}

RECT LugarEnPadre(HWND ventana) {
    RECT r{};
    ::GetWindowRect(ventana, &r);
    ::MapWindowPoints(nullptr, ::GetParent(ventana), reinterpret_cast<POINT*>(&r), 2);
    return r;
}

} // namespace

// Colour button

void BotonColorWindows::PonBackColor(Color color) {
    color_ = color;
    if (ventana_)
        ::InvalidateRect(ventana_, nullptr, FALSE);
}

void BotonColorWindows::Move(std::int32_t izquierda, std::int32_t ancho) {
    izquierda_ = izquierda;
    ancho_ = ancho;
}

void BotonColorWindows::Mandato(WORD codigo) {
    if (codigo == BN_CLICKED)
        Click();
}

void BotonColorWindows::Pintar(const DRAWITEMSTRUCT& dibujo) {
    RECT r = dibujo.rcItem;
    const bool apagado = dibujo.itemState & ODS_DISABLED;
    const UINT estado = dibujo.itemState & ODS_SELECTED ? DFCS_PUSHED : 0u;
    ::DrawFrameControl(dibujo.hDC, &r, DFC_BUTTON, DFCS_BUTTONPUSH | estado);
    // A narrow button has no room for more than its colour.
    const int margen = r.right - r.left < 16 ? 2 : 4;
    ::InflateRect(&r, -margen, -4);
    const COLORREF color = Resolver(color_);
    Llenar(dibujo.hDC, r,
           apagado ? Apagado(::GetSysColor(COLOR_BTNSHADOW)) : ::GetSysColor(COLOR_BTNSHADOW));
    ::InflateRect(&r, -1, -1);
    Llenar(dibujo.hDC, r, apagado ? Apagado(color) : color);
    if (dibujo.itemState & ODS_FOCUS && !(dibujo.itemState & ODS_NOFOCUSRECT)) {
        r = dibujo.rcItem;
        ::InflateRect(&r, -2, -2);
        ::SetTextColor(dibujo.hDC, ::GetSysColor(COLOR_BTNTEXT));
        ::SetBkColor(dibujo.hDC, ::GetSysColor(COLOR_BTNFACE));
        ::DrawFocusRect(dibujo.hDC, &r);
    }
}

// Colour stop

TopeWindows::TopeWindows(Avisador& avisador, FilaDeTopesWindows& fila, WORD numero)
    : BotonColorWindows(avisador, nullptr, numero), fila_(fila) {
    visible_ = false;
}

TopeWindows::~TopeWindows() {
    const HWND ventana = ventana_;
    Soltar();
    fila_.Olvidar(this);
    if (ventana)
        ::DestroyWindow(ventana);
}

void TopeWindows::Crear() {
    const HWND marco = fila_.Ventana();
    if (!marco || ventana_)
        return;
    const HWND ventana = ::CreateWindowExW(
        0, L"BUTTON", nullptr, WS_CHILD | WS_TABSTOP | BS_OWNERDRAW, 0, 0, 0, 0, ::GetParent(marco),
        reinterpret_cast<HMENU>(UINT_PTR{numero_}), ModuloPropio(), nullptr);
    if (!ventana)
        return;
    // The tab key follows the order of the windows.
    ::SetWindowPos(ventana, fila_.UltimaVentana(this), 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    NombrarVentana(ventana, u"Color");
    Atar(ventana);
    Ubicar();
}

void TopeWindows::Move(std::int32_t izquierda, std::int32_t ancho) {
    BotonColorWindows::Move(izquierda, ancho);
    Ubicar();
}

// Both ends are placed by the same rule, so neighbours touch whatever the rounding.
void TopeWindows::Ubicar() {
    if (!ventana_)
        return;
    const RECT interior = fila_.Interior();
    const auto x = [&](std::int32_t twips) {
        return interior.left + ::MulDiv(twips, interior.right - interior.left, fila_.Width());
    };
    const int izquierda = x(izquierda_);
    ::SetWindowPos(ventana_, nullptr, izquierda, interior.top, x(izquierda_ + ancho_) - izquierda,
                   interior.bottom - interior.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

// Row of stops

std::unique_ptr<BotonColor> FilaDeTopesWindows::CrearBotonColor() {
    // Numbers of stops that are gone are taken again.
    WORD numero = PrimerTope(numero_);
    while (Tope(numero))
        ++numero;
    auto tope = std::make_unique<TopeWindows>(avisador_, *this, numero);
    topes_.push_back(tope.get());
    tope->PonMarco(this);
    tope->Crear();
    return tope;
}

// A frame takes no focus.
HWND FilaDeTopesWindows::VentanaDeFoco() const {
    return topes_.empty() ? nullptr : topes_.front()->Ventana();
}

TopeWindows* FilaDeTopesWindows::Tope(WORD numero) const {
    const auto hallado = std::find_if(topes_.begin(), topes_.end(), [&](const TopeWindows* tope) {
        return tope->Numero() == numero;
    });
    return hallado == topes_.end() ? nullptr : *hallado;
}

RECT FilaDeTopesWindows::Interior() const {
    RECT r = LugarEnPadre(ventana_);
    // The line of a frame runs through half the height of its title.
    RECT unidad{0, 0, 4, 4};
    ::MapDialogRect(::GetParent(ventana_), &unidad);
    r.top += unidad.bottom * 2;
    r.bottom -= unidad.bottom;
    return r;
}

HWND FilaDeTopesWindows::UltimaVentana(const TopeWindows* antesDe) const {
    HWND ultima = ventana_;
    for (const TopeWindows* tope : topes_) {
        if (tope == antesDe)
            break;
        if (tope->Ventana())
            ultima = tope->Ventana();
    }
    return ultima;
}

void FilaDeTopesWindows::Volcar() {
    for (TopeWindows* tope : topes_)
        tope->Crear();
}

void FilaDeTopesWindows::Soltada() {
    for (TopeWindows* tope : topes_)
        tope->Soltar();
}

void FilaDeTopesWindows::Olvidar(TopeWindows* tope) {
    std::erase(topes_, tope);
    OlvidarContenido(tope);
}

// Picture box

CuadroWindows::CuadroWindows(Avisador& avisador, const Pieza* pieza, WORD numero)
    : ElementoWindows(avisador, pieza, numero) {
    // Until there is a window: the size it will have at 96 dots per inch.
    lienzo_.PonTamano({::MulDiv(pieza->ancho, 3, 2), ::MulDiv(pieza->alto, 13, 8)});
    if (pieza->clase == ClasePieza::CuadroLibre)
        PonBackColor(Color(std::uint32_t{0x80000000u + COLOR_HIGHLIGHT}));
}

void CuadroWindows::PonBackColor(Color color) {
    lienzo_.fondo = color;
    lienzo_.Cls();
    Refresh();
}

void CuadroWindows::Volcar() {
    RECT r{};
    ::GetClientRect(ventana_, &r);
    lienzo_.PonTamano({r.right, r.bottom});
}

void CuadroWindows::Refresh() {
    if (!ventana_)
        return;
    ::InvalidateRect(ventana_, nullptr, FALSE);
    ::UpdateWindow(ventana_);
}

void CuadroWindows::Pintar(const DRAWITEMSTRUCT& dibujo) {
    const SIZE tamano = lienzo_.Tamano();
    if (const HDC imagen = lienzo_.imagen().Dc())
        ::BitBlt(dibujo.hDC, 0, 0, tamano.cx, tamano.cy, imagen, 0, 0, SRCCOPY);
}

} // namespace pincela::windows
