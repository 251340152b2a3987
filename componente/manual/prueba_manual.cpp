// The manual that is checked in says what the tables and the controls say now.
#include "componente/manual/paginas.h"

#include <doctest/doctest.h>

#include <version.h>
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>

namespace {

std::filesystem::path Referencia() {
    wchar_t ruta[MAX_PATH];
    const DWORD largo = GetModuleFileNameW(nullptr, ruta, MAX_PATH);
    const std::filesystem::path programa(std::wstring(ruta, largo));
    // The builds are two folders below the sources.
    return programa.parent_path().parent_path().parent_path() / "docs" / "manual" / "referencia";
}

/// As text: a checkout may have carriage returns.
std::string Leer(const std::filesystem::path& ruta) {
    std::string texto;
    if (FILE* f = _wfopen(ruta.c_str(), L"rt")) {
        char trozo[4096];
        while (const std::size_t n = fread(trozo, 1, sizeof trozo, f))
            texto.append(trozo, n);
        fclose(f);
    }
    return texto;
}

const std::string& Texto(const std::vector<pincela::manual::Pagina>& paginas, const char* archivo) {
    const auto hallada = std::find_if(paginas.begin(), paginas.end(),
                                      [&](const auto& una) { return una.archivo == archivo; });
    REQUIRE(hallada != paginas.end());
    return hallada->texto;
}

bool Contiene(const std::string& texto, const char* trozo) {
    return texto.find(trozo) != std::string::npos;
}

} // namespace

TEST_CASE("Every page of the reference is up to date, and there is none too many") {
    const auto paginas = pincela::manual::Paginas();
    CHECK(paginas.size() == 12);
    for (const auto& pagina : paginas)
        CHECK_MESSAGE(Leer(Referencia() / pagina.archivo) == pagina.texto,
                      pagina.archivo << " is out of date: run `make docs`");
    const auto hay = std::distance(std::filesystem::directory_iterator(Referencia()),
                                   std::filesystem::directory_iterator());
    CHECK(hay == static_cast<std::ptrdiff_t>(paginas.size()));
}

TEST_CASE("The assembly that the manual names has the component's version") {
    const std::string pagina = Leer(Referencia().parent_path() / "cpp.md");
    CHECK(Contiene(pagina, "name=\"Pincela\" version=\"" PINCELA_VERSION "\""));
}

TEST_CASE("The reference tells a new control's value apart from that of a missing key") {
    const auto paginas = pincela::manual::Paginas();
    const std::string& boton = Texto(paginas, "Botonazo.md");
    CHECK(Contiene(boton, "| `RelY` | Single | Apariencia | 1 |"));
    CHECK(Contiene(boton, "| `RelY` | 1.5 | 1.5 |"));
    CHECK(Contiene(boton, "| `MouseIcon` | ninguno | nunca se guarda |"));
    CHECK(Contiene(boton, "| `ColorFondo` | &H8000000F | &H8000000F |"));
    const std::string& caja = Texto(paginas, "Tbox.md");
    CHECK(Contiene(caja, "| Izq_Sup (0) |"));
    CHECK(Contiene(caja, "| `AlinTBox` | Der_Med (7) | Der_Med (7) |"));
    CHECK(Contiene(caja, "| `EfectoBoton` | no se lee | 0 |"));
}

TEST_CASE("The reference writes calls with their optional parts, and events with their arguments") {
    const auto paginas = pincela::manual::Paginas();
    CHECK(Contiene(Texto(paginas, "Efectos.md"),
                   "`DevColor(color As Long, [DColor As ColoresRGB = -1], [Simple As Variant = "
                   "False])` devuelve Integer"));
    CHECK(Contiene(Texto(paginas, "Botonazo.md"), "`Validate(Cancel As Boolean)`"));
}
