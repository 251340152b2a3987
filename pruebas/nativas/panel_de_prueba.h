// A panel on the recording host, its parts under their own names and its events in the record.
#pragma once

#include "area/area.h"
#include "pruebas/nativas/bolsa_grabadora.h"
#include "pruebas/nativas/comprobar_error.h"
#include "pruebas/nativas/entorno_grabador.h"

#include <memory>
#include <string>
#include <vector>

namespace pincela::pruebas {

class PanelDePrueba {
  public:
    /// Just created, nothing noted yet.
    PanelDePrueba() {
        e.Nombrar("rectangulo", {"Cuadra0", "Cuadra1", "Cuadra2", "Cuadra3", "Cuadra4"});
        e.Nombrar("linea", {"LinSup0", "LinSup1", "LinInf0", "LinInf1", "LinIzq0", "LinIzq1",
                            "LinDer0", "LinDer1"});
        e.Nombrar("etiqueta", {"lblSombra2", "LblSombra", "lblTitulo"});
        a = std::make_unique<Area>(e);
        creacion = e.registro.Tomar();
        EventosArea& eventos = a->eventos;
        e.Escuchar("Click", eventos.Click);
        e.Escuchar("PresTecla", eventos.PresTecla);
        e.Escuchar("TocoTecla", eventos.TocoTecla);
        e.Escuchar("SoltoTecla", eventos.SoltoTecla);
        e.Escuchar("MouseSale", eventos.MouseSale);
        e.Escuchar("MouseDown", eventos.MouseDown);
        e.Escuchar("MouseMove", eventos.MouseMove);
        e.Escuchar("MouseUp", eventos.MouseUp);
        e.Escuchar("Paint", eventos.Paint);
        e.Escuchar("Resize", eventos.Resize);
    }

    Lineas Tomar() { return e.registro.Tomar(); }
    Lineas Tomar(const std::vector<std::string>& comienzos) { return e.registro.Tomar(comienzos); }
    Lineas Eventos() { return Tomar({"evento"}); }

    void KeyDown(std::int16_t codigo, std::int16_t shift = 0) { a->KeyDown(codigo, shift); }
    void KeyUp(std::int16_t codigo, std::int16_t shift = 0) { a->KeyUp(codigo, shift); }
    void KeyPress(std::int16_t caracter) { a->KeyPress(caracter); }

    EntornoGrabador e;
    Lineas creacion; // what the creation did
    std::unique_ptr<Area> a;
};

using PunteroPanel = std::unique_ptr<PanelDePrueba>;

/// A new panel of 100 by 30 with a clean record.
inline PunteroPanel PanelNuevo() {
    auto panel = std::make_unique<PanelDePrueba>();
    panel->a->InitProperties();
    panel->e.registro.Olvidar();
    return panel;
}

/// Runs an action while a panel assigns its first colour, the time in which nothing is redrawn.
template <class Accion>
void MientrasCarga(PanelDePrueba& p, Accion accion) {
    int veces = 0;
    p.e.alCambiar = [&](VistaTexto clave) {
        if (clave != u"ColorFondo" || veces++ > 0)
            return;
        p.Tomar();
        accion();
    };
    p.a->InitProperties();
    p.e.alCambiar = nullptr;
    REQUIRE(veces > 0);
}

inline const char* const NombresLineas[] = {"LinSup0", "LinSup1", "LinInf0", "LinInf1",
                                            "LinIzq0", "LinIzq1", "LinDer0", "LinDer1"};

} // namespace pincela::pruebas
