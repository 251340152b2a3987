// The examples that go with the component, run as they are.
#include "pruebas/componente/comun/correr.h"
#include "pruebas/componente/comun/sin_registro.h"

#include <doctest/doctest.h>

#include <cstdio>

using namespace publicado;

namespace {

std::wstring Construccion() {
    const std::wstring componente = RutaDelComponente();
    return componente.substr(0, componente.rfind(L'\\') + 1);
}
/// The builds are two folders below the sources.
std::wstring Ejemplos() {
    wchar_t ruta[MAX_PATH];
    const std::wstring relativa = Construccion() + L"..\\..\\ejemplos\\";
    return {ruta, GetFullPathNameW(relativa.c_str(), MAX_PATH, ruta, nullptr)};
}
std::wstring Citada(const std::wstring& ruta) {
    return L"\"" + ruta + L"\"";
}

std::string Leer(const std::wstring& ruta) {
    std::string texto;
    if (FILE* f = _wfopen(ruta.c_str(), L"rt")) {
        char trozo[4096];
        while (const std::size_t n = fread(trozo, 1, sizeof trozo, f))
            texto.append(trozo, n);
        fclose(f);
    }
    return texto;
}

/// The application while it shows its form; ended with the test, whatever happened.
class Aplicacion {
  public:
    Aplicacion() {
        std::wstring orden =
            Citada(Construccion() + L"ejemplo.exe") + L" " + Citada(Ejemplos() + L"formulario.txt");
        STARTUPINFOW inicio{};
        inicio.cb = sizeof inicio;
        PROCESS_INFORMATION info{};
        REQUIRE(CreateProcessW(nullptr, orden.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                               &inicio, &info));
        proceso_.h = info.hProcess;
        hilo_.h = info.hThread;
    }
    ~Aplicacion() { TerminateProcess(proceso_.h, 99); }

    /// Null when it doesn't come up.
    HWND Ventana(const wchar_t* titulo) const {
        for (int i = 0; i < 600; ++i, Sleep(50)) {
            // The form is shown when all is in its place.
            const HWND ventana = FindWindowW(nullptr, titulo);
            if (ventana && IsWindowVisible(ventana))
                return ventana;
        }
        return nullptr;
    }
    int Terminar(HWND ventana) {
        PostMessageW(ventana, WM_CLOSE, 0, 0);
        DWORD codigo = 98;
        if (WaitForSingleObject(proceso_.h, 30000) == WAIT_OBJECT_0)
            GetExitCodeProcess(proceso_.h, &codigo);
        return static_cast<int>(codigo);
    }

  private:
    Manejador proceso_, hilo_;
};

} // namespace

TEST_CASE("The script prints what its comments promise") {
    const Corrida corrida =
        Correr(L"cscript.exe //nologo " + Citada(Ejemplos() + L"guiones\\colores.vbs"));
    CHECK(corrida.salida ==
          "rojo 64\r\nverde 128\r\nazul 255\r\n&Guardar 2 3\r\nerror 13\r\nLISTO\r\n");
    CHECK(corrida.codigo == 0);
}

TEST_CASE("The application loads its form and saves the same, with nothing registered") {
    const SinRegistro nada;
    const std::wstring copia = Construccion() + L"formulario_guardado.txt";
    DeleteFileW(copia.c_str());
    const std::wstring programa = Citada(Construccion() + L"ejemplo.exe");
    const Corrida primera = Correr(programa + L" " + Citada(Ejemplos() + L"formulario.txt") +
                                   L" --guardar " + Citada(copia));
    CHECK(primera.salida == "");
    CHECK(primera.codigo == 0);
    const std::string guardado = Leer(copia);
    // What equals its default is left out.
    CHECK(guardado == "Formulario 340 80 96\n"
                      "Pincela.Botonazo Aceptar 20 20 140 40\n"
                      "  RelY = 1!\n  EstilosRell = 2\n  Caption = \"&Aceptar\"\n"
                      "  ColorDegradeN = \"16777215*13224393\"\n"
                      "  ColorDegradeS = \"16777215*16763904\"\nFin\n"
                      "Pincela.Botonazo Cancelar 180 20 140 40\n"
                      "  FocoVisible = False\n  Caption = \"&Cancelar \\\"todo\\\"\"\n"
                      "  ColorLetra = 192\nFin\n");
    const std::wstring otra = Construccion() + L"formulario_otra_vez.txt";
    CHECK(Correr(programa + L" " + Citada(copia) + L" --guardar " + Citada(otra)).codigo == 0);
    CHECK(Leer(otra) == guardado);
}

TEST_CASE("The application hears its buttons, with nothing registered") {
    const SinRegistro nada;
    Aplicacion aplicacion;
    const HWND ventana = aplicacion.Ventana(L"Ejemplo de Pincela");
    REQUIRE(ventana);
    const HWND boton = ChildWindowFromPoint(ventana, {30, 30});
    REQUIRE(boton != ventana);
    SendMessageW(boton, WM_KEYDOWN, VK_SPACE, 0);
    SendMessageW(boton, WM_KEYUP, VK_SPACE, 0);
    CHECK(aplicacion.Ventana(L"Pulsado: Aceptar") == ventana);
    CHECK(aplicacion.Terminar(ventana) == 0);
}
