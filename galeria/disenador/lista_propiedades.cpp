#include "galeria/disenador/lista_propiedades.h"

#include "anfitrion/unidades.h"
#include "galeria/trazos.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>

namespace galeria {

using namespace anfitrion;

namespace {

constexpr COLORREF Linea = RGB(229, 231, 235);

void Escribir(HDC hdc, const std::wstring& texto, RECT r, COLORREF color) {
    SetTextColor(hdc, color);
    SetBkMode(hdc, TRANSPARENT);
    DrawTextW(hdc, texto.c_str(), static_cast<int>(texto.size()), &r,
              DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

bool ConBoton(const Renglon& renglon) {
    return !renglon.propiedad.SoloLectura() &&
           (ConOpciones(renglon.propiedad) || ConDialogo(renglon.propiedad));
}

void PintarBoton(HDC hdc, const RECT& r, bool flecha) {
    const int cx = (r.left + r.right) / 2, cy = (r.top + r.bottom) / 2, u = Grueso();
    if (flecha) {
        for (int i = 0; i < 4 * u; ++i)
            Llenar(hdc, {cx - 4 * u + i, cy - 2 * u + i, cx + 4 * u - i + 1, cy - 2 * u + i + 1},
                   ColorLetra);
        return;
    }
    for (const int x : {cx - 5 * u, cx - u, cx + 3 * u})
        Llenar(hdc, {x, cy + u, x + 2 * u, cy + 3 * u}, ColorLetra);
}

/// Where names end and values begin.
int Medianera(const RECT& fila) {
    return static_cast<int>(fila.left + Ancho(fila) / 2);
}

} // namespace

ListaPropiedades::ListaPropiedades(HWND padre, HFONT fuente, HojaPropiedades& hoja,
                                   Dialogos& dialogos)
    : lista_(CreateWindowExW(0, L"LISTBOX", L"Propiedades",
                             WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_CLIPCHILDREN | LBS_NOTIFY |
                                 LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS,
                             0, 0, 0, 0, padre, nullptr, GetModuleHandleW(nullptr), nullptr)),
      fuente_(fuente), hoja_(hoja), dialogos_(dialogos) {
    SendMessageW(lista_, WM_SETFONT, reinterpret_cast<WPARAM>(fuente), FALSE);
    SendMessageW(lista_, LB_SETITEMHEIGHT, 0, Escala(22));
    SetWindowSubclass(lista_, ProcesarLista, 2, reinterpret_cast<DWORD_PTR>(this));
}

ListaPropiedades::~ListaPropiedades() {
    alElegir = nullptr;
    Cerrar();
    RemoveWindowSubclass(lista_, ProcesarLista, 2);
}

void ListaPropiedades::Colocar(const RECT& lugar) const {
    SetWindowPos(lista_, nullptr, lugar.left, lugar.top, Ancho(lugar), Alto(lugar),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

const Renglon* ListaPropiedades::Elegido() const {
    const auto lugar = static_cast<std::size_t>(SendMessageW(lista_, LB_GETCURSEL, 0, 0));
    return lugar < hoja_.Renglones().size() ? &hoja_.Renglones()[lugar] : nullptr;
}

void ListaPropiedades::Leer() {
    const Renglon* elegido = Elegido();
    const std::wstring nombre = elegido ? elegido->propiedad.nombre : L"";
    const auto arriba = SendMessageW(lista_, LB_GETTOPINDEX, 0, 0);
    if (!aceptando_)
        Cerrar();
    hoja_.Leer();
    SendMessageW(lista_, WM_SETREDRAW, FALSE, 0);
    SendMessageW(lista_, LB_RESETCONTENT, 0, 0);
    for (const Renglon& renglon : hoja_.Renglones()) {
        // Read aloud by whoever can't see the columns.
        const std::wstring linea = renglon.propiedad.nombre + L": " + renglon.valor;
        SendMessageW(lista_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(linea.c_str()));
    }
    const std::size_t lugar = hoja_.Lugar(nombre);
    SendMessageW(lista_, LB_SETTOPINDEX, static_cast<WPARAM>(arriba), 0);
    SendMessageW(lista_, LB_SETCURSEL, lugar < hoja_.Renglones().size() ? lugar : 0, 0);
    SendMessageW(lista_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(lista_, nullptr, TRUE);
    Avisar();
}

void ListaPropiedades::Avisar() const {
    if (!alElegir)
        return;
    const Renglon* elegido = Elegido();
    alElegir(elegido ? elegido->propiedad.nombre : L"", elegido ? elegido->propiedad.ayuda : L"");
}

bool ListaPropiedades::Elegir(const std::wstring& nombre) {
    const std::size_t lugar = hoja_.Lugar(nombre);
    if (lugar >= hoja_.Renglones().size())
        return false;
    Aceptar(true);
    SendMessageW(lista_, LB_SETCURSEL, lugar, 0);
    Avisar();
    return true;
}

// Painting

bool ListaPropiedades::Recibir(UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado) {
    switch (mensaje) {
    case WM_DRAWITEM:
        if (const auto& pedido = *reinterpret_cast<const DRAWITEMSTRUCT*>(l);
            pedido.hwndItem == lista_) {
            Pintar(pedido);
            resultado = TRUE;
            return true;
        }
        return false;
    case WM_COMMAND:
        if (reinterpret_cast<HWND>(l) != lista_)
            return false;
        if (HIWORD(w) == LBN_SELCHANGE)
            Avisar();
        else if (HIWORD(w) == LBN_SETFOCUS || HIWORD(w) == LBN_KILLFOCUS)
            InvalidateRect(lista_, nullptr, FALSE);
        return true;
    default:
        return false;
    }
}

void ListaPropiedades::Pintar(const DRAWITEMSTRUCT& pedido) const {
    const HDC hdc = pedido.hDC;
    RECT fila = pedido.rcItem;
    Llenar(hdc, fila, ColorTarjeta);
    if (pedido.itemID >= hoja_.Renglones().size())
        return;
    const Renglon& renglon = hoja_.Renglones()[pedido.itemID];
    const bool elegida = pedido.itemState & ODS_SELECTED;
    const HGDIOBJ anterior = SelectObject(hdc, fuente_);
    const int grueso = galeria::Grueso(), mitad = Medianera(fila);
    if (elegida)
        Llenar(hdc, fila, ColorElegido);
    if (elegida && GetFocus() == lista_)
        Llenar(hdc, {fila.left, fila.top, fila.left + 3 * grueso, fila.bottom}, ColorAcento);
    Llenar(hdc, {fila.left, fila.bottom - grueso, fila.right, fila.bottom}, Linea);
    Llenar(hdc, {mitad, fila.top, mitad + grueso, fila.bottom}, Linea);
    const COLORREF letra = renglon.propiedad.SoloLectura() ? ColorLetraFloja : ColorLetra;
    Escribir(hdc, renglon.propiedad.nombre,
             {fila.left + Escala(8), fila.top, mitad - Escala(2), fila.bottom - grueso}, letra);
    RECT valor{mitad + grueso + Escala(6), fila.top, fila.right - Escala(2), fila.bottom - grueso};
    if (elegida && ConBoton(renglon)) {
        valor.right = fila.right - AnchoDelBoton();
        PintarBoton(hdc, {valor.right, fila.top, fila.right, fila.bottom},
                    ConOpciones(renglon.propiedad));
    }
    PintarValor(hdc, valor, renglon, letra);
    SelectObject(hdc, anterior);
}

void ListaPropiedades::PintarValor(HDC hdc, RECT r, const Renglon& renglon, COLORREF letra) const {
    if (renglon.muestra) {
        COLORREF color = 0;
        OleTranslateColor(*renglon.muestra, nullptr, &color);
        Enmarcar(hdc, {r.left, r.top + Escala(5), r.left + Escala(18), r.bottom - Escala(5)},
                 ColorLetraFloja, color);
        r.left += Escala(24);
    }
    Escribir(hdc, renglon.valor, r, letra);
}

RECT ListaPropiedades::LugarDelValor() const {
    RECT fila{};
    SendMessageW(lista_, LB_GETITEMRECT,
                 static_cast<WPARAM>(SendMessageW(lista_, LB_GETCURSEL, 0, 0)),
                 reinterpret_cast<LPARAM>(&fila));
    fila.left = Medianera(fila) + Grueso();
    return fila;
}

RECT ListaPropiedades::LugarDelBoton() const {
    RECT r = LugarDelValor();
    r.left = r.right - AnchoDelBoton();
    return r;
}

// Keys and mouse

LRESULT CALLBACK ListaPropiedades::ProcesarLista(HWND ventana, UINT mensaje, WPARAM w, LPARAM l,
                                                 UINT_PTR id, DWORD_PTR este) {
    auto& lista = *reinterpret_cast<ListaPropiedades*>(este);
    if (mensaje == WM_NCDESTROY)
        RemoveWindowSubclass(ventana, ProcesarLista, id);
    else if (lista.TratarLista(mensaje, w, l))
        return 0;
    return DefSubclassProc(ventana, mensaje, w, l);
}

bool ListaPropiedades::TratarLista(UINT mensaje, WPARAM w, LPARAM l) {
    switch (mensaje) {
    case WM_KEYDOWN:
        if (w == VK_RETURN || w == VK_F2)
            Editar();
        else if (w == VK_DELETE)
            Borrar();
        else
            return false;
        return true;
    case WM_SYSKEYDOWN:
        if (w != VK_DOWN)
            return false;
        if (const Renglon* renglon = Elegido(); renglon && ConDialogo(renglon->propiedad))
            Preguntar();
        else
            Editar();
        return true;
    case WM_CHAR:
        if (w < L' ')
            return false;
        Editar();
        if (editor_)
            SendMessageW(editor_, WM_CHAR, w, l);
        return true;
    case WM_VSCROLL:
    case WM_MOUSEWHEEL:
        Aceptar(true);
        return false;
    case WM_LBUTTONDBLCLK:
        Siguiente();
        return true;
    case WM_LBUTTONUP: {
        const POINT punto{GET_X_LPARAM(l), GET_Y_LPARAM(l)};
        const Renglon* renglon = Elegido();
        const RECT valor = LugarDelValor(), boton = LugarDelBoton();
        DefSubclassProc(lista_, mensaje, w, l);
        if (renglon && PtInRect(&boton, punto) && ConDialogo(renglon->propiedad))
            Preguntar();
        else if (renglon && PtInRect(&valor, punto))
            Editar();
        return true;
    }
    case WM_COMMAND:
        if (HIWORD(w) == CBN_SELENDOK || HIWORD(w) == CBN_KILLFOCUS || HIWORD(w) == EN_KILLFOCUS)
            Aceptar(true);
        return true;
    default:
        return false;
    }
}

} // namespace galeria
