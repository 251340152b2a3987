// generar_tipos win64|win32 FILE: writes the type library for one kind of container.
// generar_tipos identificadores FILE: writes the resource script of the interface identifiers.
#include "componente/generador/escritor.h"
#include "componente/generador/identificadores.h"

#include <objbase.h>

#include <cstdio>
#include <cwchar>

int wmain(int argc, wchar_t** argv) {
    if (argc != 3) {
        fputs("usage: generar_tipos win64|win32|identificadores FILE\n", stderr);
        return 2;
    }
    CoInitialize(nullptr);
    int resultado = 0;
    try {
        if (std::wcscmp(argv[1], L"identificadores") == 0)
            pincela::generador::EscribirIdentificadores(argv[2]);
        else
            pincela::generador::EscribirBiblioteca(
                std::wcscmp(argv[1], L"win64") == 0 ? SYS_WIN64 : SYS_WIN32, argv[2]);
    } catch (const pincela::generador::EstadoFallido& fallo) {
        fprintf(stderr, "generar_tipos: %s failed with status %08lX\n", fallo.paso,
                static_cast<unsigned long>(fallo.estado));
        resultado = 1;
    }
    CoUninitialize();
    return resultado;
}
