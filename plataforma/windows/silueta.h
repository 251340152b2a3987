// What is seen of the window of a surface.
#pragma once

#include "plataforma/windows/manijas.h"
#include "plataforma/windows/superficie_windows.h"
#include "plataforma/windows/velo.h"

#include <optional>

namespace pincela::windows {

/// The region of a surface's window: the shape that its control gives it, cut by the container's
/// clip and, of a transparent surface, no more than what is drawn on it. The container then paints
/// everything else where it is, whenever it likes and however it clips its children, and nobody has
/// to be told. Nothing is set where nothing changed.
class Silueta {
  public:
    Silueta(Nucleo& nucleo, SuperficieWindows& superficie)
        : nucleo_(nucleo), superficie_(superficie) {}
    Silueta(const Silueta&) = delete;
    Silueta& operator=(const Silueta&) = delete;

    /// Takes a copy.
    void PonForma(HRGN forma);
    /// Both in client pixels of the parent; `recorte` may be null.
    void PonRecorte(const RECT& lugar, const RECT* recorte);
    bool Recortada() const { return recorte_.has_value(); }

    /// The window is elsewhere or has another size, parent or clip.
    void Ajustar();
    /// The window was moved, shown, hidden, enabled or put in front of others.
    void SeguirVelo();
    /// What is drawn on the surface may cover other pixels now.
    void Envejecer();

    /// What is behind changed, though nobody may have painted it: the surface shows it, and so has
    /// whoever is behind to do afterwards.
    void Renovar();

    /// Around each painting: what will be drawn must be inside before, what is not drawn any more
    /// is left to the container afterwards.
    void AntesDePintar();
    void DespuesDePintar();
    /// Whether painting needs to know what is behind.
    bool PideFondo() const { return !calada_ || mezclada_ || siguiente_; }

    /// The window is gone.
    void Soltar();

  private:
    struct Puesta {
        DuenoRegion region; // as it was last set; null for none
        bool Poner(HWND ventana, DuenoRegion nueva);
    };

    DuenoRegion Base() const;
    DuenoRegion Tinta();
    bool PuedeCalarse() const;

    Nucleo& nucleo_;
    SuperficieWindows& superficie_;
    DuenoRegion forma_;
    std::optional<RECT> recorte_; // client pixels of the parent
    DuenoRegion tinta_;           // of a transparent surface: what is drawn on it
    DuenoRegion siguiente_;       // the same, once it has been painted
    bool calada_ = false;         // the window is cut down to `tinta_`
    bool mezclada_ = false;       // some of what is drawn lets the background through
    bool vieja_ = true;           // `tinta_` is of an older view
    Puesta puesta_, puestaDelVelo_;
    Velo velo_;
};

/// Tells the surface that a surface stands on, if any, that this one covers other pixels now.
void AvisarAQuienSostiene(HWND ventana);

} // namespace pincela::windows
