// The mouse on the designer's table.
#include "galeria/disenador/mesa.h"

#include "galeria/escala.h"

#include <windowsx.h>

#include <algorithm>
#include <iterator>

namespace galeria {

using namespace anfitrion;
using diseno::Agarre;
using diseno::Caja;
using diseno::Gesto;
using diseno::Punto;

namespace {

constexpr struct {
    const wchar_t* texto; ///< null for a line between
    Orden orden;
} OrdenesDelMenu[] = {
    {L"Cor&tar\tCtrl+X", Orden::Cortar},
    {L"&Copiar\tCtrl+C", Orden::Copiar},
    {L"&Pegar\tCtrl+V", Orden::Pegar},
    {L"&Eliminar\tSupr", Orden::Eliminar},
    {nullptr, {}},
    {L"Traer al &frente\tCtrl+J", Orden::AlFrente},
    {L"Enviar al f&ondo\tCtrl+K", Orden::AlFondo},
    {nullptr, {}},
    {L"P&ropiedades...\tAlt+Entrar", Orden::Propiedades},
};

} // namespace

bool Mesa::Tocar(UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado) {
    const Punto punto{GET_X_LPARAM(l), GET_Y_LPARAM(l)};
    switch (mensaje) {
    case WM_LBUTTONDOWN:
        Avisar(L""); // before a field that loses the focus tells that it was refused
        SetFocus(forma_.Ventana());
        Apretar(punto, w & (MK_CONTROL | MK_SHIFT));
        return true;
    case WM_MOUSEMOVE:
        Arrastrar(punto);
        return true;
    case WM_LBUTTONUP:
        SoltarBoton();
        return true;
    case WM_LBUTTONDBLCLK:
        Hacer(Orden::Propiedades);
        return true;
    case WM_RBUTTONUP: {
        SetFocus(forma_.Ventana());
        if (const auto control = forma_.ControlEn({punto.x, punto.y});
            std::find(Seleccion().begin(), Seleccion().end(), control) == Seleccion().end())
            forma_.Seleccionar(control, false);
        POINT pantalla{punto.x, punto.y};
        ClientToScreen(forma_.Ventana(), &pantalla);
        Menu(pantalla);
        return true;
    }
    case WM_CAPTURECHANGED:
        Abandonar();
        return true;
    case WM_SETCURSOR: {
        POINT donde;
        GetCursorPos(&donde);
        ScreenToClient(forma_.Ventana(), &donde);
        PonerCursor({static_cast<int>(donde.x), static_cast<int>(donde.y)});
        resultado = TRUE;
        return true;
    }
    default:
        return false;
    }
}

Agarre Mesa::AgarreEn(Punto punto) const {
    // Several ones are moved together, and sized with the keys.
    return Seleccion().size() == 1
               ? diseno::AgarreEn(CajaDe(Seleccion().front()), punto, Adornos::Lado())
               : Agarre::Ninguno;
}

void Mesa::PonerCursor(Punto punto) const {
    const Agarre agarre = AgarreEn(punto);
    const wchar_t* cual = CursorDe(agarre);
    if (!herramienta_.empty())
        cual = IDC_CROSS;
    else if (agarre == Agarre::Ninguno && forma_.ControlEn({punto.x, punto.y}))
        cual = IDC_SIZEALL;
    SetCursor(LoadCursorW(nullptr, cual));
}

void Mesa::Apretar(Punto punto, bool sumar) {
    arrastrados_.clear();
    sumando_ = sumar;
    if (!herramienta_.empty()) {
        gesto_ = Gesto::Trazar(punto, rejilla_);
    } else if (const Agarre agarre = AgarreEn(punto); agarre != Agarre::Ninguno) {
        arrastrados_ = Seleccion();
        gesto_ =
            Gesto::Estirar(punto, CajaDe(arrastrados_.front()), agarre, rejilla_.paso, rejilla_);
    } else if (const auto control = forma_.ControlEn({punto.x, punto.y})) {
        ApretarControl(control, punto, sumar);
    } else {
        if (!sumar)
            forma_.Seleccionar({});
        gesto_ = Gesto::Abarcar(punto);
    }
    if (gesto_)
        SetCapture(forma_.Capa());
}

void Mesa::ApretarControl(const Control& control, Punto punto, bool sumar) {
    Controles elegidos = Seleccion();
    const auto suyo = std::find(elegidos.begin(), elegidos.end(), control);
    if (sumar)
        return forma_.Seleccionar(control, true);
    if (suyo == elegidos.end())
        elegidos = {control};
    else
        std::rotate(elegidos.begin(), suyo, std::next(suyo));
    forma_.Seleccionar(elegidos);
    // The one under the mouse guides, unless its panel goes with it.
    arrastrados_ = Raices(forma_, elegidos);
    if (const auto guia = std::find(arrastrados_.begin(), arrastrados_.end(), control);
        guia != arrastrados_.end())
        std::iter_swap(arrastrados_.begin(), guia);
    std::vector<Caja> cajas;
    for (const auto& uno : arrastrados_)
        cajas.push_back(CajaDe(uno));
    gesto_ = Gesto::Mover(punto, std::move(cajas), rejilla_);
}

void Mesa::Arrastrar(Punto punto) {
    if (!gesto_ || !gesto_->Seguir(punto, GetKeyState(VK_MENU) < 0))
        return;
    const std::vector<Caja> cajas = gesto_->Cajas();
    if (arrastrados_.empty())
        return adornos_.Abarcar(cajas.front());
    for (std::size_t i = 0; i < arrastrados_.size(); ++i)
        PonerCaja(arrastrados_[i], cajas[i]);
    MostrarAdornos();
    UpdateWindow(forma_.Ventana());
}

void Mesa::SoltarBoton() {
    if (!gesto_)
        return;
    const Gesto gesto = *gesto_;
    gesto_.reset();
    ReleaseCapture();
    adornos_.Abarcar({});
    Caja caja = gesto.Cajas().front();
    switch (gesto.Que()) {
    case Gesto::Clase::Trazar: {
        if (!gesto.Arrancado())
            caja = {caja.izquierda, caja.arriba, caja.izquierda + Escala(120),
                    caja.arriba + Escala(32)};
        caja.derecha = std::max(caja.derecha, caja.izquierda + rejilla_.paso);
        caja.abajo = std::max(caja.abajo, caja.arriba + rejilla_.paso);
        const std::wstring clase = herramienta_;
        TomarHerramienta(L"");
        Colocar(clase, caja);
        return;
    }
    case Gesto::Clase::Abarcar:
        if (gesto.Arrancado())
            ElegirEn(caja);
        return;
    default:
        if (gesto.Arrancado())
            Recordar();
    }
}

void Mesa::ElegirEn(const Caja& banda) {
    Controles elegidos = sumando_ ? Seleccion() : Controles();
    for (const auto& control : Raices(forma_, forma_.Controles()))
        if (CajaDe(control).Toca(banda) &&
            std::find(elegidos.begin(), elegidos.end(), control) == elegidos.end())
            elegidos.push_back(control);
    forma_.Seleccionar(elegidos);
}

void Mesa::Abandonar() {
    if (!gesto_)
        return;
    gesto_.reset();
    ReleaseCapture();
    adornos_.Abarcar({});
    if (!std::exchange(arrastrados_, {}).empty())
        Volver(historia_.Actual());
}

void Mesa::Menu(POINT pantalla) {
    const HMENU menu = CreatePopupMenu();
    for (const auto& linea : OrdenesDelMenu) {
        if (!linea.texto)
            AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
        else
            AppendMenuW(menu, MF_STRING | (Puede(linea.orden) ? MF_ENABLED : MF_GRAYED),
                        static_cast<UINT_PTR>(linea.orden) + 1, linea.texto);
    }
    const int elegida = TrackPopupMenu(menu, TPM_RETURNCMD | TPM_NONOTIFY, pantalla.x, pantalla.y,
                                       0, forma_.Ventana(), nullptr);
    DestroyMenu(menu);
    if (elegida > 0)
        Hacer(static_cast<Orden>(elegida - 1));
}

} // namespace galeria
