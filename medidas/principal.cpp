// Runs every measurement; fails when one is over its limit.
#include "medidas/medida.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace medidas {

namespace {

double Tiempo(const std::function<void()>& trabajo, int repeticiones) {
    LARGE_INTEGER antes, despues;
    QueryPerformanceCounter(&antes);
    for (int i = 0; i < repeticiones; ++i)
        trabajo();
    QueryPerformanceCounter(&despues);
    return static_cast<double>(despues.QuadPart - antes.QuadPart);
}

double Mediana(std::vector<double> valores) {
    const auto medio = valores.begin() + static_cast<std::ptrdiff_t>(valores.size() / 2);
    std::nth_element(valores.begin(), medio, valores.end());
    return *medio;
}

} // namespace

double Razon(const std::function<void()>& medido, const std::function<void()>& vara,
             int repeticiones, int rondas) {
    std::vector<double> deMedido, deVara;
    Tiempo(medido, repeticiones);
    Tiempo(vara, repeticiones);
    for (int i = 0; i < rondas; ++i) {
        deMedido.push_back(Tiempo(medido, repeticiones));
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

int main() {
    OleInitialize(nullptr);
    bool bien = medidas::MedirDegrade();
    bien = medidas::MedirInvoke() && bien;
    bien = medidas::MedirTamanio() && bien;
    OleUninitialize();
    return bien ? 0 : 1;
}
