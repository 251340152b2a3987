// One button on a form, made from the component file beside this program.
#pragma once

#include "anfitrion/captura.h"
#include "anfitrion/formulario.h"

#include <doctest/doctest.h>

#include <memory>
#include <string>

namespace acceso {

using namespace anfitrion;

inline std::wstring RutaComponente() {
    wchar_t ruta[MAX_PATH];
    GetModuleFileNameW(nullptr, ruta, MAX_PATH);
    const std::wstring texto = ruta;
    return texto.substr(0, texto.find_last_of(L'\\') + 1) + L"Pincela.ocx";
}

struct Banco {
    Banco() {
        [[maybe_unused]] static const HRESULT abierta = OleInitialize(nullptr);
        componente = Componente::DeFichero(RutaComponente());
        OpcionesFormulario opciones;
        opciones.ancho = 300;
        opciones.alto = 200;
        forma = std::make_unique<Formulario>(opciones);
        SetForegroundWindow(forma->Ventana());
        boton = forma->Agregar(componente, componente.Clase(L"Pincela.Botonazo"), L"Boton",
                               {40, 40, 160, 80});
        forma->BombearMensajes();
    }
    Banco(const Banco&) = delete;
    Banco& operator=(const Banco&) = delete;

    void Poner(const wchar_t* nombre, const Variante& valor) {
        anfitrion::Poner(boton->Despacho(), nombre, valor);
    }

    Componente componente = Componente::DeRegistro();
    std::unique_ptr<Formulario> forma;
    std::shared_ptr<ControlAlojado> boton;
};

} // namespace acceso
