// ejemplo FORM [--guardar FILE]: shows a form kept as text; with --guardar, writes it again and
// ends. The title tells which button was pressed last.
#include "ejemplos/cpp/formulario_texto.h"

#include <shellapi.h>

#include <cstdio>
#include <vector>

namespace {

using namespace anfitrion;

std::wstring Ensanchar(const std::string& bytes) {
    const int largo = static_cast<int>(bytes.size());
    std::wstring texto(bytes.size(), L'\0');
    texto.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_UTF8, 0, bytes.data(), largo, texto.data(), largo)));
    return texto;
}

std::wstring LeerUtf8(const std::wstring& ruta) {
    std::string bytes;
    FILE* f = _wfopen(ruta.c_str(), L"rb");
    if (!f)
        throw ejemplo::TextoErroneo("no se puede abrir " + Estrechar(ruta));
    char trozo[4096];
    while (const std::size_t n = fread(trozo, 1, sizeof trozo, f))
        bytes.append(trozo, n);
    fclose(f);
    return Ensanchar(bytes);
}

void EscribirUtf8(const std::wstring& ruta, const std::wstring& texto) {
    const std::string bytes = Estrechar(texto);
    FILE* f = _wfopen(ruta.c_str(), L"wb");
    const bool bien = f && fwrite(bytes.data(), 1, bytes.size(), f) == bytes.size();
    if (!f || fclose(f) != 0 || !bien)
        throw ejemplo::TextoErroneo("no se puede escribir " + Estrechar(ruta));
}

int Correr(const std::vector<std::wstring>& argumentos) {
    const bool guardar = argumentos.size() == 3 && argumentos[1] == L"--guardar";
    if (argumentos.size() != 1 && !guardar)
        throw ejemplo::TextoErroneo("uso: ejemplo FORMULARIO [--guardar ARCHIVO]");
    OpcionesFormulario opciones;
    opciones.titulo = L"Ejemplo de Pincela";
    opciones.ancho = 360;
    opciones.alto = 120;
    opciones.visible = false;
    Formulario forma(opciones);
    ejemplo::Cargar(forma, Componente::DeRegistro(), LeerUtf8(argumentos[0]));
    if (guardar) {
        EscribirUtf8(argumentos[2], ejemplo::Guardar(forma));
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
