// The samples of the page of panels.
#include "galeria/muestras.h"

namespace galeria {

namespace {

constexpr Color Blanco = Rgb(255, 255, 255);
constexpr Color Tinta = Rgb(31, 41, 55);
constexpr Color Niebla = Rgb(241, 245, 249);
constexpr Color Pizarra = Rgb(51, 65, 85);
constexpr Color Acero = Rgb(100, 116, 139);
constexpr Color Oro = Rgb(253, 216, 96);
constexpr Color Cielo = Rgb(191, 219, 254);
constexpr Color Azul = Rgb(37, 99, 235);
constexpr Color Marino = Rgb(30, 58, 138);
constexpr Color Menta = Rgb(187, 235, 213);
constexpr Color Crema = Rgb(254, 240, 205);
constexpr Color Rosa = Rgb(253, 215, 215);
constexpr Color CaraDeBoton = static_cast<Color>(0x8000000F);

enum Relleno { Solido, Horizontal, Vertical, Piramide };
enum Borde { Ninguno, Normal, Lineal, Colores, Degradados };
enum Lugar { IzqSup, Medio = 4 };

constexpr Muestra Rellenos[] = {
    {L"Sólido", {{{L"ColorFondo", Cielo}}}},
    {L"Horizontal", {{{L"EstilosRell", Horizontal}, {L"ColorDegrade", Tonos(Blanco, Cielo)}}}},
    {L"Vertical", {{{L"EstilosRell", Vertical}, {L"ColorDegrade", Tonos(Blanco, Cielo)}}}},
    {L"Pirámide", {{{L"EstilosRell", Piramide}, {L"ColorDegrade", Tonos(Blanco, Cielo)}}}},
    {L"Cuatro tonos",
     {{{L"EstilosRell", Horizontal}, {L"ColorDegrade", Tonos(Cielo, Menta, Crema, Rosa)}}}},
};

constexpr Muestra Bordes[] = {
    {L"Ninguno", {{{L"EstilosBord", Ninguno}}}},
    {L"Normal", {{{L"EstilosBord", Normal}, {L"ColorLetra", Marino}}}},
    {L"Lineal", {{{L"EstilosBord", Lineal}}}},
    {L"Colores", {{{L"EstilosBord", Colores}}}},
    {L"Degradados",
     {{{L"EstilosBord", Degradados}, {L"AnchoBorde", 2}, {L"ColorDegrade", Tonos(Azul, Cielo)}}}},
    {L"", {}}, // the platform's own stands here
};

constexpr Muestra Letras[] = {
    {L"Normal", {{{L"TipoLetra", 0}}}},  {L"Levantada", {{{L"TipoLetra", 1}}}},
    {L"Undida", {{{L"TipoLetra", 2}}}},  {L"InvesoL", {{{L"TipoLetra", 3}}}},
    {L"InvesoU", {{{L"TipoLetra", 4}}}},
};

constexpr Grupo Grupos[] = {
    {L"Rellenos",
     24,
     76,
     676,
     140,
     5,
     88,
     {},
     {{{L"AlinText", Medio}, {L"EstilosBord", Lineal}, {L"ColorLetra", Tinta}}},
     Rellenos,
     L"Area"},
    {L"Bordes, junto al cuadro de grupo de la plataforma",
     24,
     226,
     676,
     140,
     6,
     88,
     {},
     {{{L"AlinText", Medio}, {L"ColorFondo", CaraDeBoton}, {L"SeparaBorde", 2}}},
     Bordes,
     L"Area"},
    {L"Letras",
     24,
     376,
     676,
     100,
     5,
     48,
     {},
     {{{L"AlinText", Medio},
       {L"EstilosBord", Ninguno},
       {L"EstilosRell", Vertical},
       {L"ColorDegrade", Tonos(Pizarra, Acero)},
       {L"ColorLetra", Oro},
       {L"Font", Fuente{12, true}}}},
     Letras,
     L"Area"},
};

} // namespace

constinit const Hoja HojaDePaneles{
    L"Area", L"Galería de Pincela: paneles que llevan otros controles",
    L"Un clic en un panel, o Espacio cuando tiene el foco, es un Click; lo que está dentro se mueve y "
    L"se recorta con él.",
    Grupos};

} // namespace galeria
