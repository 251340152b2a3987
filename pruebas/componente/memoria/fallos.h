// A machine that runs out of memory, or of drawing objects, exactly when a test says so.
#pragma once

#include "pruebas/componente/memoria/desvio.h"

#include <windows.h>

#include <vector>

namespace memoria {

/// What is refused.
enum class Escasez {
    Memoria, ///< heap, automation strings, streams, fonts and other objects made of memory
    Manijas, ///< drawing objects, windows, timers, accelerator tables
};

/// Counts what the module asks for and refuses the n-th request. One at a time.
class Fallos {
  public:
    explicit Fallos(HMODULE modulo);
    /// Whether it found the calls that it counts.
    bool Contando() const { return desvio_.Cuantas() > 30; }

    /// From now on: requests of that kind are counted from 1, and the `cual`-th is refused; with
    /// `todos`, each one that follows too. 0 refuses none.
    static void Armar(Escasez que, int cual, bool todos = false);
    /// Ends that; true when a request was refused.
    static bool Desarmar();
    /// Blocks of the heap that the module asked for and hasn't given back.
    static long BloquesVivos();
    /// From now on: what the module gives back is made unusable, and the heap gets it only after
    /// `cuantos` more blocks, so that whoever still uses it is seen. Keeps them until the end.
    static void Envenenar(std::size_t cuantos);
    /// Runs what the module's timers without a window would run now.
    static void DarTics();

  private:
    Desvio desvio_;
};

} // namespace memoria
