// generar_manual FOLDER: writes the reference pages into an existing or new folder.
#include "componente/manual/paginas.h"

#include <cstdio>
#include <exception>
#include <filesystem>

namespace {

bool EscribirArchivo(const std::filesystem::path& ruta, const std::string& texto) {
    FILE* f = _wfopen(ruta.c_str(), L"wb");
    const bool bien = f && fwrite(texto.data(), 1, texto.size(), f) == texto.size();
    return f && fclose(f) == 0 && bien;
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    if (argc != 2) {
        fputs("usage: generar_manual FOLDER\n", stderr);
        return 2;
    }
    try {
        const std::filesystem::path carpeta = argv[1];
        std::filesystem::create_directories(carpeta);
        for (const auto& pagina : pincela::manual::Paginas())
            if (!EscribirArchivo(carpeta / pagina.archivo, pagina.texto)) {
                fprintf(stderr, "generar_manual: %s can't be written\n", pagina.archivo.c_str());
                return 1;
            }
    } catch (const std::exception& error) {
        fprintf(stderr, "generar_manual: %s\n", error.what());
        return 1;
    }
    return 0;
}
