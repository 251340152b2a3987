#include "galeria/diario.h"

#include "galeria/escala.h"

namespace galeria {

Diario::Diario(HWND padre, const RECT& lugar, HFONT fuente)
    : lista_(CreateWindowExW(
          0, L"LISTBOX", L"",
          WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_NOINTEGRALHEIGHT | LBS_NOTIFY | LBS_HASSTRINGS,
          lugar.left, lugar.top, lugar.right - lugar.left, lugar.bottom - lugar.top, padre, nullptr,
          GetModuleHandleW(nullptr), nullptr)) {
    SendMessageW(lista_, WM_SETFONT, reinterpret_cast<WPARAM>(fuente), FALSE);
    SendMessageW(lista_, LB_SETITEMHEIGHT, 0, Escala(18));
}

static std::wstring Renglon(const std::wstring& control, const anfitrion::Evento& evento) {
    std::wstring texto = control + L"." + evento.nombre;
    if (evento.argumentos.empty())
        return texto;
    texto += L"(";
    for (const VARIANT* argumento : evento.argumentos) {
        if (texto.back() != L'(')
            texto += L", ";
        texto += anfitrion::Mostrar(*argumento);
    }
    return texto + L")";
}

void Diario::Anotar(const std::wstring& control, const anfitrion::Evento& evento) {
    if (!abierto)
        return;
    const std::wstring quien = control + L"." + evento.nombre;
    std::wstring texto = Renglon(control, evento);
    const LRESULT lineas = SendMessageW(lista_, LB_GETCOUNT, 0, 0);
    SendMessageW(lista_, WM_SETREDRAW, FALSE, 0);
    if (lineas > 0 && quien == ultimo_) {
        SendMessageW(lista_, LB_DELETESTRING, lineas - 1, 0);
        texto += L"  ×" + std::to_wstring(++repetido_);
    } else {
        repetido_ = 1;
        ultimo_ = quien;
        if (lineas >= Limite)
            SendMessageW(lista_, LB_DELETESTRING, 0, 0);
    }
    const LRESULT n =
        SendMessageW(lista_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(texto.c_str()));
    SendMessageW(lista_, LB_SETTOPINDEX, n, 0);
    SendMessageW(lista_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(lista_, nullptr, TRUE);
}

void Diario::Vaciar() {
    SendMessageW(lista_, LB_RESETCONTENT, 0, 0);
    ultimo_.clear();
}

} // namespace galeria
