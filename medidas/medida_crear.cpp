// Life of 500 buttons on a form against that of as many owner-drawn buttons of the platform.
//
// Both forms are visible and stand there before and after. On both sides the buttons are created,
// painted once and destroyed one by one; both show a face with a raised border and no caption, as a
// new button does.
#include "medidas/medida.h"

#include "anfitrion/formulario.h"

namespace medidas {

namespace {

using namespace anfitrion;

constexpr int Cuantos = 500, PorFila = 20, Ancho = 48, Alto = 20;

OpcionesFormulario Forma() {
    OpcionesFormulario opciones;
    opciones.ancho = PorFila * Ancho;
    opciones.alto = Cuantos / PorFila * Alto;
    return opciones;
}

RECT Lugar(int i) {
    const int x = i % PorFila * Ancho, y = i / PorFila * Alto;
    return {x, y, x + Ancho, y + Alto};
}

void PintarTodo(HWND forma) {
    RedrawWindow(forma, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void VidaDeControles(Formulario& forma, const Componente& componente, REFCLSID clase) {
    for (int i = 0; i < Cuantos; ++i)
        forma.Agregar(componente, clase, L"boton", Lugar(i));
    PintarTodo(forma.Ventana());
    while (!forma.Controles().empty())
        forma.Quitar(*forma.Controles().back());
}

bool DibujarElemento(UINT mensaje, WPARAM, LPARAM l, LRESULT& resultado) {
    if (mensaje != WM_DRAWITEM)
        return false;
    const auto& pedido = *reinterpret_cast<const DRAWITEMSTRUCT*>(l);
    RECT lugar = pedido.rcItem;
    FillRect(pedido.hDC, &lugar, GetSysColorBrush(COLOR_BTNFACE));
    DrawEdge(pedido.hDC, &lugar, BDR_RAISEDINNER, BF_RECT);
    resultado = TRUE;
    return true;
}

void VidaDePropios(HWND forma) {
    HWND botones[Cuantos];
    for (int i = 0; i < Cuantos; ++i) {
        const RECT r = Lugar(i);
        botones[i] =
            CreateWindowExW(0, L"BUTTON", nullptr, WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, r.left,
                            r.top, Ancho, Alto, forma, nullptr, GetModuleHandleW(nullptr), nullptr);
    }
    PintarTodo(forma);
    for (int i = Cuantos; i-- > 0;)
        DestroyWindow(botones[i]);
}

} // namespace

bool MedirCrear() {
    const auto componente = AbrirComponente();
    const CLSID clase = componente.Clase(L"Pincela.Botonazo");
    Formulario deControles(Forma()), dePropios(Forma());
    dePropios.alRecibir = DibujarElemento;
    const double razon = Razon({[&] { VidaDeControles(deControles, componente, clase); }},
                               {[&] { VidaDePropios(dePropios.Ventana()); }}, 1, 31);
    return Informar("crear", razon, 2.5);
}

} // namespace medidas
