// The window of a surface: takes the platform's messages and hands them to whom they concern.
#pragma once

#include "plataforma/windows/globos.h"
#include "plataforma/windows/raton.h"
#include "plataforma/windows/silueta.h"

namespace pincela::windows {

/// A place as the platform can give it to a window: neither inverted nor beyond its measures.
RECT LugarDeVentana(const RECT& pedido);

class VentanaSuperficie {
  public:
    static constexpr wchar_t NombreDeClase[] = L"PincelaSuperficie";
    /// A surface that stands on this one covers other pixels now.
    static constexpr UINT CambioEncima = WM_USER + 0x50;

    VentanaSuperficie(Nucleo& nucleo, SuperficieWindows& superficie)
        : nucleo_(nucleo), superficie_(superficie), raton_(nucleo), globos_(nucleo),
          silueta_(nucleo, superficie) {
        nucleo_.globos = &globos_;
        nucleo_.silueta = &silueta_;
    }
    ~VentanaSuperficie() { Destruir(); }
    VentanaSuperficie(const VentanaSuperficie&) = delete;
    VentanaSuperficie& operator=(const VentanaSuperficie&) = delete;

    /// `recorte`, in client pixels of the parent like `lugar`, limits what is seen; may be null.
    HWND Crear(HWND padre, const RECT& lugar, const RECT* recorte);
    void Mover(const RECT& lugar, const RECT* recorte);
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
    void CambioDeLugar(const WINDOWPOS& cambio);
    void Pintar();
    void RepintarHijas();
    void FocoRecibido();
    void Perdida();

    Nucleo& nucleo_;
    SuperficieWindows& superficie_;
    Raton raton_;
    Globos globos_;
    Silueta silueta_;
};

} // namespace pincela::windows
