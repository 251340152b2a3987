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
        if (ventana != entorno_.Ventana()) // an edit field follows its control
            return false;
        PonPppDe(ventana);
        if (vida_ == Vida::Viva) {
            extension_ = AHimetric(entorno_.Tamano());
            nucleo_->Resize();
        }
        return false;
    default:
        return false;
    }
}

namespace {

/// The platform's own object for a window; null where it makes none.
Ptr<IAccessible> EstandarDe(HWND ventana) {
    Ptr<IAccessible> estandar;
    if (!Oleacc().resultado || !Oleacc().estandar ||
        FAILED(Oleacc().estandar(ventana, OBJID_CLIENT, IID_IAccessible, estandar.RecibirVacio())))
        return nullptr;
    return estandar;
}

} // namespace

// The platform describes its edit windows itself; only where it can't keep a name for one does the
// control answer in its place.
ObjetoAccesible* ObjetoControl::DarAccesibleDeCampo(HWND ventana) {
    if (vida_ != Vida::Viva || entorno_.NombreDeCampo(ventana).empty())
        return nullptr;
    if (accesibleDeCampo_ && campoAccesible_ == ventana)
        return accesibleDeCampo_.get();
    Ptr<IAccessible> estandar = EstandarDe(ventana);
    if (!estandar)
        return nullptr;
    if (accesibleDeCampo_)
        accesibleDeCampo_->Desconectar();
    campoAccesible_ = ventana;
    const auto describir = [this, ventana] {
        Accesible campo;
        campo.papel = Accesible::Papel::Campo;
        campo.nombre = entorno_.NombreDeCampo(ventana);
        campo.habilitado = campo.enfocable = IsWindowEnabled(ventana) != FALSE;
        campo.trancado = (GetWindowLongW(ventana, GWL_STYLE) & ES_READONLY) != 0;
        campo.valor.resize(static_cast<std::size_t>(GetWindowTextLengthW(ventana)));
        GetWindowTextW(ventana, reinterpret_cast<wchar_t*>(campo.valor.data()),
                       static_cast<int>(campo.valor.size() + 1));
        return campo;
    };
    accesibleDeCampo_ = Ptr<ObjetoAccesible>::Adoptar(new ObjetoAccesible(
        std::move(estandar),
        {describir, [ventana] { return GetFocus() == ventana; }, [] {}, [this] { PedirFoco(); }}));
    return accesibleDeCampo_.get();
}

ObjetoAccesible* ObjetoControl::DarAccesible(HWND ventana) {
    if (entorno_.EsCampo(ventana))
        return DarAccesibleDeCampo(ventana);
    if (vida_ != Vida::Viva || nucleo_->Describir().papel == Accesible::Papel::Ninguno)
        return nullptr;
    if (!accesible_) {
        Ptr<IAccessible> estandar = EstandarDe(ventana);
        if (!estandar)
            return nullptr;
        accesible_ = Ptr<ObjetoAccesible>::Adoptar(new ObjetoAccesible(
            std::move(estandar),
            {[this] { return nucleo_->Describir(); }, [this] { return conFoco_; },
             [this] {
                 detalle::Sosten sosten(Identidad());
                 if (EntradaCongelada())
                     return;
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
    // Whoever listens is told when it can be told; nothing else depends on it.
    NucleoSeguro([&](ControlUsuario& nucleo) {
        Accesible ahora = nucleo.Describir();
        if (ahora.papel == Accesible::Papel::Ninguno)
            return;
        const long estado = EstadoAccesible(ahora, conFoco_);
        const bool otroNombre = ahora.nombre != descrito_.nombre;
        descrito_ = std::move(ahora);
        if (otroNombre)
            NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, ventana, OBJID_CLIENT, CHILDID_SELF);
        if (estado != estadoDescrito_) {
            estadoDescrito_ = estado;
            NotifyWinEvent(EVENT_OBJECT_STATECHANGE, ventana, OBJID_CLIENT, CHILDID_SELF);
        }
    });
}

} // namespace pincela::componente
