// The colour page of a button on the recording host.
#pragma once

#include "paginas/propcolores.h"
#include "pruebas/nativas/boton_de_prueba.h"
#include "pruebas/nativas/pagina_de_prueba.h"

#include <string>
#include <vector>

namespace pincela::pruebas {

/// A page that shows one button with stops 1*2*3, and 4*5*6*7*8 with the mouse over.
class Colores : public PaginaDePrueba<ProPColores> {
  public:
    explicit Colores(TEstilosR estilo = TEstilosR::D_Hori) {
        boton->b->PonColorLetra(Color(0x10));
        boton->b->PonColorLetraSobre(Color(0x11));
        boton->b->PonColorFondo(Color(0x20));
        boton->b->PonColorFondoSobre(Color(0x21));
        boton->b->PonColorDegradeN(u"1*2*3");
        boton->b->PonColorDegradeS(u"4*5*6*7*8");
        boton->b->PonEstilosRell(estilo);
        boton->b->PonAngulo(30);
        boton->Tomar();
        Mostrar({boton->b.get()});
    }

    FilaColores& Fila(std::size_t estado) { return dynamic_cast<FilaColores&>(*p.FilaDe(estado)); }
    /// The colours of a row: "1*2*3".
    std::string Topes(std::size_t estado) {
        const Texto lista = Fila(estado).Lista();
        return {lista.begin(), lista.end()};
    }
    BotonColorGrabado& Tope(std::size_t estado, std::size_t numero) {
        return dynamic_cast<BotonColorGrabado&>(Fila(estado).Tope(numero));
    }
    /// Whether something was drawn on the preview of each state since the last time: "0", "01"...
    std::string Previstas() {
        std::string cuales;
        for (const std::string& linea : Tomar({"Picture1"}))
            if (linea.ends_with(".Refresh"))
                cuales += linea.substr(std::string("Picture1(").size(), 1);
        return cuales;
    }
    bool Visible(const std::string& nombre) { return e.El<RotuloGrabado>(nombre).Visible(); }

    Puntero boton = Nuevo();
};

} // namespace pincela::pruebas
