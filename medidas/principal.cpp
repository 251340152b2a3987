// Runs every measurement, or those named; fails when one is over its limit.
#include "medidas/medida.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace medidas {

namespace {

double Tiempo(const Lado& lado, int repeticiones) {
    lado.preparar();
    LARGE_INTEGER antes, despues;
    QueryPerformanceCounter(&antes);
    for (int i = 0; i < repeticiones; ++i)
        lado.hacer();
    QueryPerformanceCounter(&despues);
    lado.recoger();
    return static_cast<double>(despues.QuadPart - antes.QuadPart);
}

const struct {
    const char* nombre;
    bool (*medir)();
} Medidas[] = {
    {"degrade", MedirDegrade}, {"pintar", MedirPintar},
    {"invoke", MedirInvoke},   {"crear", MedirCrear},
    {"cargar", MedirCargar},   {"memoria", MedirMemoria},
    {"tamanio", MedirTamanio}, {"transparencia", MedirTransparencia},
};

bool Pedida(const char* nombre, int cuantos, char** nombres) {
    return cuantos == 0 || std::any_of(nombres, nombres + cuantos, [nombre](const char* uno) {
               return std::strcmp(uno, nombre) == 0;
           });
}

bool Correr(const char* nombre, bool (*medir)()) {
    try {
        return medir();
    } catch (const std::exception& error) {
        std::printf("medida %s failed: %s\n", nombre, error.what());
        return false;
    }
}

} // namespace

double Mediana(std::vector<double> valores) {
    const auto medio = valores.begin() + static_cast<std::ptrdiff_t>(valores.size() / 2);
    std::nth_element(valores.begin(), medio, valores.end());
    return *medio;
}

double Razon(const Lado& medido, const Lado& vara, int repeticiones, int rondas) {
    std::vector<double> deMedido, deVara;
    Tiempo(medido, repeticiones);
    Tiempo(vara, repeticiones);
    // The sides take turns at going first: what one leaves in the caches the other finds.
    for (int i = 0; i < rondas; ++i) {
        if (i % 2)
            deVara.push_back(Tiempo(vara, repeticiones));
        deMedido.push_back(Tiempo(medido, repeticiones));
        if (i % 2 == 0)
            deVara.push_back(Tiempo(vara, repeticiones));
    }
    return Mediana(deMedido) / Mediana(deVara);
}

bool Informar(const std::string& nombre, double razon, double limite) {
    std::printf("medida %s ratio %.3f limit %.2f%s\n", nombre.c_str(), razon, limite,
                razon <= limite ? "" : "  OVER");
    std::fflush(stdout);
    return razon <= limite;
}

std::wstring RutaComponente() {
    wchar_t ruta[MAX_PATH];
    GetModuleFileNameW(nullptr, ruta, MAX_PATH);
    const std::wstring texto = ruta;
    return texto.substr(0, texto.find_last_of(L'\\') + 1) + L"Pincela.ocx";
}

anfitrion::Componente AbrirComponente() {
    return anfitrion::Componente::DeFichero(RutaComponente());
}

} // namespace medidas

int main(int argc, char** argv) {
    OleInitialize(nullptr);
    bool bien = true;
    for (const auto& una : medidas::Medidas)
        if (medidas::Pedida(una.nombre, argc - 1, argv + 1))
            bien = medidas::Correr(una.nombre, una.medir) && bien;
    OleUninitialize();
    return bien ? 0 : 1;
}
