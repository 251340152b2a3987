// The surface of a control: its image, its properties and its place on screen.
#pragma once

#include "plataforma/windows/lienzo_dib.h"
#include "plataforma/windows/nucleo.h"

namespace pincela::windows {

class SuperficieWindows final : public LienzoConImagen<Superficie> {
  public:
    explicit SuperficieWindows(Nucleo& nucleo) : LienzoConImagen(nucleo.ppp), nucleo_(nucleo) {}

    Manejador hWnd() override { return reinterpret_cast<Manejador>(nucleo_.ventana); }
    std::int16_t BackStyle() const override { return estilo_; }
    void PonBackStyle(std::int16_t estilo) override;
    std::int16_t MousePointer() const override { return puntero_; }
    void PonMousePointer(std::int16_t puntero) override { puntero_ = puntero; }
    Imagen MouseIcon() const override { return icono_; }
    void PonMouseIcon(const Imagen& icono) override { icono_ = icono; }
    Texto AccessKeys() const override { return teclas_; }
    void PonAccessKeys(const Texto& teclas) override;
    void Refresh() override;
    void SetFocus() override { nucleo_.sitio.PedirFoco(); }

    bool Transparente() const { return estilo_ == 0; }
    void PonTamano(SIZE tamano);
    SIZE Tamano() const { return lienzo_.Tamano(); }
    LienzoDib& lienzo() { return lienzo_; }

  private:
    void Cambiado() override { nucleo_.VistaCambiada(); }

    Nucleo& nucleo_;
    std::int16_t estilo_ = 1;
    std::int16_t puntero_ = 0;
    Imagen icono_;
    Texto teclas_;
};

} // namespace pincela::windows
