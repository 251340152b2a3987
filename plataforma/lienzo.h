// What can be drawn on: the surface of a control and its picture boxes.
//
// A canvas keeps what is drawn on it in an image of its own; the image exists from the start, also
// before there is a window, and follows the size of the canvas, keeping what it shows.
// All lengths are pixels of the canvas.
#pragma once

#include "common/color.h"
#include "plataforma/imagen.h"
#include "plataforma/manejador.h"

#include <cstdint>

namespace pincela {

/// Outline that follows a round-cornered shape, lit from one side.
struct ContornoRedondo {
    std::int32_t izquierda, arriba, derecha, abajo; // edges, right and bottom exclusive
    std::int32_t anchoElipse, altoElipse;           // of the corners, as in CreateRoundRectRgn
    std::int32_t grosor;                            // width of the line, inward
    Color arribaIzquierda, abajoDerecha;            // tones of the two lit halves
    friend bool operator==(const ContornoRedondo&, const ContornoRedondo&) = default;
};

class Lienzo {
  public:
    virtual ~Lienzo() = default;

    /// Device context of the image. Asking for it counts as a change of the image.
    virtual Manejador hDC() = 0;
    virtual float ScaleWidth() const = 0;
    virtual float ScaleHeight() const = 0;

    /// Takes effect at the next Cls; what is drawn stays until then.
    virtual Color BackColor() const = 0;
    virtual void PonBackColor(Color color) = 0;

    /// Width of lines in pixels, 1 at the start; a value below 1 counts as 1.
    virtual std::int32_t DrawWidth() const = 0;
    virtual void PonDrawWidth(std::int32_t ancho) = 0;

    /// Fills the whole image with the back colour.
    virtual void Cls() = 0;

    /// Line centred on its ends, both included, square at the corners, DrawWidth wide.
    virtual void Line(float x1, float y1, float x2, float y2, Color color) = 0;
    virtual void Contorno(const ContornoRedondo& contorno) = 0;

    /// Draws a picture stretched into a rectangle, its transparency respected; none draws nothing.
    virtual void PaintPicture(const Imagen& imagen, float izquierda, float arriba, float ancho,
                              float alto) = 0;

    /// HIMETRIC to pixels of this canvas.
    virtual float EscalaX(std::int32_t himetric) const = 0;
    virtual float EscalaY(std::int32_t himetric) const = 0;

    /// Turns the image into greys drawn toward the button face: the look of what can't be used.
    virtual void Desvanecer() = 0;
};

/// Off-screen picture box.
class CuadroImagen : public Lienzo {
  public:
    virtual void Move(float izquierda, float arriba, float ancho, float alto) = 0;
    virtual void PonPicture(const Imagen& imagen) = 0;
};

} // namespace pincela
