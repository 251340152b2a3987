#include "galeria/marco.h"

#include "galeria/escala.h"
#include "galeria/lamina.h"

#include <commctrl.h>

namespace galeria {

using namespace anfitrion;

namespace {

OpcionesFormulario OpcionesDelMarco() {
    OpcionesFormulario opciones;
    opciones.titulo = L"Galería de Pincela";
    opciones.ancho = Escala(AnchoPagina);
    opciones.alto = Escala(AltoPagina);
    opciones.redimensionable = false;
    opciones.visible = false;
    return opciones;
}

} // namespace

Marco::Marco()
    : forma_(OpcionesDelMarco()),
      pestanas_(CreateWindowExW(0, WC_TABCONTROLW, L"", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, 0,
                                0, Escala(AnchoPagina), 0, forma_.Ventana(), nullptr, nullptr,
                                nullptr)),
      disenar_(CreateWindowExW(0, L"BUTTON", L"Llevar al diseñador",
                               WS_CHILD | WS_CLIPSIBLINGS | BS_PUSHBUTTON, 0, 0, 0, 0,
                               forma_.Ventana(), nullptr, nullptr, nullptr)),
      fuente_(CrearFuenteGdi(9, FW_NORMAL).release(), &DeleteObject) {
    for (const HWND ventana : {pestanas_, disenar_})
        SendMessageW(ventana, WM_SETFONT, reinterpret_cast<WPARAM>(fuente_.get()), TRUE);
    forma_.alOrdenar = [this](int, HWND ventana) {
        if (ventana == disenar_ && alDisenar)
            alDisenar(Visible().ParaDisenar());
    };
    forma_.alRecibir = [this](UINT mensaje, WPARAM, LPARAM l, LRESULT&) {
        return Recibir(mensaje, l);
    };
}

bool Marco::Recibir(UINT mensaje, LPARAM l) {
    if (mensaje == WM_NOTIFY && reinterpret_cast<const NMHDR*>(l)->code == TCN_SELCHANGE) {
        Mostrar(static_cast<std::size_t>(SendMessageW(pestanas_, TCM_GETCURSEL, 0, 0)));
        return true;
    }
    if (mensaje != WM_SETFOCUS || paginas_.empty())
        return false;
    SetFocus(Visible().Forma().Ventana());
    return true;
}

void Marco::Agregar(const wchar_t* titulo, std::unique_ptr<Pagina> pagina) {
    TCITEMW pestana{};
    pestana.mask = TCIF_TEXT;
    pestana.pszText = const_cast<wchar_t*>(titulo);
    SendMessageW(pestanas_, TCM_INSERTITEMW, paginas_.size(), reinterpret_cast<LPARAM>(&pestana));
    // As high as the tabs are, without the frame that the platform draws below them.
    RECT lugar{};
    SendMessageW(pestanas_, TCM_GETITEMRECT, paginas_.size(), reinterpret_cast<LPARAM>(&lugar));
    const int alto = static_cast<int>(lugar.bottom);
    SetWindowPos(pestanas_, nullptr, 0, 0, Escala(AnchoPagina), alto, SWP_NOMOVE | SWP_NOZORDER);
    SetWindowPos(disenar_, HWND_TOP, Escala(AnchoPagina - 154), 0, Escala(150), alto,
                 SWP_NOACTIVATE);
    SetWindowPos(pagina->Forma().Ventana(), nullptr, 0, alto, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    RECT marco{0, 0, Escala(AnchoPagina), alto + Escala(AltoPagina)};
    AdjustWindowRectEx(&marco, static_cast<DWORD>(GetWindowLongW(Ventana(), GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongW(Ventana(), GWL_EXSTYLE)));
    SetWindowPos(Ventana(), nullptr, 0, 0, Ancho(marco), Alto(marco),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    pagina->Armar();
    paginas_.push_back(std::move(pagina));
}

void Marco::Mostrar(std::size_t cual) {
    if (cual >= paginas_.size())
        return;
    visible_ = cual;
    SendMessageW(pestanas_, TCM_SETCURSEL, cual, 0);
    for (std::size_t i = 0; i < paginas_.size(); ++i)
        ShowWindow(paginas_[i]->Forma().Ventana(), i == cual ? SW_SHOW : SW_HIDE);
    ShowWindow(forma_.Ventana(), SW_SHOWNORMAL);
    UpdateWindow(forma_.Ventana());
    forma_.BombearMensajes();
    Visible().Abrir();
    ShowWindow(disenar_, Visible().ParaDisenar().empty() ? SW_HIDE : SW_SHOWNA);
    SetFocus(Visible().Forma().Ventana());
}

} // namespace galeria
