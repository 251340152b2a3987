// The list at the side that shows what the controls tell.
#pragma once

#include "anfitrion/sumidero_eventos.h"

#include <windows.h>

#include <string>

namespace galeria {

/// A list box with one line per event; an event that repeats itself stays on its line.
class Diario {
  public:
    /// The window belongs to `padre`; coordinates in pixels.
    Diario(HWND padre, const RECT& lugar, HFONT fuente);

    HWND Ventana() const { return lista_; }
    void Anotar(const std::wstring& control, const anfitrion::Evento& evento);
    void Vaciar();
    /// Until the page stands, nothing is written down.
    bool abierto = false;

  private:
    static constexpr int Limite = 500;

    HWND lista_;
    std::wstring ultimo_; ///< control and event of the last line
    int repetido_ = 0;
};

} // namespace galeria
