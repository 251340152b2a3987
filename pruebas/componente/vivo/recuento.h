// What this process holds at the moment: drawing objects, windows, heap.
#pragma once

#include <windows.h>

#include <vector>

namespace vivo {

/// Live handles of the drawing system.
inline int ObjetosGdi() {
    int cuantos = 0;
    for (unsigned i = 1; i < 0x10000; ++i) {
        const auto manija = reinterpret_cast<HGDIOBJ>(static_cast<UINT_PTR>(i));
        cuantos += GetObjectType(manija) != 0;
    }
    return cuantos;
}

inline BOOL CALLBACK ContarUna(HWND, LPARAM cuenta) {
    ++*reinterpret_cast<int*>(cuenta);
    return TRUE;
}
inline BOOL CALLBACK ContarConHijas(HWND ventana, LPARAM cuenta) {
    EnumChildWindows(ventana, ContarUna, cuenta);
    return ContarUna(ventana, cuenta);
}

/// Windows of this thread, the children's children included.
inline int Ventanas() {
    int cuantas = 0;
    EnumThreadWindows(GetCurrentThreadId(), ContarConHijas, reinterpret_cast<LPARAM>(&cuantas));
    return cuantas;
}

struct Monton {
    long bloques = 0;
    long bytes = 0;
};

/// Busy blocks of all heaps of the process.
inline Monton Memoria() {
    HANDLE montones[64];
    const DWORD cuantos = GetProcessHeaps(64, montones);
    Monton total;
    for (DWORD i = 0; i < cuantos && i < 64; ++i) {
        PROCESS_HEAP_ENTRY entrada{};
        HeapLock(montones[i]);
        while (HeapWalk(montones[i], &entrada))
            if (entrada.wFlags & PROCESS_HEAP_ENTRY_BUSY) {
                ++total.bloques;
                total.bytes += static_cast<long>(entrada.cbData);
            }
        HeapUnlock(montones[i]);
    }
    return total;
}

/// Processor time of this process, in milliseconds.
inline double TiempoDeProcesador() {
    FILETIME nacio, murio, nucleo, usuario;
    GetProcessTimes(GetCurrentProcess(), &nacio, &murio, &nucleo, &usuario);
    const auto largo = [](const FILETIME& t) {
        return (static_cast<ULONGLONG>(t.dwHighDateTime) << 32) | t.dwLowDateTime;
    };
    return static_cast<double>(largo(nucleo) + largo(usuario)) / 10000.0;
}

} // namespace vivo
