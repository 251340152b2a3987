// The functions that a loaded module calls in others, taken over one by one.
#pragma once

#include <windows.h>

#include <vector>

namespace memoria {

/// One function taken over: by its exported name, what is called in its place, and where to keep
/// the address that was there before.
struct Desviada {
    const char* nombre;
    void* nueva;
    void** original;
};

/// While it lives, the module's calls of those functions go elsewhere; calls from other modules
/// don't. The module has to stay loaded as long.
class Desvio {
  public:
    Desvio(HMODULE modulo, const std::vector<Desviada>& desviadas);
    Desvio(const Desvio&) = delete;
    Desvio& operator=(const Desvio&) = delete;
    ~Desvio();

    /// How many of them the module calls at all.
    int Cuantas() const { return static_cast<int>(cambios_.size()); }

  private:
    struct Cambio {
        void** lugar;
        void* antes;
    };
    static void Escribir(void** lugar, void* valor);

    std::vector<Cambio> cambios_;
};

} // namespace memoria
