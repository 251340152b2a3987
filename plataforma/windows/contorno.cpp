#include "plataforma/windows/contorno.h"

#include "plataforma/windows/colores.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace pincela::windows {

namespace {

constexpr int Muestras = 4; // per side of a pixel

struct Forma {
    double izquierda, arriba, derecha, abajo, rx, ry;

    Forma(double i, double a, double d, double b, double radioX, double radioY)
        : izquierda(i), arriba(a), derecha(d), abajo(b),
          rx(std::clamp(radioX, 0.0, std::max(0.0, (d - i) / 2))),
          ry(std::clamp(radioY, 0.0, std::max(0.0, (b - a) / 2))) {}

    bool Contiene(double x, double y) const {
        if (x < izquierda || x >= derecha || y < arriba || y >= abajo)
            return false;
        if (rx <= 0 || ry <= 0)
            return true;
        const double dx = std::max({izquierda + rx - x, x - (derecha - rx), 0.0}) / rx;
        const double dy = std::max({arriba + ry - y, y - (abajo - ry), 0.0}) / ry;
        return dx * dx + dy * dy <= 1.0;
    }
};

class Contorneador {
  public:
    explicit Contorneador(const ContornoRedondo& c)
        : fuera_(c.izquierda, c.arriba, c.derecha, c.abajo, c.anchoElipse / 2.0,
                 c.altoElipse / 2.0),
          dentro_(c.izquierda + c.grosor, c.arriba + c.grosor, c.derecha - c.grosor,
                  c.abajo - c.grosor, fuera_.rx - c.grosor, fuera_.ry - c.grosor),
          luz_(APixel(Resolver(c.arribaIzquierda))), sombra_(APixel(Resolver(c.abajoDerecha))) {}

    /// Columns from each side that can hold any of the outline on a row; the whole row near the
    /// top and the bottom.
    int Margen(int y, int grosor) const {
        const double banda = std::max<double>(grosor, fuera_.ry);
        if (y < fuera_.arriba + banda || y + 1 > fuera_.abajo - banda)
            return static_cast<int>(fuera_.derecha - fuera_.izquierda);
        return static_cast<int>(std::ceil(std::max<double>(grosor, fuera_.rx)));
    }

    void Punto(std::uint32_t& pixel, int x, int y) const {
        const int cubiertas = Cubiertas(x, y);
        if (cubiertas == 0)
            return;
        const std::uint32_t tono = Iluminado(x + 0.5, y + 0.5) ? luz_ : sombra_;
        pixel = cubiertas == Muestras * Muestras ? tono : Mezclar(pixel, tono, cubiertas);
    }

  private:
    bool EnCurva(int x, int y) const {
        const bool columna = x < fuera_.izquierda + fuera_.rx || x + 1 > fuera_.derecha - fuera_.rx;
        const bool fila = y < fuera_.arriba + fuera_.ry || y + 1 > fuera_.abajo - fuera_.ry;
        return columna && fila;
    }

    bool Cubre(double x, double y) const {
        return fuera_.Contiene(x, y) && !dentro_.Contiene(x, y);
    }

    int Cubiertas(int x, int y) const {
        if (!EnCurva(x, y))
            return Cubre(x + 0.5, y + 0.5) ? Muestras * Muestras : 0;
        int cubiertas = 0;
        for (int j = 0; j < Muestras; ++j)
            for (int i = 0; i < Muestras; ++i)
                cubiertas += Cubre(x + (i + 0.5) / Muestras, y + (j + 0.5) / Muestras);
        return cubiertas;
    }

    // The light comes from the top left: the two tones meet on the diagonals of the other two
    // corners, as mitred frames do.
    bool Iluminado(double x, double y) const {
        const bool redondo = fuera_.rx > 0 && fuera_.ry > 0;
        const double ax = redondo ? fuera_.rx : 1, ay = redondo ? fuera_.ry : 1;
        const bool derecha = x >= (fuera_.izquierda + fuera_.derecha) / 2;
        const bool abajo = y >= (fuera_.arriba + fuera_.abajo) / 2;
        if (derecha == abajo)
            return !derecha;
        return derecha ? (fuera_.derecha - x) / ax >= (y - fuera_.arriba) / ay
                       : (x - fuera_.izquierda) / ax < (fuera_.abajo - y) / ay;
    }

    static std::uint32_t Mezclar(std::uint32_t fondo, std::uint32_t tono, int cubiertas) {
        constexpr int Total = Muestras * Muestras;
        std::uint32_t mezcla = 0;
        for (int bit = 0; bit < 24; bit += 8) {
            const int a = (fondo >> bit) & 0xFF, b = (tono >> bit) & 0xFF;
            const int canal = (a * (Total - cubiertas) + b * cubiertas + Total / 2) / Total;
            mezcla |= static_cast<std::uint32_t>(canal) << bit;
        }
        return mezcla;
    }

    Forma fuera_, dentro_;
    std::uint32_t luz_, sombra_;
};

} // namespace

void DibujarContorno(std::uint32_t* pixeles, SIZE tamano, const ContornoRedondo& c) {
    if (c.derecha <= c.izquierda || c.abajo <= c.arriba || c.grosor <= 0)
        return;
    const Contorneador contorneador(c);
    const int ultimaFila = std::min<int>(c.abajo, tamano.cy);
    for (int y = std::max<int>(c.arriba, 0); y < ultimaFila; ++y) {
        std::uint32_t* fila = pixeles + static_cast<std::size_t>(y) * tamano.cx;
        const int margen = contorneador.Margen(y, c.grosor);
        const int mitad = std::min(c.izquierda + margen, c.derecha);
        const int finIzquierdo = std::min<int>(mitad, tamano.cx);
        for (int x = std::max<int>(c.izquierda, 0); x < finIzquierdo; ++x)
            contorneador.Punto(fila[x], x, y);
        const int finDerecho = std::min<int>(c.derecha, tamano.cx);
        for (int x = std::max({mitad, c.derecha - margen, 0}); x < finDerecho; ++x)
            contorneador.Punto(fila[x], x, y);
    }
}

} // namespace pincela::windows
