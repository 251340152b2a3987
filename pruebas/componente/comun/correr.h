// Another program run to its end, with what it printed.
#pragma once

#include <windows.h>

#include <string>

namespace publicado {

/// Owner of a handle of the system.
struct Manejador {
    HANDLE h = nullptr;
    Manejador() = default;
    Manejador(const Manejador&) = delete;
    Manejador& operator=(const Manejador&) = delete;
    ~Manejador() { Cerrar(); }
    void Cerrar() {
        if (h)
            CloseHandle(h);
        h = nullptr;
    }
};

/// Output and errors of one run; the exit code is -1 when it could not be started.
struct Corrida {
    int codigo = -1;
    std::string salida;
};

/// `orden` is a whole command line.
Corrida Correr(std::wstring orden);

} // namespace publicado
