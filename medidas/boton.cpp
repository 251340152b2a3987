#include "medidas/boton.h"

#include "anfitrion/bolsa_memoria.h"

namespace medidas {

using namespace anfitrion;

std::shared_ptr<ControlAlojado> AgregarBoton(Formulario& forma, const Componente& componente, int x,
                                             int y) {
    static const CLSID clase = componente.Clase(L"Pincela.Botonazo");
    const auto bolsa = Hacer<BolsaMemoria>();
    bolsa->Poner(L"Caption", TituloDeBoton);
    bolsa->Poner(L"EstilosRell", 1); // D_Hori
    bolsa->Poner(L"ColorDegradeN",
                 std::to_wstring(PrimerColor) + L"*" + std::to_wstring(UltimoColor));
    Origen origen;
    origen.bolsa = bolsa.get();
    return forma.Agregar(componente, clase, L"boton", {x, y, x + AnchoDeBoton, y + AltoDeBoton},
                         origen);
}

} // namespace medidas
