// What the pages show: one table per group, each sample a list of keys and values that the control
// loads from its property bag.
#pragma once

#include <array>
#include <span>
#include <variant>

namespace galeria {

/// A colour as the controls keep it: &H00BBGGRR.
using Color = long;

constexpr Color Rgb(unsigned rojo, unsigned verde, unsigned azul) {
    return static_cast<Color>(rojo | verde << 8 | azul << 16);
}

/// Stops of a gradient; becomes the decimal list that the controls read.
struct Tonos {
    int cuantos;
    std::array<Color, 5> colores;

    template <class... C>
    constexpr Tonos(C... c) : cuantos(sizeof...(C)), colores{c...} {}
};

/// Pictures drawn by the gallery itself.
enum class Dibujo { disco, carpeta, lupa, visto, equis, estrella, flecha, paisaje, paisajeNoche };

struct Fuente {
    double puntos;
    bool negrita;
};

using Valor =
    std::variant<std::monostate, bool, int, Color, double, const wchar_t*, Tonos, Dibujo, Fuente>;

struct Par {
    const wchar_t* clave = nullptr;
    Valor valor;
};

/// One control. Its own pairs come after those of its group. Without title and pairs its place stays
/// free.
struct Muestra {
    const wchar_t* titulo; ///< its caption; null for classes without one
    std::array<Par, 10> pares;
    const wchar_t* clase = nullptr; ///< null for that of the group
};

/// A card of the page: heading and a grid of controls.
struct Grupo {
    const wchar_t* titulo;
    int x, y, ancho, alto; ///< at 96 dpi
    int columnas, altoBoton;
    std::array<const wchar_t*, 5> cabeceras; ///< over the columns; null when the card has none
    std::array<Par, 8> comunes;
    std::span<const Muestra> muestras;
    const wchar_t* clase = L"Botonazo";
};

/// A page of the gallery: what stands above and below its cards, and the cards.
struct Hoja {
    const wchar_t* titular;
    const wchar_t* subtitulo;
    const wchar_t* pie;
    std::span<const Grupo> grupos;
};

extern const Hoja HojaDeBotones;
extern const Hoja HojaDeCajas;
extern const Hoja HojaDePaneles;

} // namespace galeria
