#include "galeria/disenador/barra.h"

#include "galeria/trazos.h"

#include <algorithm>

namespace galeria {

namespace {

constexpr COLORREF LetraInutil = RGB(156, 163, 175);
constexpr int Hueco = 4, HuecoGrande = 14;

/// Scaled to the screen, with its upper left pixel's colour left out. Answers the width.
int PintarImagen(HDC hdc, HBITMAP imagen, int x, const RECT& r) {
    BITMAP mapa{};
    GetObjectW(imagen, sizeof mapa, &mapa);
    const int ancho = Escala(static_cast<int>(mapa.bmWidth));
    const int alto = Escala(static_cast<int>(mapa.bmHeight));
    const HDC origen = CreateCompatibleDC(hdc);
    const HGDIOBJ anterior = SelectObject(origen, imagen);
    TransparentBlt(hdc, x, (static_cast<int>(r.top + r.bottom) - alto) / 2, ancho, alto, origen, 0,
                   0, mapa.bmWidth, mapa.bmHeight, GetPixel(origen, 0, 0));
    SelectObject(origen, anterior);
    DeleteDC(origen);
    return ancho;
}

} // namespace

HWND Barra::Agregar(const std::wstring& texto, int ancho, HBITMAP imagen,
                    std::function<void()> alPulsar, std::function<void()> alRepetir) {
    const HWND ventana = CreateWindowExW(0, L"BUTTON", texto.c_str(),
                                         WS_CHILD | WS_VISIBLE | BS_OWNERDRAW | BS_NOTIFY, 0, 0, 0,
                                         0, padre_, nullptr, GetModuleHandleW(nullptr), nullptr);
    SendMessageW(ventana, WM_SETFONT, reinterpret_cast<WPARAM>(fuente_), FALSE);
    const int antes = botones_.empty() ? 0 : separacion_ ? HuecoGrande : Hueco;
    botones_.push_back({ventana, ancho, antes, {}, std::move(alPulsar), std::move(alRepetir)});
    botones_.back().imagen.reset(imagen);
    separacion_ = 0;
    return ventana;
}

void Barra::Separar() {
    separacion_ = 1;
}

void Barra::Colocar(int x, int y, int alto) const {
    for (const Boton& boton : botones_) {
        x += Escala(boton.antes);
        SetWindowPos(boton.ventana, nullptr, x, y, Escala(boton.ancho), alto,
                     SWP_NOZORDER | SWP_NOACTIVATE);
        x += Escala(boton.ancho);
    }
}

const std::vector<HWND> Barra::Ventanas() const {
    std::vector<HWND> ventanas;
    for (const Boton& boton : botones_)
        ventanas.push_back(boton.ventana);
    return ventanas;
}

void Barra::Rotular(HWND boton, const std::wstring& texto) const {
    SetWindowTextW(boton, texto.c_str());
    InvalidateRect(boton, nullptr, FALSE);
}

void Barra::Marcar(HWND ventana, bool marcado) {
    Boton* boton = De(ventana);
    if (!boton || boton->marcado == marcado)
        return;
    boton->marcado = marcado;
    InvalidateRect(ventana, nullptr, FALSE);
}

Barra::Boton* Barra::De(HWND ventana) {
    const auto suyo = std::find_if(botones_.begin(), botones_.end(),
                                   [&](const Boton& uno) { return uno.ventana == ventana; });
    return suyo == botones_.end() ? nullptr : &*suyo;
}

bool Barra::Recibir(UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado) {
    if (mensaje == WM_DRAWITEM) {
        const auto& pedido = *reinterpret_cast<const DRAWITEMSTRUCT*>(l);
        const Boton* boton = De(pedido.hwndItem);
        if (boton)
            Pintar(pedido, *boton);
        resultado = boton != nullptr;
        return boton;
    }
    Boton* boton = mensaje == WM_COMMAND ? De(reinterpret_cast<HWND>(l)) : nullptr;
    if (!boton)
        return false;
    // Copies: what is called may put the buttons in another order.
    const auto manejador = HIWORD(w) == BN_CLICKED  ? boton->alPulsar
                           : HIWORD(w) == BN_DBLCLK ? boton->alRepetir
                                                    : std::function<void()>();
    if (HIWORD(w) == BN_SETFOCUS || HIWORD(w) == BN_KILLFOCUS)
        InvalidateRect(boton->ventana, nullptr, FALSE);
    if (manejador)
        manejador();
    return true;
}

void Barra::Pintar(const DRAWITEMSTRUCT& pedido, const Boton& boton) const {
    const HDC hdc = pedido.hDC;
    RECT r = pedido.rcItem;
    const int grueso = Grueso();
    const bool apretado = boton.marcado || pedido.itemState & ODS_SELECTED;
    const bool vale = !(pedido.itemState & ODS_DISABLED);
    const bool foco = pedido.itemState & ODS_FOCUS;
    Enmarcar(hdc, r, apretado || foco ? ColorAcento : ColorBorde,
             apretado ? ColorElegido
             : vale   ? ColorTarjeta
                      : ColorLamina,
             foco ? 2 * grueso : grueso);
    wchar_t texto[80];
    const int largo = GetWindowTextW(boton.ventana, texto, 80);
    const HGDIOBJ anterior = SelectObject(hdc, fuente_);
    SetBkMode(hdc, TRANSPARENT);
    SetTextColor(hdc, vale ? ColorLetra : LetraInutil);
    UINT formato = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_CENTER;
    if (boton.imagen) {
        r.left += Escala(7);
        r.left += PintarImagen(hdc, boton.imagen.get(), static_cast<int>(r.left), r) + Escala(5);
        formato = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX;
    }
    DrawTextW(hdc, texto, largo, &r, formato);
    SelectObject(hdc, anterior);
}

} // namespace galeria
