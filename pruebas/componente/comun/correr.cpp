#include "pruebas/componente/comun/correr.h"

namespace publicado {

Corrida Correr(std::wstring orden) {
    Corrida corrida;
    SECURITY_ATTRIBUTES heredable{sizeof heredable, nullptr, TRUE};
    Manejador leer, escribir, proceso, hilo;
    if (!CreatePipe(&leer.h, &escribir.h, &heredable, 0))
        return corrida;
    SetHandleInformation(leer.h, HANDLE_FLAG_INHERIT, 0);
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

} // namespace publicado
