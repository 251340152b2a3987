// Private memory of an idle button against the bytes of its two images.
//
// The buttons are loaded, active and painted; what the container keeps for each one, its site, is
// counted as theirs. Each round adds some and looks at how much the process grew.
#include "medidas/boton.h"
#include "medidas/medida.h"

#include <psapi.h>

namespace medidas {

namespace {

using namespace anfitrion;

constexpr int PorRonda = 50, Rondas = 31, PorFila = 8;

double BytesPrivados() {
    PROCESS_MEMORY_COUNTERS cuentas{};
    if (!GetProcessMemoryInfo(GetCurrentProcess(), &cuentas, sizeof cuentas))
        throw FalloCom(HRESULT_FROM_WIN32(GetLastError()), "GetProcessMemoryInfo");
    // The same figure as PrivateUsage, which not every platform fills in.
    return static_cast<double>(cuentas.PagefileUsage);
}

} // namespace

bool MedirMemoria() {
    const auto componente = AbrirComponente();
    OpcionesFormulario opciones;
    opciones.ancho = PorFila * AnchoDeBoton;
    Formulario forma(opciones);
    int puestos = 0;
    const auto agregar = [&] {
        for (int i = 0; i < PorRonda; ++i, ++puestos)
            AgregarBoton(forma, componente, puestos % PorFila * AnchoDeBoton,
                         puestos / PorFila % 16 * AltoDeBoton);
        forma.BombearMensajes();
    };
    agregar(); // what all of them share
    std::vector<double> crecidas;
    for (int i = 0; i < Rondas; ++i) {
        const double antes = BytesPrivados();
        agregar();
        crecidas.push_back(BytesPrivados() - antes);
    }
    constexpr double imagenes = 2.0 * 4 * AnchoDeBoton * AltoDeBoton;
    return Informar("memoria", Mediana(crecidas) / PorRonda / imagenes, 1.5);
}

} // namespace medidas
