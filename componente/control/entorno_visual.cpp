// Resolution of the screen and assistive programs.
#include "componente/control/objeto_control.h"

namespace pincela::componente {

namespace {

constexpr UINT MensajeCambioDePpp = 0x02E3; // WM_DPICHANGED_AFTERPARENT

/// Dots per inch of the monitor a window is on, where the platform knows of such; else of the
/// screen as a whole.
int PppDe(HWND ventana) {
    using Pregunta = UINT(WINAPI*)(HWND);
    static const auto pregunta = reinterpret_cast<Pregunta>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32"), "GetDpiForWindow")));
    if (ventana && pregunta)
        if (const UINT ppp = pregunta(ventana))
            return static_cast<int>(ppp);
    HDC pantalla = GetDC(nullptr);
    const int ppp = pantalla ? GetDeviceCaps(pantalla, LOGPIXELSY) : 0;
    ReleaseDC(nullptr, pantalla);
    return ppp > 0 ? ppp : 96;
}

/// The platform's library for assistive programs, loaded when the first of them asks.
struct BibliotecaAccesible {
    decltype(&LresultFromObject) resultado = nullptr;
    decltype(&CreateStdAccessibleObject) estandar = nullptr;

    BibliotecaAccesible() {
        // Stays loaded: programs may hold what it made for longer than any control lives.
        if (HMODULE modulo = LoadLibraryExW(L"oleacc.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) {
            Buscar(modulo, "LresultFromObject", resultado);
            Buscar(modulo, "CreateStdAccessibleObject", estandar);
        }
    }

  private:
    template <class F>
    static void Buscar(HMODULE modulo, const char* nombre, F& funcion) {
        funcion = reinterpret_cast<F>(reinterpret_cast<void*>(GetProcAddress(modulo, nombre)));
    }
};

const BibliotecaAccesible& Oleacc() {
    static const BibliotecaAccesible biblioteca;
    return biblioteca;
}

} // namespace

void ObjetoControl::PonPppDe(HWND ventana) {
    entorno_.PonPpp(PppDe(ventana));
}

bool ObjetoControl::Mensaje(HWND ventana, UINT mensaje, WPARAM w, LPARAM l, LRESULT* resultado) {
    switch (mensaje) {
    case WM_GETOBJECT:
        if (static_cast<LONG>(l) != OBJID_CLIENT)
            return false;
        if (ObjetoAccesible* accesible = DarAccesible(ventana)) {
            *resultado = Oleacc().resultado(IID_IAccessible, w, accesible);
            return true;
        }
        return false;
    case MensajeCambioDePpp:
        PonPppDe(ventana);
        if (vida_ == Vida::Viva) {
            extension_ = AHimetric(entorno_.Tamano());
            Nucleo()->Resize();
        }
        return false;
    default:
        return false;
    }
}

ObjetoAccesible* ObjetoControl::DarAccesible(HWND ventana) {
    if (vida_ != Vida::Viva || Nucleo()->Describir().papel == Accesible::Papel::Ninguno)
        return nullptr;
    if (!accesible_) {
        Ptr<IAccessible> estandar;
        if (!Oleacc().resultado || !Oleacc().estandar ||
            FAILED(
                Oleacc().estandar(ventana, OBJID_CLIENT, IID_IAccessible, estandar.RecibirVacio())))
            return nullptr;
        accesible_ = Ptr<ObjetoAccesible>::Adoptar(new ObjetoAccesible(
            std::move(estandar),
            {[this] { return Nucleo()->Describir(); }, [this] { return conFoco_; },
             [this] {
                 detalle::Sosten sosten(Identidad());
                 NucleoSeguro([](ControlUsuario& n) { n.AccionPorDefecto(); });
             },
             [this] { PedirFoco(); }}));
    }
    return accesible_.get();
}

void ObjetoControl::AccesibleCambiado() {
    const HWND ventana = entorno_.Ventana();
    if (vida_ != Vida::Viva || cerrando_ || !ventana)
        return;
    const Accesible ahora = Nucleo()->Describir();
    if (ahora.papel == Accesible::Papel::Ninguno)
        return;
    const Accesible antes = std::exchange(descrito_, ahora);
    if (ahora.nombre != antes.nombre)
        NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, ventana, OBJID_CLIENT, CHILDID_SELF);
    if (EstadoAccesible(ahora, conFoco_) != estadoDescrito_) {
        estadoDescrito_ = EstadoAccesible(ahora, conFoco_);
        NotifyWinEvent(EVENT_OBJECT_STATECHANGE, ventana, OBJID_CLIENT, CHILDID_SELF);
    }
}

} // namespace pincela::componente
