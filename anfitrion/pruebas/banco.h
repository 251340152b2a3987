// A form with false controls, and keys that arrive as the keyboard sends them.
#pragma once

#include "anfitrion/formulario.h"
#include "anfitrion/pruebas/control_falso.h"

#include <doctest/doctest.h>

namespace falso {

using namespace anfitrion;

/// OLE for the length of a test.
struct SesionOle {
    SesionOle() { OleInitialize(nullptr); }
    SesionOle(const SesionOle&) = delete;
    SesionOle& operator=(const SesionOle&) = delete;
    ~SesionOle() { OleUninitialize(); }
};

struct Banco {
    explicit Banco(const OpcionesSitio& sitio = {}) : registro(std::make_shared<Registro>()) {
        OpcionesFormulario opciones;
        opciones.sitio = sitio;
        opciones.registro = registro;
        opciones.ancho = 300;
        opciones.alto = 200;
        forma = std::make_unique<Formulario>(opciones);
        SetForegroundWindow(forma->Ventana());
        forma->BombearMensajes();
    }

    /// The false control stays reachable through the result for as long as the form keeps it.
    ControlFalso* Poner(const std::wstring& nombre, Caracter caracter = {},
                        const Origen& origen = {}) {
        auto* control = new ControlFalso(caracter);
        const Puntero<IUnknown> objeto(static_cast<IOleObject*>(control));
        const int n = static_cast<int>(forma->Controles().size());
        alojado = forma->Agregar(objeto, nombre, {10, 10 + 30 * n, 110, 35 + 30 * n}, origen);
        return control;
    }

    /// True when the form consumed the key; otherwise it is dispatched to the focus.
    bool Tecla(WPARAM tecla, UINT mensaje = WM_KEYDOWN) {
        MSG m{};
        m.hwnd = GetFocus() ? GetFocus() : forma->Ventana();
        m.message = mensaje;
        m.wParam = tecla;
        m.lParam = mensaje == WM_SYSKEYDOWN || mensaje == WM_SYSCHAR ? 0x20000001 : 1;
        if (forma->Pretraducir(m))
            return true;
        DispatchMessageW(&m);
        return false;
    }
    bool TeclaConMayusculas(WPARAM tecla) {
        BYTE viejo[256], nuevo[256];
        GetKeyboardState(viejo);
        std::copy(viejo, viejo + 256, nuevo);
        nuevo[VK_SHIFT] = 0x80;
        SetKeyboardState(nuevo);
        const bool tomada = Tecla(tecla);
        SetKeyboardState(viejo);
        return tomada;
    }
    std::wstring Activo() const {
        return forma->Activo() ? forma->Activo()->Nombre() : std::wstring();
    }

    SesionOle ole;
    std::shared_ptr<Registro> registro;
    std::unique_ptr<Formulario> forma;
    std::shared_ptr<ControlAlojado> alojado; ///< the last one put
};

} // namespace falso
