#include "componente/generador/identificadores.h"

#include "componente/clases.h"
#include "componente/generador/escritor.h"

#include <cstdio>
#include <cstring>
#include <cwctype>
#include <string>

namespace pincela::generador {

using namespace pincela::componente;

namespace {

void EscribirUno(FILE* f, const char* prefijo, const wchar_t* nombre, const GUID& guid) {
    // Resources are looked up in capitals.
    std::string mayusculas;
    for (const wchar_t* c = nombre; *c; ++c)
        mayusculas += static_cast<char>(std::towupper(*c));
    unsigned long palabras[4];
    static_assert(sizeof palabras == sizeof guid);
    std::memcpy(palabras, &guid, sizeof guid);
    fprintf(f, "%s%s RCDATA { 16L, 0x%08lXL, 0x%08lXL, 0x%08lXL, 0x%08lXL }\n", prefijo,
            mayusculas.c_str(), palabras[0], palabras[1], palabras[2], palabras[3]);
}

} // namespace

void EscribirIdentificadores(const wchar_t* ruta) {
    FILE* f = _wfopen(ruta, L"w");
    if (!f)
        throw EstadoFallido{STG_E_WRITEFAULT, "writing the identifiers"};
    ParaCadaClase([&]<class Tabla>(const DatosClase& datos) {
        EscribirUno(f, "_IID_", datos.nombre, datos.interfaz);
        if (datos.genero == Genero::Control)
            EscribirUno(f, "_SRCIID_", datos.nombre, datos.eventos);
    });
    if (fclose(f) != 0)
        throw EstadoFallido{STG_E_WRITEFAULT, "writing the identifiers"};
}

} // namespace pincela::generador
