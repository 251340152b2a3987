#include "pruebas/componente/memoria/fallos.h"

#include <commctrl.h>
#include <ocidl.h>
#include <ole2.h>
#include <olectl.h>

#include <cstdlib>
#include <cstring>
#include <deque>
#include <map>
#include <type_traits>

namespace memoria {

namespace {

struct Bloque {
    std::size_t bytes;
    long numero;
};

struct Estado {
    bool armado = false;
    Escasez que = Escasez::Memoria;
    int cual = 0;
    bool todos = false;
    int pedidos = 0;
    int negados = 0;
    long numero = 0;
    std::map<void*, Bloque> vivos;
    std::map<UINT_PTR, TIMERPROC> relojes;
    std::size_t retenidos = 0;
    std::deque<void*> envenenados;
};

Estado& El() {
    static Estado& estado = *new Estado; // the module gives blocks back until the process ends
    return estado;
}

bool Negar(Escasez que) {
    Estado& e = El();
    if (!e.armado || que != e.que)
        return false;
    ++e.pedidos;
    const bool no = e.cual > 0 && (e.pedidos == e.cual || (e.todos && e.pedidos > e.cual));
    e.negados += no;
    if (no)
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return no;
}

// The heap, which is the C library's.

using Malloc = void* (*)(std::size_t);
using Calloc = void* (*)(std::size_t, std::size_t);
using Realloc = void* (*)(void*, std::size_t);
using Free = void (*)(void*);

Malloc mallocReal;
Calloc callocReal;
Realloc reallocReal;
Free freeReal;

void* Anotar(void* bloque, std::size_t bytes) {
    if (bloque)
        El().vivos[bloque] = {bytes, ++El().numero};
    return bloque;
}
void Borrar(void* bloque) {
    if (bloque)
        El().vivos.erase(bloque);
}

void* MallocFalso(std::size_t bytes) {
    return Negar(Escasez::Memoria) ? nullptr : Anotar(mallocReal(bytes), bytes);
}
void* CallocFalso(std::size_t cuantos, std::size_t bytes) {
    return Negar(Escasez::Memoria) ? nullptr : Anotar(callocReal(cuantos, bytes), cuantos * bytes);
}
void* ReallocFalso(void* bloque, std::size_t bytes) {
    if (Negar(Escasez::Memoria))
        return nullptr;
    void* nuevo = reallocReal(bloque, bytes);
    if (nuevo || bytes == 0)
        Borrar(bloque);
    return Anotar(nuevo, bytes);
}
void FreeFalso(void* bloque) {
    Estado& e = El();
    const auto uno = e.retenidos ? e.vivos.find(bloque) : e.vivos.end();
    if (uno == e.vivos.end()) {
        Borrar(bloque);
        return freeReal(bloque);
    }
    std::memset(bloque, 0xDD, uno->second.bytes);
    e.vivos.erase(uno);
    e.envenenados.push_back(bloque);
    if (e.envenenados.size() > e.retenidos) {
        freeReal(e.envenenados.front());
        e.envenenados.pop_front();
    }
}

// The platform's functions: each fails as it does when it can't get what it needs.

template <class F, Escasez Que, int Cual>
struct Falsa;

template <class R, class... A, Escasez Que, int Cual>
struct Falsa<R(WINAPI*)(A...), Que, Cual> {
    static inline R(WINAPI* real)(A...) = nullptr;
    static R WINAPI Llamar(A... a) {
        if (!Negar(Que))
            return real(a...);
        if constexpr (std::is_same_v<R, HRESULT>)
            return E_OUTOFMEMORY;
        else
            return R{};
    }
};

template <class F, Escasez Que, int Cual>
Desviada Fallida(const char* nombre) {
    using Una = Falsa<F, Que, Cual>;
    return {nombre, reinterpret_cast<void*>(&Una::Llamar), reinterpret_cast<void**>(&Una::real)};
}

#define MEMORIA(f) Fallida<decltype(&f), Escasez::Memoria, __LINE__>(#f)
#define MANIJA(f) Fallida<decltype(&f), Escasez::Manijas, __LINE__>(#f)

// Timers are remembered too, to be run when the test likes.

UINT_PTR(WINAPI* setTimerReal)(HWND, UINT_PTR, UINT, TIMERPROC);
BOOL(WINAPI* killTimerReal)(HWND, UINT_PTR);

UINT_PTR WINAPI SetTimerFalso(HWND ventana, UINT_PTR numero, UINT plazo, TIMERPROC accion) {
    if (Negar(Escasez::Manijas))
        return 0;
    const UINT_PTR hecho = setTimerReal(ventana, numero, plazo, accion);
    if (hecho && !ventana)
        El().relojes[hecho] = accion;
    return hecho;
}
BOOL WINAPI KillTimerFalso(HWND ventana, UINT_PTR numero) {
    if (!ventana)
        El().relojes.erase(numero);
    return killTimerReal(ventana, numero);
}

template <class F>
Desviada Mia(const char* nombre, F* mia, F** real) {
    return {nombre, reinterpret_cast<void*>(mia), reinterpret_cast<void**>(real)};
}

std::vector<Desviada> Todas() {
    return {Mia("malloc", &MallocFalso, &mallocReal),
            Mia("calloc", &CallocFalso, &callocReal),
            Mia("realloc", &ReallocFalso, &reallocReal),
            Mia("free", &FreeFalso, &freeReal),
            Mia("SetTimer", &SetTimerFalso, &setTimerReal),
            Mia("KillTimer", &KillTimerFalso, &killTimerReal),
            MEMORIA(CoTaskMemAlloc),
            MEMORIA(SysAllocString),
            MEMORIA(SysAllocStringLen),
            MEMORIA(CoCreateInstance),
            MEMORIA(CreateDataAdviseHolder),
            MEMORIA(CreateErrorInfo),
            MEMORIA(CreateOleAdviseHolder),
            MEMORIA(CreateStreamOnHGlobal),
            MEMORIA(LoadTypeLibEx),
            MEMORIA(OleCreateFontIndirect),
            MEMORIA(OleLoadPicture),
            MEMORIA(VariantChangeType),
            MEMORIA(VariantCopyInd),
            MANIJA(CreateAcceleratorTableW),
            MANIJA(CreateCompatibleBitmap),
            MANIJA(CreateCompatibleDC),
            MANIJA(CreateDIBSection),
            MANIJA(CreateDialogIndirectParamW),
            MANIJA(CreateEnhMetaFileW),
            MANIJA(CreateFontIndirectW),
            MANIJA(CreatePen),
            MANIJA(CreateRoundRectRgn),
            MANIJA(CreateSolidBrush),
            MANIJA(CreateWindowExW),
            MANIJA(ExtCreatePen),
            MANIJA(ExtCreateRegion),
            MANIJA(GetDC),
            MANIJA(GetIconInfo),
            MANIJA(RegisterClassExW),
            MANIJA(SetWindowSubclass)};
}

} // namespace

Fallos::Fallos(HMODULE modulo) : desvio_(modulo, Todas()) {}

void Fallos::Armar(Escasez que, int cual, bool todos) {
    Estado& e = El();
    e.armado = true;
    e.que = que;
    e.cual = cual;
    e.todos = todos;
    e.pedidos = e.negados = 0;
}

bool Fallos::Desarmar() {
    El().armado = false;
    return El().negados > 0;
}

long Fallos::BloquesVivos() {
    return static_cast<long>(El().vivos.size());
}

void Fallos::Envenenar(std::size_t cuantos) {
    El().retenidos = cuantos;
}

void Fallos::DarTics() {
    const auto copia = El().relojes;
    for (const auto& [numero, accion] : copia)
        if (El().relojes.count(numero))
            accion(nullptr, WM_TIMER, numero, GetTickCount());
}

} // namespace memoria
