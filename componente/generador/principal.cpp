// generar_tipos win64|win32 FILE: writes the type library for one kind of container.
// generar_tipos identificadores FILE: writes the resource script of the interface identifiers.
// generar_tipos manifiesto64|manifiesto32 FILE: writes the side-by-side manifest of one width.
#include "componente/generador/escritor.h"
#include "componente/generador/identificadores.h"
#include "componente/generador/manifiesto.h"

#include <objbase.h>

#include <cstdio>
#include <string_view>

namespace {

using namespace pincela::generador;

bool Escribir(std::wstring_view que, const wchar_t* ruta) {
    if (que == L"win64")
        EscribirBiblioteca(SYS_WIN64, ruta);
    else if (que == L"win32")
        EscribirBiblioteca(SYS_WIN32, ruta);
    else if (que == L"identificadores")
        EscribirIdentificadores(ruta);
    else if (que == L"manifiesto64")
        EscribirManifiesto(SYS_WIN64, ruta);
    else if (que == L"manifiesto32")
        EscribirManifiesto(SYS_WIN32, ruta);
    else
        return false;
    return true;
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    CoInitialize(nullptr);
    int resultado = 0;
    try {
        if (argc != 3 || !Escribir(argv[1], argv[2])) {
            fputs("usage: generar_tipos win64|win32|identificadores|manifiesto64|manifiesto32 "
                  "FILE\n",
                  stderr);
            resultado = 2;
        }
    } catch (const EstadoFallido& fallo) {
        fprintf(stderr, "generar_tipos: %s failed with status %08lX\n", fallo.paso,
                static_cast<unsigned long>(fallo.estado));
        resultado = 1;
    }
    CoUninitialize();
    return resultado;
}
