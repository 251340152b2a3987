// Life of the panel: its parts, a new control, the host's calls.
#include "area/area.h"

#include "common/al_salir.h"
#include "efectos/efectos.h"

namespace pincela {

// What is made later lies in front: marks, border, copies of the caption, caption.
Area::Area(Entorno& entorno) : entorno_(entorno) {
    CargarMarca();
    for (ParLineas* par : {&LinSup, &LinInf, &LinIzq, &LinDer}) {
        for (auto& linea : *par) {
            linea = entorno.CrearLinea();
            linea->PonVisible(false);
        }
    }
    const Fuente letra = entorno.CrearFuente({.Name = u"Arial"});
    for (auto* etiqueta : {&lblSombra2, &LblSombra, &lblTitulo}) {
        *etiqueta = entorno.CrearEtiqueta();
        (*etiqueta)->PonFont(letra);
        (*etiqueta)->PonOyente(this);
    }
}

Area::~Area() = default;

Efectos& Area::efectos() {
    if (!efectos_)
        efectos_ = std::make_unique<Efectos>(entorno_.graficos());
    return *efectos_;
}

void Area::InitProperties() {
    PonTipoLetra(TLetra::Normal);
    PonEstilosBord(TEstilosB::Normal);
    PonEstilosRell(TEstilosR::Solido);
    PonBackStyle(TBack::Opaco);
    PonAnchoBorde(Tamanio::Chico);
    PonSeparaBorde(Tamanio::Chico);
    {
        Mientras carga(m_Cargando);
        // A restored panel that has no colour stored takes that of buttons instead.
        PonColorFondo(Blanco);
    }
    PonEnabled(true);
    PonAlinText(Alineaciones::Medio);
    Reacomodar();
}

// The marks are for whoever designs the form.
void Area::Show() {
    ManAreas(!entorno_.UserMode());
}

void Area::Resize() {
    if (m_Cargando)
        return;
    Reacomodar();
    eventos.Resize();
    if (!terminado_)
        Show();
}

void Area::Paint() {
    eventos.Paint();
}

void Area::Terminate() {
    terminado_ = true;
    efectos_.reset();
}

} // namespace pincela
