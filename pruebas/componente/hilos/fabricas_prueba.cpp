// Factories, the count that keeps the file loaded and the type library, from several threads.
#include "anfitrion/componente.h"
#include "anfitrion/tardio.h"
#include "pruebas/componente/comun/modulo.h"
#include "pruebas/componente/hilos/hilo.h"

#include <doctest/doctest.h>

#include <atomic>
#include <memory>

using namespace anfitrion;
using namespace hilos;
using publicado::Clases;

namespace {

constexpr int Cuantos = 4;
constexpr DWORD Plazo = 120'000;

void Esperar(std::vector<std::unique_ptr<Hilo>>& hilos) {
    for (const auto& hilo : hilos)
        hilo->Empezar();
    for (const auto& hilo : hilos) {
        REQUIRE(hilo->Esperar(Plazo));
        for (const std::string& falta : hilo->LasFaltas())
            FAIL_CHECK(falta);
    }
}

} // namespace

TEST_CASE("The last object goes in one thread while another one makes the next") {
    OleInitialize(nullptr);
    const publicado::Modulo modulo;
    std::atomic<int> trabajando{Cuantos};
    std::vector<std::unique_ptr<Hilo>> hilos;
    for (int i = 0; i < Cuantos; ++i)
        hilos.push_back(std::make_unique<Hilo>([&, i](Faltas& faltas) {
            for (int vuelta = 0; vuelta < 150; ++vuelta) {
                const auto& clase = Clases[static_cast<std::size_t>(vuelta + i) % Clases.size()];
                Puntero<IClassFactory> fabrica;
                Comprobar(modulo.DarClase(publicado::Guid(clase.clase), IID_IClassFactory,
                                          fabrica.RecibirVoid()),
                          "DllGetClassObject");
                Puntero<IDispatch> objeto;
                Comprobar(fabrica->CreateInstance(nullptr, IID_IDispatch, objeto.RecibirVoid()),
                          "CreateInstance");
                fabrica.Soltar();
                Puntero<ITypeInfo> tipo;
                Comprobar(objeto->GetTypeInfo(0, 0, tipo.Recibir()), "GetTypeInfo");
                if (modulo.PuedeDescargarse() == S_OK)
                    faltas.push_back("the file can go with an object alive");
                tipo.Soltar();
                if (objeto.Soltar() != 0)
                    faltas.push_back("an object stays behind");
            }
            --trabajando;
        }));
    Esperar(hilos);
    CHECK(trabajando == 0);
    CHECK(modulo.PuedeDescargarse() == S_OK);
}

TEST_CASE("A thread older than the file may fail in it") {
    OleInitialize(nullptr);
    const HANDLE cargado = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::unique_ptr<publicado::Modulo> modulo;
    Hilo viejo([&](Faltas& faltas) {
        WaitForSingleObject(cargado, INFINITE);
        for (int vuelta = 0; vuelta < 50; ++vuelta) {
            Puntero<IClassFactory> fabrica;
            Comprobar(modulo->DarClase(publicado::Guid(publicado::ClaseDe(L"Botonazo").clase),
                                       IID_IClassFactory, fabrica.RecibirVoid()),
                      "DllGetClassObject");
            Puntero<IDispatch> boton;
            Comprobar(fabrica->CreateInstance(nullptr, IID_IDispatch, boton.RecibirVoid()),
                      "CreateInstance");
            try {
                Poner(boton.get(), L"AnchoBorde", L"ancho");
                faltas.push_back("a word is no width");
            } catch (const FalloCom& fallo) {
                if (fallo.estado != DISP_E_TYPEMISMATCH)
                    faltas.push_back("another status");
            }
        }
    });
    viejo.Empezar();
    Sleep(50);
    modulo = std::make_unique<publicado::Modulo>();
    SetEvent(cargado);
    REQUIRE(viejo.Esperar(Plazo));
    CHECK(viejo.LasFaltas() == Faltas{});
    CloseHandle(cargado);
}
