// Messages and keys of the designer's page.
#include "galeria/disenador/pagina_disenador.h"
#include "galeria/trazos.h"

namespace galeria {

using namespace anfitrion;

bool PaginaDisenador::Tratar(UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado) {
    if (ordenes_.Recibir(mensaje, w, l, resultado) ||
        herramientas_.Recibir(mensaje, w, l, resultado) ||
        (lista_ && lista_->Recibir(mensaje, w, l, resultado)))
        return true;
    switch (mensaje) {
    case WM_CTLCOLORSTATIC: {
        const HDC hdc = reinterpret_cast<HDC>(w);
        SetTextColor(hdc,
                     aviso_ && reinterpret_cast<HWND>(l) == estado_ ? ColorAviso : ColorLetraFloja);
        SetBkColor(hdc, ColorLamina);
        SetDCBrushColor(hdc, ColorLamina);
        resultado = reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
        return true;
    }
    case WM_COMMAND:
        if (reinterpret_cast<HWND>(l) != objetos_ || HIWORD(w) != CBN_SELCHANGE || !mesa_)
            return false;
        if (const auto lugar = static_cast<std::size_t>(SendMessageW(objetos_, CB_GETCURSEL, 0, 0));
            lugar == 0)
            mesa_->Forma().Seleccionar({});
        else if (lugar <= mesa_->Forma().Controles().size())
            mesa_->Forma().Seleccionar(Mesa::Controles{mesa_->Forma().Controles()[lugar - 1]});
        return true;
    case WM_SETFOCUS:
        if (!mesa_)
            return false;
        SetFocus(mesa_->Forma().Ventana());
        return true;
    default:
        return false;
    }
}

bool PaginaDisenador::Atajo(const MSG& mensaje) {
    if (mensaje.message != WM_KEYDOWN || !mesa_)
        return false;
    if (GetKeyState(VK_CONTROL) < 0)
        return AtajoConControl(mensaje.wParam);
    switch (mensaje.wParam) {
    case VK_F4:
        if (!mesa_->Ejecutando())
            SetFocus(lista_->Ventana());
        return true;
    case VK_F5:
        mesa_->Hacer(Orden::Ejecutar);
        return true;
    case VK_F6:
        OtroPanel();
        return true;
    case VK_RETURN:
        for (const HWND ventana : ordenes_.Ventanas())
            if (ventana == GetFocus()) {
                SendMessageW(ventana, BM_CLICK, 0, 0);
                return true;
            }
        for (const BotonDeClase& boton : deClase_)
            if (boton.ventana == GetFocus() && !boton.clase.empty()) {
                mesa_->Colocar(boton.clase);
                return true;
            }
        return false;
    default:
        return false;
    }
}

bool PaginaDisenador::AtajoConControl(WPARAM tecla) {
    switch (tecla) {
    case 'O':
        Abrirlo();
        return true;
    case 'S':
        Guardarlo();
        return true;
    case 'E':
        Exportarlo();
        return true;
    case 'Z':
    case 'Y':
        // In a field they are the field's own.
        if (GetFocus() != lista_->Ventana())
            return false;
        mesa_->Hacer(tecla == 'Z' ? Orden::Deshacer : Orden::Rehacer);
        return true;
    default:
        return false;
    }
}

/// From the commands to the form, to the properties, and around.
void PaginaDisenador::OtroPanel() {
    const HWND foco = GetFocus(), forma = mesa_->Forma().Ventana();
    const HWND derecha = mesa_->Ejecutando() ? diario_.Ventana() : lista_->Ventana();
    if (foco == forma || IsChild(forma, foco))
        SetFocus(derecha);
    else if (foco == derecha || IsChild(derecha, foco))
        SetFocus(ordenes_.Ventanas().front());
    else
        SetFocus(forma);
}

} // namespace galeria
