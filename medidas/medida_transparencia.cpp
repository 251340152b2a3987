// Transparent text boxes on a form against opaque ones, as many of each: a message to the form, and
// one painting of the form with everything on it. Both have to cost a control the same whatever the
// number of controls, so the limits are the same for ten and for a thousand.
#include "medidas/medida.h"

#include "anfitrion/formulario.h"

#include <string>

namespace medidas {

namespace {

using namespace anfitrion;

constexpr int PorFila = 40, Ancho = 30, Alto = 24;
constexpr int MensajesPorVez = 1000;

class FormaConCajas {
  public:
    FormaConCajas(const Componente& componente, int cuantas, long estilo) : forma_(Opciones()) {
        const CLSID clase = componente.Clase(L"Pincela.TboxSS");
        for (int i = 0; i < cuantas; ++i) {
            const int x = i % PorFila * Ancho, y = i / PorFila * Alto;
            const auto caja =
                forma_.Agregar(componente, clase, L"caja", {x, y, x + Ancho - 2, y + Alto - 2});
            Poner(caja->Despacho(), L"BackStyle", estilo);
        }
        Pintar();
        forma_.BombearMensajes();
    }

    void Mensajes() const {
        for (int i = 0; i < MensajesPorVez; ++i)
            SendMessageW(forma_.Ventana(), WM_USER, 0, 0);
    }
    void Pintar() const {
        RedrawWindow(forma_.Ventana(), nullptr, nullptr,
                     RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }

  private:
    static OpcionesFormulario Opciones() {
        OpcionesFormulario opciones;
        opciones.ancho = PorFila * Ancho;
        opciones.alto = 1000 / PorFila * Alto;
        return opciones;
    }

    Formulario forma_;
};

} // namespace

bool MedirTransparencia() {
    const auto componente = AbrirComponente();
    bool bien = true;
    for (const int cuantas : {10, 100, 1000}) {
        const FormaConCajas transparentes(componente, cuantas, 0), opacas(componente, cuantas, 1);
        const std::string cual = "_" + std::to_string(cuantas);
        const int rondas = cuantas > 100 ? 11 : 51;
        bien = Informar("transparente_mensaje" + cual,
                        Razon({[&] { transparentes.Mensajes(); }}, {[&] { opacas.Mensajes(); }}, 1),
                        1.25) &&
               bien;
        bien = Informar(
                   "transparente_pintar" + cual,
                   Razon({[&] { transparentes.Pintar(); }}, {[&] { opacas.Pintar(); }}, 1, rondas),
                   2.0) &&
               bien;
    }
    return bien;
}

} // namespace medidas
