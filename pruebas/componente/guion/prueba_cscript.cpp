// A script run by the script host that comes with the system.
#include "pruebas/componente/comun/correr.h"
#include "pruebas/componente/comun/publicado.h"

#include <doctest/doctest.h>

#include <string>

namespace {

void CorrerGuion(const wchar_t* nombre) {
    const std::wstring componente = publicado::RutaDelComponente();
    const publicado::Corrida corrida = publicado::Correr(
        L"cscript.exe //nologo \"" + componente.substr(0, componente.rfind(L'\\')) +
        L"\\guiones\\" + nombre + L"\"");
    CHECK(corrida.salida == "TODO BIEN\r\n");
    CHECK(corrida.codigo == 40);
}

} // namespace

TEST_CASE("A script uses the drawing effects through the registered class") {
    CorrerGuion(L"efectos.vbs");
}

TEST_CASE("A VBScript assigns dates, objects and colours as its language writes them") {
    CorrerGuion(L"propiedades.vbs");
}

TEST_CASE("A JScript assigns objects and colours as its language writes them") {
    CorrerGuion(L"propiedades.js");
}
