// A script run by the script host that comes with the system.
#include "pruebas/componente/comun/correr.h"
#include "pruebas/componente/comun/publicado.h"

#include <doctest/doctest.h>

#include <string>

TEST_CASE("A script uses the drawing effects through the registered class") {
    const std::wstring componente = publicado::RutaDelComponente();
    const publicado::Corrida corrida = publicado::Correr(
        L"cscript.exe //nologo \"" + componente.substr(0, componente.rfind(L'\\')) +
        L"\\guiones\\efectos.vbs\"");
    CHECK(corrida.salida == "TODO BIEN\r\n");
    CHECK(corrida.codigo == 40);
}
