// Windowless text.
#pragma once

#include "plataforma/windows/apartamento.h"
#include "plataforma/windows/nucleo.h"
#include "plataforma/windows/objetos_fuente.h"

namespace pincela::windows {

class EtiquetaWindows final : public Etiqueta, public ElementoVisual, private OyenteFuente {
  public:
    explicit EtiquetaWindows(Nucleo& nucleo);
    ~EtiquetaWindows() override;

    Texto Caption() const override { return texto_; }
    void PonCaption(const Texto& texto) override;
    Fuente Font() const override { return fuente_.fuente(); }
    void PonFont(const Fuente& fuente) override;
    Color ForeColor() const override { return color_; }
    void PonForeColor(Color color) override;
    bool Enabled() const override { return habilitada_; }
    void PonEnabled(bool valor) override;
    Texto ToolTipText() const override { return globo_; }
    void PonToolTipText(const Texto& texto) override { globo_ = texto; }

    float Left() const override { return izquierda_; }
    float Top() const override { return arriba_; }
    float Width() const override;
    float Height() const override;
    void Move(float izquierda, float arriba) override;
    void PonOyente(OyenteRaton* oyente) override { oyente_ = oyente; }

    // ElementoVisual
    void Dibujar(const Destino& destino) const override;
    void PppCambiado() override;
    OyenteRaton* Raton() const override { return habilitada_ ? oyente_ : nullptr; }
    Zona Lugar() const override;
    Texto Globo() const override { return globo_; }

  private:
    void FuenteCambiada() override;
    void MedirDeNuevo();
    void Medir() const;
    void Escribir(HDC dc, const RECT& lugar, COLORREF color) const;
    RefFuenteGdi FuentePara(const Destino& destino) const;

    Nucleo& nucleo_;
    Texto texto_;
    SuscripcionFuente fuente_;
    Color color_ = TextoDeVentana;
    bool habilitada_ = true;
    Texto globo_;
    float izquierda_ = 0, arriba_ = 0;
    OyenteRaton* oyente_ = nullptr;

    // Measured when first asked for.
    mutable bool medida_ = false;
    mutable SIZE tamano_{0, 0};
    mutable AtributosFuente atributos_;
    mutable RefFuenteGdi manija_;
};

} // namespace pincela::windows
