#include "pruebas/nativas/bolsa_grabadora.h"

#include "common/conversion.h"

namespace pincela::pruebas {

namespace {

std::string Ascii(VistaTexto clave) {
    return std::string(clave.begin(), clave.end());
}

} // namespace

void BolsaGrabadora::Fallar(VistaTexto clave) const {
    if (const auto fallo = fallos.find(Texto(clave)); fallo != fallos.end())
        Lanzar(fallo->second);
}

Variante BolsaGrabadora::ReadProperty(VistaTexto clave, const Variante& porDefecto) {
    registro.Anotar("lee " + Ascii(clave) + " " + Describir(porDefecto));
    Fallar(clave);
    const auto guardado = valores.find(Texto(clave));
    return guardado == valores.end() ? porDefecto : guardado->second;
}

void BolsaGrabadora::WriteProperty(VistaTexto clave, const Variante& valor,
                                   const Variante& porDefecto) {
    registro.Anotar("escribe " + Ascii(clave) + " " + Describir(valor) + " | " +
                    Describir(porDefecto));
    Fallar(clave);
    if (!IgualesPorAutomatizacion(valor, porDefecto))
        valores[Texto(clave)] = valor;
}

} // namespace pincela::pruebas
