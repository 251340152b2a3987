// Creating and showing controls on a machine that has run out of memory.
#include "pruebas/cada.h"
#include "pruebas/componente/comun/publicado.h"
#include "pruebas/componente/memoria/apuros.h"

#include <doctest/doctest.h>

#include <optional>

using namespace memoria;

namespace {

std::string Nombre(const wchar_t* clase) {
    return Estrechar(clase).substr(8);
}

} // namespace

TEST_CASE("An object that can't be made for lack of memory says so and leaves nothing") {
    Mesa& mesa = Mesa::La();
    for (const publicado::Clase& una : publicado::Clases)
        ConCadaNegativa([&](const Negativa& negativa) {
            Apurar("making " + Estrechar(una.nombre), negativa, [&](const Intento& intentar) {
                Puntero<IUnknown> objeto;
                const HRESULT estado = intentar([&] {
                    try {
                        objeto = mesa.componente.Crear(publicado::Guid(una.clase));
                        return S_OK;
                    } catch (const FalloCom& fallo) {
                        return fallo.estado;
                    }
                });
                CHECK(SUCCEEDED(estado) == static_cast<bool>(objeto));
                CHECK(mesa.componente.Crear(publicado::Guid(una.clase)));
            });
        });
}

TEST_CASE("A control shown and painted with too little memory neither breaks nor leaks, and works "
          "later") {
    Mesa& mesa = Mesa::La();
    for (const wchar_t* clase : Controles) {
        const auto mostrar = [&](const std::shared_ptr<ControlAlojado>& control) {
            Adornar(control->Despacho());
            RedrawWindow(control->Ventana(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
            mesa.forma->BombearMensajes();
        };
        // What could not be made the first time is made the second.
        const auto otraVez = [&](const std::shared_ptr<ControlAlojado>& control) {
            control->Como<IOleInPlaceObject>()->InPlaceDeactivate();
            control->Activar(false);
            control->Mover({10, 10, 160, 80});
            control->Mover({10, 10, 130, 60});
            mostrar(control);
            return Captura::DeVentana(control->Ventana());
        };
        std::optional<Captura> buena;
        ConCadaNegativa([&](const Negativa& negativa) {
            Apurar(
                "showing " + Nombre(clase), negativa,
                [&](const Intento& intentar) {
                    const auto objeto = mesa.Crear(clase);
                    std::shared_ptr<ControlAlojado> control;
                    intentar([&] {
                        try {
                            control = mesa.forma->Agregar(objeto, L"Uno", {10, 10, 130, 60});
                            mostrar(control);
                            return S_OK;
                        } catch (const FalloCom& fallo) {
                            return fallo.estado;
                        }
                    });
                    if (!control)
                        control = mesa.forma->Agregar(mesa.Crear(clase), L"Uno", {10, 10, 130, 60});
                    const Captura vista = otraVez(control);
                    if (!buena)
                        buena = vista;
                    CHECK(vista == *buena);
                    mesa.forma->Quitar(*control);
                },
                PerdidosDe(clase));
        });
    }
}

TEST_CASE("A control used with too little memory goes on afterwards") {
    Mesa& mesa = Mesa::La();
    for (const wchar_t* clase : Controles)
        ConCadaNegativa([&](const Negativa& negativa) {
            Apurar(
                "using " + Nombre(clase), negativa,
                [&](const Intento& intentar) {
                    const auto objeto = mesa.Crear(clase);
                    const auto control = mesa.forma->Agregar(objeto, L"Uno", {10, 10, 130, 60});
                    Adornar(control->Despacho());
                    const HWND ventana = control->Ventana();
                    const HWND campo = GetWindow(ventana, GW_CHILD);
                    const Captura antes = Captura::DeVentana(ventana);
                    intentar([&] {
                        for (const HWND una : {ventana, campo}) {
                            if (!una)
                                continue;
                            SendMessageW(una, WM_MOUSEMOVE, 0, MAKELPARAM(8, 8));
                            SendMessageW(una, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(8, 8));
                            SendMessageW(una, WM_LBUTTONUP, 0, MAKELPARAM(8, 8));
                            SendMessageW(una, WM_KEYDOWN, 'A', 1);
                            SendMessageW(una, WM_CHAR, 'a', 1);
                            SendMessageW(una, WM_KEYUP, 'A', 1);
                        }
                        RedrawWindow(ventana, nullptr, nullptr,
                                     RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
                        Fallos::DarTics();
                        control->Mover({10, 10, 150, 70});
                        control->Mover({10, 10, 130, 60});
                        control->Verbo(OLEIVERB_UIACTIVATE);
                        control->Verbo(OLEIVERB_HIDE);
                        control->Verbo(OLEIVERB_SHOW);
                        DestroyWindow(ventana);
                        return S_OK;
                    });
                    CHECK(control->Abierto());
                    control->Como<IOleInPlaceObject>()->InPlaceDeactivate();
                    control->Activar(false);
                    CHECK(IsWindow(control->Ventana()));
                    CHECK(mesa.forma->Quitar(*control) > 0);
                },
                PerdidosDe(clase));
        });
}
