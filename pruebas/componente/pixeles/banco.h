// A form with one button of 120 by 40 pixels on it.
#pragma once

#include "anfitrion/bolsa_memoria.h"
#include "anfitrion/formulario.h"
#include "pruebas/componente/comun/boton.h"
#include "pruebas/componente/pixeles/caja.h"

#include <doctest/doctest.h>

#include <cstdlib>
#include <memory>

namespace publicado {

inline constexpr COLORREF Rojo = RGB(220, 20, 30), Verde = RGB(10, 180, 40),
                          Azul = RGB(20, 30, 210), FondoDeForma = RGB(250, 240, 10);
inline constexpr int Ancho = 120, Alto = 40;

struct BancoDePixeles {
    BancoDePixeles() : componente(anfitrion::Componente::DeFichero(RutaDelComponente())) {
        anfitrion::OpcionesFormulario opciones;
        opciones.ancho = 400;
        opciones.alto = 300;
        opciones.registro = registro = std::make_shared<anfitrion::Registro>();
        forma = std::make_unique<anfitrion::Formulario>(opciones);
        forma->alPintar = [](HDC hdc, const RECT&) {
            RECT todo{0, 0, 400, 300};
            const HBRUSH brocha = CreateSolidBrush(FondoDeForma);
            FillRect(hdc, &todo, brocha);
            DeleteObject(brocha);
        };
    }

    /// Where the button stands on the form.
    static constexpr POINT Lugar{150, 120};

    IDispatch* Agregar(const anfitrion::Origen& origen = {}) {
        control = forma->Agregar(componente, Guid(ClaseDe(L"Botonazo").clase), L"Boton1",
                                 {Lugar.x, Lugar.y, Lugar.x + Ancho, Lugar.y + Alto}, origen);
        REQUIRE(control->Ventana());
        return control->Despacho();
    }
    /// A red button without text, the border as asked for.
    IDispatch* AgregarRojo(long borde) {
        IDispatch* boton = Agregar();
        Poner(boton, L"ColorFondo", static_cast<long>(Rojo));
        Poner(boton, L"EstilosBord", borde);
        Poner(boton, L"Caption", L"");
        return boton;
    }
    IDispatch* Cargar(anfitrion::BolsaMemoria& bolsa) {
        anfitrion::Origen origen;
        origen.bolsa = &bolsa;
        return Agregar(origen);
    }

    Captura Ver() const {
        UpdateWindow(control->Ventana());
        return Captura::DeVentana(control->Ventana());
    }

    SesionOle ole;
    anfitrion::Componente componente;
    std::shared_ptr<anfitrion::Registro> registro;
    std::unique_ptr<anfitrion::Formulario> forma;
    std::shared_ptr<anfitrion::ControlAlojado> control;
};

} // namespace publicado
