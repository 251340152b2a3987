// Goes through the inputs kept in a folder: those that start the fuzzer, and those that it found.
#include "pruebas/difusas/difusa.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

int main(int cuantos, char** argumentos) {
    if (cuantos != 2)
        return 2;
    int leidas = 0;
    for (const auto& entrada : std::filesystem::directory_iterator(argumentos[1])) {
        std::ifstream archivo(entrada.path(), std::ios::binary);
        const std::vector<char> bytes((std::istreambuf_iterator<char>(archivo)), {});
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++leidas;
    }
    std::printf("%d inputs\n", leidas);
    return leidas ? 0 : 1;
}
