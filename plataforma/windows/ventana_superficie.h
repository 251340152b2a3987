// The window of a surface: takes the platform's messages and hands them to whom they concern.
#pragma once

#include "plataforma/windows/globos.h"
#include "plataforma/windows/raton.h"
#include "plataforma/windows/superficie_windows.h"
#include "plataforma/windows/vigia_padre.h"

namespace pincela::windows {

/// A place as the platform can give it to a window: neither inverted nor beyond its measures.
RECT LugarDeVentana(const RECT& pedido);

class VentanaSuperficie {
  public:
    VentanaSuperficie(Nucleo& nucleo, SuperficieWindows& superficie)
        : nucleo_(nucleo), superficie_(superficie), raton_(nucleo), globos_(nucleo) {
        nucleo_.globos = &globos_;
    }
    ~VentanaSuperficie() { Destruir(); }
    VentanaSuperficie(const VentanaSuperficie&) = delete;
    VentanaSuperficie& operator=(const VentanaSuperficie&) = delete;

    HWND Crear(HWND padre, const RECT& lugar);
    void Destruir();

    /// The window that the focus belongs in: the first edit field that can have it.
    HWND DeFoco() const;
    /// The edit field that a window belongs to; null for any other window.
    CampoEdicion* CampoDe(HWND ventana) const;

  private:
    static LRESULT CALLBACK Procedimiento(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) noexcept;
    LRESULT Recibir(HWND ventana, UINT mensaje, WPARAM w, LPARAM l) noexcept;

    // Each returns true when the message ends here, with its result.
    bool Procesar(UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado);
    bool ProcesarEntrada(UINT mensaje, WPARAM w, LPARAM l, LRESULT& resultado);
    bool Tecla(UINT mensaje, WPARAM w);
    bool PonPuntero(LPARAM l);
    void CambioDeTamano(SIZE tamano);
    void FocoRecibido();
    void Perdida();

    Nucleo& nucleo_;
    SuperficieWindows& superficie_;
    Raton raton_;
    Globos globos_;
    VigiaDelPadre vigia_;
};

} // namespace pincela::windows
