#include "pruebas/nativas/entorno_pagina_grabador.h"

namespace pincela::pruebas {

Opcion& EntornoPaginaGrabador::LaOpcion(VistaTexto n) {
    auto& opcion = Dar<OpcionGrabada>(Ascii(n));
    for (OpcionGrabada* otra : opciones_) {
        otra->otras.push_back(&opcion);
        opcion.otras.push_back(otra);
    }
    opciones_.push_back(&opcion);
    return opcion;
}

CuadroPagina& EntornoPaginaGrabador::Cuadro(VistaTexto n) {
    const std::string nombre = Ascii(n);
    const Manejador hdc = proximoHdc_++;
    dibujo.nombres[hdc] = nombre;
    return Dar<CuadroPaginaGrabado>(nombre, hdc);
}

void EntornoPaginaGrabador::PonChanged(bool valor) {
    cambiado_ = valor;
    registro.Anotar("Changed " + Describir(valor));
}

Color EntornoPaginaGrabador::ElegirColor(Color inicial) {
    registro.Anotar("ElegirColor " + Describir(inicial));
    return alElegirColor ? alElegirColor(inicial) : inicial;
}

void EntornoPaginaGrabador::Informar(VistaTexto mensaje) {
    registro.Anotar("Informar " + Describir(Texto(mensaje)));
    if (alInformar)
        alInformar();
}

} // namespace pincela::pruebas
