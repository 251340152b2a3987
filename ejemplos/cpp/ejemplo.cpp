// ejemplo FORM [--guardar FILE]: shows a form kept as text; with --guardar, writes it again and
// ends. The title tells which button was pressed last.
#include "anfitrion/fichero_texto.h"
#include "anfitrion/formulario_texto.h"

#include <shellapi.h>

#include <cstdio>
#include <stdexcept>
#include <vector>

namespace {

using namespace anfitrion;

int Correr(const std::vector<std::wstring>& argumentos) {
    const bool guardar = argumentos.size() == 3 && argumentos[1] == L"--guardar";
    if (argumentos.size() != 1 && !guardar)
        throw std::runtime_error("uso: ejemplo FORMULARIO [--guardar ARCHIVO]");
    OpcionesFormulario opciones;
    opciones.titulo = L"Ejemplo de Pincela";
    opciones.visible = false;
    Formulario forma(opciones);
    LeerFormulario(forma, Componente::DeRegistro(), LeerTexto(argumentos[0]));
    if (guardar) {
        EscribirTexto(argumentos[2], EscribirFormulario(forma));
        return 0;
    }
    for (const auto& control : forma.Controles())
        control->Conectar([&forma, nombre = control->Nombre()](const Evento& evento) {
            if (evento.nombre == L"Click")
                SetWindowTextW(forma.Ventana(), (L"Pulsado: " + nombre).c_str());
        });
    ShowWindow(forma.Ventana(), SW_SHOW);
    forma.Ejecutar();
    return 0;
}

std::vector<std::wstring> LeerOrden() {
    int cuantos = 0;
    LPWSTR* lista = CommandLineToArgvW(GetCommandLineW(), &cuantos);
    std::vector<std::wstring> argumentos(lista + 1, lista + cuantos);
    LocalFree(lista);
    return argumentos;
}

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    OleInitialize(nullptr);
    const std::vector<std::wstring> orden = LeerOrden();
    int salida = 1;
    try {
        salida = Correr(orden);
    } catch (const std::exception& error) {
        fprintf(stderr, "ejemplo: %s\n", error.what());
        // Nobody is there to read a window while a form is only converted.
        if (orden.size() == 1)
            MessageBoxW(nullptr, Ensanchar(error.what()).c_str(), L"Ejemplo de Pincela",
                        MB_OK | MB_ICONSTOP);
    }
    OleUninitialize();
    return salida;
}
