// Several apartments with controls of their own, for as many seconds as PINCELA_HILOS_SEGUNDOS
// says.
#include "pruebas/componente/comun/publicado.h"
#include "pruebas/componente/hilos/habitante.h"

#include "pruebas/componente/vivo/recuento.h"

#include <doctest/doctest.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace hilos;

namespace {

constexpr int Cuantos = 4;
constexpr DWORD Holgura = 120'000; ///< milliseconds for the last turn of a busy machine

DWORD Segundos() {
    const char* dicho = std::getenv("PINCELA_HILOS_SEGUNDOS");
    const int segundos = dicho ? std::atoi(dicho) : 0;
    return static_cast<DWORD>(segundos > 0 ? segundos : 4);
}

/// Where a thread ended that should not have, by the file and the place in it.
LONG WINAPI AlCaer(EXCEPTION_POINTERS* datos) {
    auto* const lugar = static_cast<char*>(datos->ExceptionRecord->ExceptionAddress);
    HMODULE modulo = nullptr;
    char ruta[MAX_PATH] = "?";
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       lugar, &modulo);
    GetModuleFileNameA(modulo, ruta, MAX_PATH);
    std::printf("exception %lx in %s at %lx\n", datos->ExceptionRecord->ExceptionCode, ruta,
                static_cast<unsigned long>(lugar - reinterpret_cast<char*>(modulo)));
    std::fflush(stdout);
    return EXCEPTION_CONTINUE_SEARCH;
}

/// Four apartments at once; how many turns they did together.
long Convivir(const Vistas& modelos, DWORD milisegundos) {
    std::atomic<long> vueltas{0};
    const ULONGLONG fin = GetTickCount64() + milisegundos;
    std::vector<std::unique_ptr<Hilo>> hilos;
    for (unsigned i = 0; i < Cuantos; ++i)
        hilos.push_back(std::make_unique<Hilo>([&, i](Faltas& faltas) {
            Habitante habitante(i, faltas);
            do {
                habitante.Vuelta(modelos);
                ++vueltas;
            } while (GetTickCount64() < fin && faltas.empty());
        }));
    for (const auto& hilo : hilos)
        hilo->Empezar();
    for (const auto& hilo : hilos) {
        REQUIRE(hilo->Esperar(milisegundos + Holgura));
        for (const std::string& falta : hilo->LasFaltas())
            FAIL_CHECK(falta);
    }
    return vueltas;
}

} // namespace

TEST_CASE("Four apartments with controls of all kinds do not notice each other") {
    SetUnhandledExceptionFilter(&AlCaer);
    OleInitialize(nullptr);
    const auto componente = Componente::DeFichero(publicado::RutaDelComponente());
    Vistas modelos;
    {
        SetCursorPos(1000, 700);
        Faltas faltas;
        Habitante solo(0, faltas);
        modelos = solo.Retratar();
        REQUIRE(solo.Retratar() == modelos);
        solo.Vuelta(modelos);
        REQUIRE(faltas == Faltas{});
        for (const Vista& una : modelos)
            REQUIRE(una.imagen.Colores() > 2);
    }
    Convivir(modelos, 1);
    const int gdi = vivo::ObjetosGdi();
    const long vueltas = Convivir(modelos, Segundos() * 1000);
    std::printf("%ld turns in %d apartments, GDI %d -> %d\n", vueltas, Cuantos, gdi,
                vivo::ObjetosGdi());
    CHECK(vueltas >= Cuantos);
    CHECK(componente.PuedeDescargarse());
    // The platform keeps some objects of its own for each thread.
    CHECK(vivo::ObjetosGdi() < gdi + 100);
}
