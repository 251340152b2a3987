// The windowless elements of a surface, back to front, and who of them the mouse meets.
#pragma once

#include "common/texto.h"
#include "plataforma/oyentes.h"
#include "plataforma/windows/escala.h"

#include <vector>

namespace pincela::windows {

struct Zona {
    float izquierda = 0, arriba = 0, ancho = 0, alto = 0;
    bool Contiene(float x, float y) const {
        return x >= izquierda && y >= arriba && x < izquierda + ancho && y < arriba + alto;
    }
};

class ElementoVisual {
  public:
    /// May leave another font selected.
    virtual void Dibujar(const Destino& destino) const = 0;
    /// Dots per inch changed: sizes that follow them are measured again.
    virtual void PppCambiado() {}

    /// Who hears of the mouse over the element; null lets the mouse through to what lies behind.
    virtual OyenteRaton* Raton() const { return nullptr; }
    virtual Zona Lugar() const { return {}; }
    /// Tool tip of the element; empty for none.
    virtual Texto Globo() const { return {}; }

  protected:
    ~ElementoVisual() = default;
};

/// Where the elements that take the mouse were at some moment, front to back.
struct BlancoRaton {
    ElementoVisual* elemento;
    Zona lugar;
};
using FotoDeBlancos = std::vector<BlancoRaton>;

/// Front-most element at a point; null for the surface itself.
ElementoVisual* EnPunto(const FotoDeBlancos& blancos, float x, float y);

class Escena {
  public:
    /// Neither owned; each element leaves before it dies.
    void Agregar(ElementoVisual& elemento) { elementos_.push_back(&elemento); }
    void Quitar(ElementoVisual& elemento);
    bool Contiene(const ElementoVisual* elemento) const;
    bool Vacia() const { return elementos_.empty(); }

    void Dibujar(const Destino& destino) const;
    void PppCambiado();
    FotoDeBlancos Blancos() const;
    /// Tool tip to show at a point: that of the front-most element there; elsewhere that of the
    /// surface's elements when they have one text among them, since a control that has a single
    /// tip means it for all of itself.
    Texto GloboEn(float x, float y) const;

  private:
    std::vector<ElementoVisual*> elementos_;
};

} // namespace pincela::windows
