// The mouse over a surface: who is told, in whose coordinates, and what makes a click.
#pragma once

#include "plataforma/windows/nucleo.h"

#include <functional>

namespace pincela::windows {

class Raton {
  public:
    explicit Raton(Nucleo& nucleo) : nucleo_(nucleo) {}

    /// Handles a mouse message of the window; false when it is none of its own. The environment
    /// may be gone afterwards.
    bool Mensaje(UINT mensaje, WPARAM w, LPARAM l);
    /// The capture went to somebody else: what was pressed is forgotten.
    void CapturaPerdida();

  private:
    enum class Paso { Baja, Mueve, Sube };
    struct Golpe {
        Paso paso;
        std::int16_t boton; // 1, 2 or 4; a set of them while moving
        std::int16_t shift;
        float x, y;
    };

    void Bajar(const Golpe& golpe);
    void Mover(const Golpe& golpe);
    void Subir(const Golpe& golpe, bool quedanBotones);
    /// Null stands for the surface; false when the environment is gone.
    bool Decir(ElementoVisual* elemento, const Golpe& golpe);
    bool DecirClick(ElementoVisual* elemento);
    OyenteRaton* OyenteDe(ElementoVisual* elemento) const;
    ElementoVisual* Vivo(ElementoVisual* elemento) const;
    ElementoVisual* Bajo(float x, float y) const;

    Nucleo& nucleo_;
    bool capturando_ = false;
    ElementoVisual* capturado_ = nullptr;
    bool izquierdoAbajo_ = false;
    // As the elements lay when the press began: a pressed caption moves under the pointer.
    FotoDeBlancos alPulsar_;
};

/// SHIFT, CTRL and ALT as notifications carry them: 1, 2 and 4; held now, or with a mouse message.
std::int16_t ShiftActual();
std::int16_t ShiftDeRaton(WPARAM w);
/// Button of a press or release: 1 left, 2 right, 4 middle, 0 for any other message.
std::int16_t BotonDeMensaje(UINT mensaje);
/// Set of the buttons held with a mouse message.
std::int16_t BotonesAbajo(WPARAM w);

} // namespace pincela::windows
