// A container that does what no container should, thousands of times, always the same.
//
// PINCELA_ATAQUE_CASOS says how many cases there are (a share of them unless told), _SEMILLA and
// _DESDE where they begin, _HILOS in how many apartments at a time. PINCELA_ATAQUE_CASO runs one
// case alone and tells what it does.
#include "pruebas/componente/hostil/vigilante.h"

#include <doctest/doctest.h>

#include <cstdio>
#include <cstdlib>

using namespace hostil;

namespace {

unsigned Numero(const char* variable, unsigned siFalta) {
    const char* dicho = std::getenv(variable);
    return dicho && *dicho ? static_cast<unsigned>(std::strtoul(dicho, nullptr, 10)) : siFalta;
}

} // namespace

TEST_CASE(
    "Whatever the container does in the middle of a call, nothing crashes, hangs or is lost") {
    Encargo encargo;
    encargo.semilla = Numero("PINCELA_ATAQUE_SEMILLA", encargo.semilla);
    encargo.hilos = Numero("PINCELA_ATAQUE_HILOS", 1);
    encargo.desde = Numero("PINCELA_ATAQUE_DESDE", 0);
    encargo.hasta = encargo.desde + Numero("PINCELA_ATAQUE_CASOS", 150);
    if (std::getenv("PINCELA_ATAQUE_CASO")) {
        encargo.desde = Numero("PINCELA_ATAQUE_CASO", 0);
        encargo.hasta = encargo.desde + 1;
        encargo.relato = true;
    }
    const Informe informe = Vigilar(encargo);
    std::printf("%u cases of seed %u in %d processes: %u hostile acts, %u different ones, %u "
                "failures\n",
                informe.casos, encargo.semilla, informe.procesos, informe.emboscadas,
                static_cast<unsigned>(informe.distintas),
                static_cast<unsigned>(informe.fallos.size()));
    CHECK(informe.casos == encargo.hasta - encargo.desde);
    for (const std::string& fallo : informe.fallos) {
        INFO(fallo);
        CHECK(false);
    }
    if (informe.casos > 100)
        CHECK(informe.emboscadas > informe.casos / 2); // it attacks
}

TEST_CASE("The attacker's own process" * doctest::skip()) {
    REQUIRE(Ejecutar() == 0);
}
