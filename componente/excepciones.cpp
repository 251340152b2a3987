// What the language needs under an exception, without asking anybody for memory. The compiler's own
// version takes it from the heap when the first exception of a thread is thrown, and ends the
// process when there is none: just then an exception that tells of it has to reach its caller. It
// also leaves that memory behind when the component is unloaded.
#include <windows.h>

#include <cxxabi.h>
#include <unwind.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <functional>

extern "C" {
extern ULONG _tls_index; // of this module, by the C runtime
extern char* _tls_start; // a word, and after it what each thread gets a copy of
}

namespace {

// Before each object stands the runtime's record of it, whose layout is the runtime's own: this is
// more than it takes up.
constexpr std::size_t Cabecera =
    (2 * alignof(std::max_align_t) + 12 * sizeof(void*) + sizeof(_Unwind_Exception) + 15) / 16 * 16;

struct alignas(16) Hueco {
    char bytes[Cabecera + 64];
};

// Handlers rarely stand deeper in one another than this, and what is thrown here is small.
constexpr std::size_t Cuantos = 16;
Hueco huecos[Cuantos];
volatile LONG ocupados[Cuantos];

void* TomarHueco() {
    for (std::size_t i = 0; i < Cuantos; ++i)
        if (InterlockedCompareExchange(&ocupados[i], 1, 0) == 0)
            return huecos[i].bytes;
    return nullptr;
}

bool DejarHueco(void* objeto) {
    const auto* hueco = reinterpret_cast<Hueco*>(static_cast<char*>(objeto) - Cabecera);
    if (std::less<>()(hueco, huecos) || !std::less<>()(hueco, huecos + Cuantos))
        return false;
    InterlockedExchange(&ocupados[hueco - huecos], 0);
    return true;
}

} // namespace

namespace __cxxabiv1 {

/// Exceptions being handled by a thread, and how many are on their way; the layout is agreed upon.
struct __cxa_eh_globals {
    void* caughtExceptions;
    unsigned int uncaughtExceptions;
};

namespace {

// The system itself makes the copies, when a thread begins or the component is loaded.
__attribute__((section(".tls$Pincela"))) __cxa_eh_globals deCadaHilo{};

__cxa_eh_globals* DeEsteHilo() {
    char** copias; // the thread's table of them, one for each module
#ifdef _WIN64
    __asm__("movq %%gs:0x58, %0" : "=r"(copias));
#else
    __asm__("movl %%fs:0x2C, %0" : "=r"(copias));
#endif
    const std::ptrdiff_t lugar =
        reinterpret_cast<char*>(&deCadaHilo) - reinterpret_cast<char*>(&_tls_start + 1);
    return reinterpret_cast<__cxa_eh_globals*>(copias[_tls_index] + lugar);
}

} // namespace

extern "C" {

void* __cxa_allocate_exception(std::size_t bytes) noexcept {
    void* memoria = Cabecera + bytes <= sizeof(Hueco) ? TomarHueco() : nullptr;
    if (!memoria)
        memoria = std::malloc(Cabecera + bytes);
    if (!memoria)
        std::terminate();
    std::memset(memoria, 0, Cabecera);
    return static_cast<char*>(memoria) + Cabecera;
}

void __cxa_free_exception(void* objeto) noexcept {
    if (!DejarHueco(objeto))
        std::free(static_cast<char*>(objeto) - Cabecera);
}

__cxa_eh_globals* __cxa_get_globals() noexcept {
    return DeEsteHilo();
}
__cxa_eh_globals* __cxa_get_globals_fast() noexcept {
    return DeEsteHilo();
}

// Static variables of functions: the first word of the guard says that the variable is made, the
// second that somebody is making it.

int __cxa_guard_acquire(__guard* guarda) {
    auto* hecha = reinterpret_cast<char*>(guarda);
    auto* haciendola = reinterpret_cast<volatile LONG*>(guarda) + 1;
    while (!__atomic_load_n(hecha, __ATOMIC_ACQUIRE)) {
        if (InterlockedCompareExchange(haciendola, 1, 0) != 0) {
            Sleep(1);
            continue;
        }
        if (!__atomic_load_n(hecha, __ATOMIC_ACQUIRE))
            return 1;
        InterlockedExchange(haciendola, 0);
    }
    return 0;
}

void __cxa_guard_release(__guard* guarda) noexcept {
    __atomic_store_n(reinterpret_cast<char*>(guarda), 1, __ATOMIC_RELEASE);
    __cxa_guard_abort(guarda);
}

void __cxa_guard_abort(__guard* guarda) noexcept {
    InterlockedExchange(reinterpret_cast<volatile LONG*>(guarda) + 1, 0);
}

} // extern "C"

} // namespace __cxxabiv1
