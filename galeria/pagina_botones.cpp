#include "galeria/pagina_botones.h"

#include "galeria/escala.h"

namespace galeria {

void PaginaBotones::Ensayar() {
    if (const auto boton = Forma().Control(L"Relleno2")) {
        const HWND ventana = boton->Ventana();
        const LPARAM punto = MAKELPARAM(Escala(20), Escala(10));
        SendMessageW(ventana, WM_MOUSEMOVE, 0, punto);
        SendMessageW(ventana, WM_LBUTTONDOWN, MK_LBUTTON, punto);
        SendMessageW(ventana, WM_LBUTTONUP, 0, punto);
        Forma().Esperar(100);
    }
    MSG mensaje{};
    mensaje.hwnd = Forma().Ventana();
    mensaje.message = WM_SYSCHAR;
    mensaje.wParam = L'g';
    mensaje.lParam = 0x20000000; // ALT is down
    Forma().Pretraducir(mensaje);
}

} // namespace galeria
