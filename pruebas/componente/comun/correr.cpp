#include "pruebas/componente/comun/correr.h"

namespace publicado {

// Into a file and not through a pipe, whose end would wait for whatever the program started and
// left behind: the first window of a session brings up the desktop.
Corrida Correr(std::wstring orden) {
    Corrida corrida;
    SECURITY_ATTRIBUTES heredable{sizeof heredable, nullptr, TRUE};
    wchar_t carpeta[MAX_PATH], ruta[MAX_PATH];
    GetTempPathW(MAX_PATH, carpeta);
    GetTempFileNameW(carpeta, L"sal", 0, ruta);
    Manejador salida, proceso, hilo;
    salida.h = CreateFileW(ruta, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                           &heredable, CREATE_ALWAYS, FILE_ATTRIBUTE_TEMPORARY, nullptr);
    STARTUPINFOW inicio{};
    inicio.cb = sizeof inicio;
    inicio.dwFlags = STARTF_USESTDHANDLES;
    inicio.hStdOutput = inicio.hStdError = salida.h;
    PROCESS_INFORMATION info{};
    if (CreateProcessW(nullptr, orden.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                       nullptr, &inicio, &info)) {
        proceso.h = info.hProcess;
        hilo.h = info.hThread;
        WaitForSingleObject(proceso.h, INFINITE);
        DWORD codigo = 0;
        GetExitCodeProcess(proceso.h, &codigo);
        corrida.codigo = static_cast<int>(codigo);
        SetFilePointer(salida.h, 0, nullptr, FILE_BEGIN);
        char trozo[512];
        for (DWORD leidos = 0; ReadFile(salida.h, trozo, sizeof trozo, &leidos, nullptr) && leidos;)
            corrida.salida.append(trozo, leidos);
    }
    salida.Cerrar();
    DeleteFileW(ruta);
    return corrida;
}

} // namespace publicado
