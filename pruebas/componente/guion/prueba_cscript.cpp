// A script run by the script host that comes with the system.
#include "pruebas/componente/comun/publicado.h"

#include <doctest/doctest.h>

#include <string>

namespace {

/// Output of one run of the script host; the exit code is -1 when it could not be started.
struct Corrida {
    int codigo = -1;
    std::string salida;
};

struct Manejador {
    HANDLE h = nullptr;
    Manejador() = default;
    Manejador(const Manejador&) = delete;
    Manejador& operator=(const Manejador&) = delete;
    ~Manejador() { Cerrar(); }
    void Cerrar() {
        if (h)
            CloseHandle(h);
        h = nullptr;
    }
};

Corrida Correr(const std::wstring& guion) {
    Corrida corrida;
    SECURITY_ATTRIBUTES heredable{sizeof heredable, nullptr, TRUE};
    Manejador leer, escribir, proceso, hilo;
    if (!CreatePipe(&leer.h, &escribir.h, &heredable, 0))
        return corrida;
    SetHandleInformation(leer.h, HANDLE_FLAG_INHERIT, 0);
    std::wstring orden = L"cscript.exe //nologo \"" + guion + L"\"";
    STARTUPINFOW inicio{};
    inicio.cb = sizeof inicio;
    inicio.dwFlags = STARTF_USESTDHANDLES;
    inicio.hStdOutput = inicio.hStdError = escribir.h;
    PROCESS_INFORMATION info{};
    if (!CreateProcessW(nullptr, orden.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                        nullptr, &inicio, &info))
        return corrida;
    proceso.h = info.hProcess;
    hilo.h = info.hThread;
    escribir.Cerrar();
    char trozo[512];
    for (DWORD leidos = 0; ReadFile(leer.h, trozo, sizeof trozo, &leidos, nullptr) && leidos;)
        corrida.salida.append(trozo, leidos);
    WaitForSingleObject(proceso.h, INFINITE);
    DWORD codigo = 0;
    GetExitCodeProcess(proceso.h, &codigo);
    corrida.codigo = static_cast<int>(codigo);
    return corrida;
}

} // namespace

TEST_CASE("A script uses the drawing effects through the registered class") {
    const std::wstring componente = publicado::RutaDelComponente();
    const Corrida corrida =
        Correr(componente.substr(0, componente.rfind(L'\\')) + L"\\guiones\\efectos.vbs");
    CHECK(corrida.salida == "TODO BIEN\r\n");
    CHECK(corrida.codigo == 40);
}
