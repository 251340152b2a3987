// A button on the recording host, its parts under their own names and its events in the record.
#pragma once

#include "botonazo/botonazo.h"
#include "pruebas/nativas/bolsa_grabadora.h"
#include "pruebas/nativas/entorno_grabador.h"

#include <memory>
#include <string>
#include <utility>

namespace pincela::pruebas {

class BotonDePrueba {
  public:
    /// Just created, nothing noted yet.
    BotonDePrueba() {
        e.Nombrar("cuadro", {"AuxImagen", "Picture1"});
        e.Nombrar("etiqueta", {"lblSombra2", "LblSombra", "lblTitulo"});
        e.Nombrar("rectangulo", {"rectFoco"});
        e.Nombrar("temporizador", {"Timer", "TimProg"});
        b = std::make_unique<Botonazo>(e);
        e.Escuchar("Click", b->eventos.Click);
        e.Escuchar("PresTecla", b->eventos.PresTecla);
        e.Escuchar("TocoTecla", b->eventos.TocoTecla);
        e.Escuchar("SoltoTecla", b->eventos.SoltoTecla);
        e.Escuchar("MouseSale", b->eventos.MouseSale);
        e.Escuchar("MouseDown", b->eventos.MouseDown);
        e.Escuchar("MouseMove", b->eventos.MouseMove);
        e.Escuchar("MouseUp", b->eventos.MouseUp);
        e.Escuchar("Paint", b->eventos.Paint);
        e.Escuchar("Validate", b->eventos.Validate);
        e.Escuchar("Resize", b->eventos.Resize);
        e.registro.Olvidar();
    }

    Lineas Tomar() { return e.registro.Tomar(); }
    Lineas Tomar(const std::vector<std::string>& comienzos) { return e.registro.Tomar(comienzos); }
    Lineas Eventos() { return Tomar({"evento"}); }

    void KeyDown(std::int16_t codigo, std::int16_t shift = 0) { b->KeyDown(codigo, shift); }
    void KeyUp(std::int16_t codigo, std::int16_t shift = 0) { b->KeyUp(codigo, shift); }
    void KeyPress(std::int16_t caracter) { b->KeyPress(caracter); }

    /// The mouse comes in, with the notification, and goes out, with a tick of the poll.
    void Entrar() {
        e.RatonEncima();
        b->MouseMove(0, 0, 5, 5);
    }
    bool Salir() {
        e.RatonFuera();
        return e.ElTemporizador("Timer").Tic();
    }

    EntornoGrabador e;
    std::unique_ptr<Botonazo> b;
};

using Puntero = std::unique_ptr<BotonDePrueba>;

/// A new control of 100 by 30, mouse elsewhere, with a clean record.
inline Puntero Nuevo() {
    auto boton = std::make_unique<BotonDePrueba>();
    boton->b->InitProperties();
    boton->b->Resize();
    boton->e.RatonFuera();
    boton->e.registro.Olvidar();
    return boton;
}

inline Imagen ImagenDe(const std::string& nombre, std::int32_t ancho = 250,
                       std::int32_t alto = 250) {
    return std::make_shared<ImagenGrabada>(nombre, ancho, alto);
}

/// The number of the run-time error an action raises; 0 for none.
template <class Accion>
std::int32_t ErrorDe(Accion accion) {
    try {
        accion();
    } catch (const ErrorEjecucion& error) {
        return static_cast<std::int32_t>(error.Numero());
    }
    return 0;
}

constexpr std::int32_t Desborda = static_cast<std::int32_t>(NumeroError::Desbordamiento);
constexpr std::int32_t NoCoincide = static_cast<std::int32_t>(NumeroError::TiposNoCoinciden);

// Lines that many sequences share.

/// Border of a button of 100 by 30 with the narrowest border.
inline const Lineas BordeLevantado = {
    "superficie.Line 1,1 98,1 &HC0C0C0", "superficie.Line 98,1 98,28 &H909090",
    "superficie.Line 98,28 1,28 &H909090", "superficie.Line 1,28 1,1 &HC0C0C0"};
inline const Lineas BordeHundido = {
    "superficie.Line 1,1 98,1 &H909090", "superficie.Line 98,1 98,28 &HC0C0C0",
    "superficie.Line 98,28 1,28 &HC0C0C0", "superficie.Line 1,28 1,1 &H909090"};
/// A solid button of the colour of buttons, redrawn.
inline const Lineas DibujoNormal = [] {
    Lineas lineas = {"superficie.Cls &H8000000F"};
    lineas.insert(lineas.end(), BordeLevantado.begin(), BordeLevantado.end());
    return lineas;
}();
/// The window takes its square shape.
inline const Lineas FormaCuadrada = {"CreateRoundRectRgn 0,0 101,31 elipse 0x0",
                                     "SetWindowRgn 500 True", "DeleteObject"};

inline Lineas operator+(Lineas a, const Lineas& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

} // namespace pincela::pruebas
