// The attacker's cases run in other processes: one that crashes, hangs or leaks is a line in the
// report, and the next case follows.
#pragma once

#include <string>
#include <vector>

namespace hostil {

struct Encargo {
    unsigned semilla = 20261122;
    unsigned desde = 0, hasta = 0; ///< cases, without the last
    unsigned hilos = 1;            ///< apartments at a time in one process
    bool relato = false;           ///< says what each case does
};

struct Informe {
    unsigned casos = 0;
    int procesos = 0;
    std::vector<std::string> fallos; ///< one line for each case that did not end well
    unsigned emboscadas = 0;         ///< hostile acts done
    std::size_t distintas = 0;       ///< pairs of a callback and an act among them
};

/// Runs the cases, in as many processes as it takes.
Informe Vigilar(const Encargo& encargo);

/// The other process's part; answers its exit code.
int Ejecutar();

/// The name of the test case that calls Ejecutar.
inline constexpr const char* CasoDelHijo = "The attacker's own process";

} // namespace hostil
