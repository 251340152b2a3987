// A control of one apartment in the hands of another.
#include "anfitrion/tardio.h"
#include "pruebas/componente/comun/interfaz_boton.h"
#include "pruebas/componente/comun/publicado.h"
#include "pruebas/componente/hilos/hilo.h"

#include <doctest/doctest.h>

using namespace anfitrion;
using namespace hilos;
using publicado::_Botonazo;

namespace {

constexpr DWORD Plazo = 120'000;

/// Wine 8 looks for the library that makes a proxy under the neutral locale alone, wherever it is
/// registered; for the length of the test it stands there too.
class BibliotecaNeutral {
  public:
    BibliotecaNeutral() {
        HKEY sistema = nullptr;
        RegCreateKeyExW(HKEY_CLASSES_ROOT, (rama_ + Sistema).c_str(), 0, nullptr, 0, KEY_WRITE,
                        nullptr, &sistema, nullptr);
        const std::wstring ruta = publicado::RutaDelComponente();
        RegSetValueExW(sistema, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(ruta.c_str()),
                       static_cast<DWORD>((ruta.size() + 1) * sizeof(wchar_t)));
        RegCloseKey(sistema);
    }
    BibliotecaNeutral(const BibliotecaNeutral&) = delete;
    BibliotecaNeutral& operator=(const BibliotecaNeutral&) = delete;
    ~BibliotecaNeutral() {
        RegDeleteKeyW(HKEY_CLASSES_ROOT, (rama_ + Sistema).c_str());
        RegDeleteKeyW(HKEY_CLASSES_ROOT, rama_.c_str());
    }

  private:
    static constexpr const wchar_t* Sistema = sizeof(void*) == 8 ? L"\\win64" : L"\\win32";
    const std::wstring rama_ = L"TypeLib\\" + std::wstring(publicado::Biblioteca) + L"\\1.0\\0";
};

} // namespace

TEST_CASE("A control that goes to another apartment is reached through its type library") {
    OleInitialize(nullptr);
    // Proxies are made from what is registered.
    const BibliotecaNeutral neutral;
    const auto componente = Componente::DeRegistro();
    const auto boton = publicado::Crear(componente, L"Botonazo").Como<IDispatch>();
    const GUID dual = publicado::Guid(publicado::ClaseDe(L"Botonazo").interfaz);
    Puntero<IStream> tardio, temprano;
    REQUIRE(CoMarshalInterThreadInterfaceInStream(IID_IDispatch, boton.get(), tardio.Recibir()) ==
            S_OK);
    REQUIRE(CoMarshalInterThreadInterfaceInStream(dual, boton.get(), temprano.Recibir()) == S_OK);
    const DWORD casa = GetCurrentThreadId();
    DWORD donde = 0;
    Hilo otro([&](Faltas& faltas) {
        const auto exigir = [&](bool cierto, const char* que) {
            if (!cierto)
                faltas.push_back(que);
        };
        Puntero<IDispatch> lejano;
        Comprobar(
            CoGetInterfaceAndReleaseStream(tardio.Separar(), IID_IDispatch, lejano.RecibirVoid()),
            "CoGetInterfaceAndReleaseStream");
        exigir(lejano.get() != boton.get(), "the object itself came");
        Poner(lejano.get(), L"Caption", L"desde lejos");
        exigir(Texto(Leer(lejano.get(), L"Caption")) == L"desde lejos", "Caption");
        void* crudo = nullptr;
        Comprobar(CoGetInterfaceAndReleaseStream(temprano.Separar(), dual, &crudo),
                  "CoGetInterfaceAndReleaseStream");
        const auto directo = Puntero<_Botonazo>::Adoptar(static_cast<_Botonazo*>(crudo));
        FLOAT leido = 0;
        exigir(directo->put_RelX(0.25f) == S_OK, "put_RelX");
        exigir(directo->get_RelX(&leido) == S_OK && leido == 0.25f, "get_RelX");
        donde = GetCurrentThreadId();
    });
    REQUIRE(otro.Esperar(Plazo));
    for (const std::string& falta : otro.LasFaltas())
        FAIL_CHECK(falta);
    CHECK(donde != 0);
    CHECK(donde != casa);
    CHECK(Texto(Leer(boton.get(), L"Caption")) == L"desde lejos");
}
