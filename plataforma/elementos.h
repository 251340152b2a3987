// The child widgets of a control. Each lives as long as its owner holds it and never longer than
// the environment that made it. Those made later lie in front. Lengths are pixels of the surface.
#pragma once

#include "common/color.h"
#include "common/texto.h"
#include "plataforma/fuente.h"
#include "plataforma/manejador.h"
#include "plataforma/oyentes.h"

#include <cstdint>
#include <functional>

namespace pincela {

/// Windowless text that sizes itself to its caption; transparent; "&" underlines the next letter.
class Etiqueta {
  public:
    virtual ~Etiqueta() = default;

    virtual Texto Caption() const = 0;
    virtual void PonCaption(const Texto& texto) = 0;
    virtual Fuente Font() const = 0;
    virtual void PonFont(const Fuente& fuente) = 0;
    virtual Color ForeColor() const = 0;
    virtual void PonForeColor(Color color) = 0;
    virtual bool Enabled() const = 0;
    /// A disabled label is drawn greyed and lets the mouse through to its owner.
    virtual void PonEnabled(bool valor) = 0;
    virtual Texto ToolTipText() const = 0;
    virtual void PonToolTipText(const Texto& texto) = 0;

    virtual float Left() const = 0;
    virtual float Top() const = 0;
    virtual float Width() const = 0;
    virtual float Height() const = 0;
    virtual void Move(float izquierda, float arriba) = 0;

    /// Not owned; null for none. Coordinates told are relative to the label.
    virtual void PonOyente(OyenteRaton* oyente) = 0;
};

class Temporizador {
  public:
    virtual ~Temporizador() = default;

    virtual std::int32_t Interval() const = 0; // milliseconds, 0 never ticks
    virtual void PonInterval(std::int32_t milisegundos) = 0;
    virtual bool Enabled() const = 0;
    virtual void PonEnabled(bool valor) = 0;
    virtual void AlTic(std::function<void()> accion) = 0;
};

/// Windowless rectangle.
class Rectangulo {
  public:
    enum class Borde { Ninguno, Continuo, Punteado };

    virtual ~Rectangulo() = default;

    virtual void Move(float izquierda, float arriba, float ancho, float alto) = 0;
    virtual bool Visible() const = 0;
    virtual void PonVisible(bool valor) = 0;
    virtual void PonBorde(Borde borde) = 0;
    virtual void PonBorderColor(Color color) = 0;
    /// SinColor leaves the inside as it is.
    virtual void PonFillColor(Color color) = 0;
    /// Ellipse that rounds the corners; 0, 0 gives square ones.
    virtual void PonElipse(std::int32_t ancho, std::int32_t alto) = 0;
};

/// Windowless line segment.
class Linea {
  public:
    virtual ~Linea() = default;

    virtual void Move(float x1, float y1, float x2, float y2) = 0;
    virtual bool Visible() const = 0;
    virtual void PonVisible(bool valor) = 0;
    virtual Color BorderColor() const = 0;
    virtual void PonBorderColor(Color color) = 0;
    virtual void PonBorderWidth(std::int32_t ancho) = 0;
};

/// Edit field: the platform's own edit window.
class CajaTexto {
  public:
    virtual ~CajaTexto() = default;

    virtual Texto Text() const = 0;
    virtual void PonText(const Texto& texto) = 0;
    /// Selection in UTF-16 units. What is asked for beyond the text is remembered and applied when
    /// text arrives; a negative value raises ValorDePropiedad.
    virtual std::int32_t SelStart() const = 0;
    virtual void PonSelStart(std::int32_t inicio) = 0;
    virtual std::int32_t SelLength() const = 0;
    virtual void PonSelLength(std::int32_t largo) = 0;
    virtual Texto SelText() const = 0;
    /// 0: no limit.
    virtual std::int32_t MaxLength() const = 0;
    virtual void PonMaxLength(std::int32_t largo) = 0;
    /// 0 left, 1 right, 2 centre.
    virtual std::int32_t Alignment() const = 0;
    virtual void PonAlignment(std::int32_t alineacion) = 0;
    /// 0 flat, 1 three-dimensional.
    virtual std::int32_t Appearance() const = 0;
    virtual void PonAppearance(std::int32_t apariencia) = 0;
    virtual bool Locked() const = 0;
    virtual void PonLocked(bool valor) = 0;
    virtual bool Enabled() const = 0;
    virtual void PonEnabled(bool valor) = 0;
    virtual Fuente Font() const = 0;
    virtual void PonFont(const Fuente& fuente) = 0;
    virtual Color ForeColor() const = 0;
    virtual void PonForeColor(Color color) = 0;
    virtual Color BackColor() const = 0;
    virtual void PonBackColor(Color color) = 0;
    virtual Texto ToolTipText() const = 0;
    virtual void PonToolTipText(const Texto& texto) = 0;
    /// What a screen reader calls the field.
    virtual void PonNombreAccesible(const Texto& nombre) = 0;

    virtual void Move(float izquierda, float arriba, float ancho, float alto) = 0;
    virtual Manejador hWnd() = 0;
    virtual void SetFocus() = 0;
    /// True while the field has the input focus.
    virtual bool EsActivo() const = 0;

    virtual void PonOyente(OyenteEdicion* oyente) = 0;
};

} // namespace pincela
