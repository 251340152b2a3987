// Any text as a number, in both of the locales that matter.
#include "common/conversion.h"
#include "common/errores.h"
#include "pruebas/difusas/difusa.h"
#include "pruebas/nativas/con_regional.h"

#include <cmath>

using namespace pincela;

namespace {

/// A number once written is read as the same again, to the digits that are written.
void IrYVolver(double valor) {
    const double vuelta = TextoADoble(DobleATexto(valor));
    Exigir(std::fabs(vuelta - valor) <= std::fabs(valor) * 1e-14);
}

template <class Lectura>
void Intentar(Lectura lectura) {
    try {
        lectura();
    } catch (const ErrorEjecucion& error) {
        Exigir(error.Numero() == NumeroError::TiposNoCoinciden ||
               error.Numero() == NumeroError::Desbordamiento);
    }
}

void LeerDeTodosModos(const Texto& texto) {
    Intentar([&] {
        const double valor = TextoADoble(texto);
        Exigir(std::isfinite(valor));
        if (std::fabs(valor) > 1e-300 && std::fabs(valor) < 1e300)
            IrYVolver(valor);
    });
    Intentar([&] {
        const std::int32_t valor = TextoAEntero32(texto);
        Exigir(TextoAEntero32(EnteroATexto(valor)) == valor);
    });
    Intentar([&] {
        const std::int16_t valor = TextoAEntero16(texto);
        Exigir(TextoAEntero16(EnteroATexto(valor)) == valor);
    });
    Intentar([&] { Exigir(!std::isnan(Val(texto))); });
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
    const Texto texto = TextoDe(datos, largo);
    for (const Regional regional : {Regional{u'.', u','}, Regional{u',', u'.'}}) {
        const pruebas::ConRegional con(regional);
        LeerDeTodosModos(texto);
    }
    return 0;
}
