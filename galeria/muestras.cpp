#include "galeria/muestras.h"

namespace galeria {

namespace {

constexpr Color Blanco = Rgb(255, 255, 255);
constexpr Color Tinta = Rgb(31, 41, 55);
constexpr Color Plata = Rgb(226, 232, 240);
constexpr Color Niebla = Rgb(241, 245, 249);
constexpr Color Pizarra = Rgb(71, 85, 105);
constexpr Color Cielo = Rgb(191, 219, 254);
constexpr Color Azul = Rgb(37, 99, 235);
constexpr Color Marino = Rgb(30, 58, 138);
constexpr Color Menta = Rgb(187, 235, 213);
constexpr Color Verde = Rgb(22, 128, 90);
constexpr Color Crema = Rgb(254, 240, 205);
constexpr Color Ambar = Rgb(245, 178, 66);
constexpr Color Oro = Rgb(253, 216, 96);
constexpr Color Lila = Rgb(226, 217, 250);
constexpr Color Violeta = Rgb(109, 74, 205);
constexpr Color Rosa = Rgb(253, 215, 215);
constexpr Color Granate = Rgb(179, 48, 58);

enum Relleno { Solido, Horizontal, Vertical, Piramide, Diagonal };
enum Borde { Ninguno, Normal, Lineal, Colores, Degradados };
enum Letra { LetraNormal, Levantada, Undida, InvesoL, InvesoU };
enum Lugar { IzqSup, IzqMed, IzqInf, MedSup, Medio, MedInf, DerSup, DerMed, DerInf };

constexpr Muestra Rellenos[] = {
    {L"Sólido", {{{L"EstilosRell", Solido}, {L"ColorFondo", Cielo}, {L"ColorFondoSobre", Plata}}}},
    {L"Horizontal",
     {{{L"EstilosRell", Horizontal},
       {L"ColorDegradeN", Tonos(Blanco, Cielo)},
       {L"ColorDegradeS", Tonos(Cielo, Blanco)}}}},
    {L"Vertical",
     {{{L"EstilosRell", Vertical},
       {L"ColorDegradeN", Tonos(Blanco, Cielo)},
       {L"ColorDegradeS", Tonos(Cielo, Blanco)}}}},
    {L"Pirámide",
     {{{L"EstilosRell", Piramide},
       {L"ColorDegradeN", Tonos(Blanco, Cielo)},
       {L"ColorDegradeS", Tonos(Cielo, Blanco)}}}},
    {L"Diagonal",
     {{{L"EstilosRell", Diagonal},
       {L"ColorDegradeN", Tonos(Blanco, Cielo)},
       {L"ColorDegradeS", Tonos(Cielo, Blanco)}}}},
    {L"Cuatro tonos",
     {{{L"EstilosRell", Horizontal},
       {L"ColorDegradeN", Tonos(Cielo, Menta, Crema, Rosa)},
       {L"ColorDegradeS", Tonos(Rosa, Crema, Menta, Cielo)}}}},
};

constexpr Muestra Angulos[] = {
    {L"30°", {{{L"Angulo", 30}}}},   {L"60°", {{{L"Angulo", 60}}}},
    {L"90°", {{{L"Angulo", 90}}}},   {L"120°", {{{L"Angulo", 120}}}},
    {L"150°", {{{L"Angulo", 150}}}}, {L"210°", {{{L"Angulo", 210}}}},
};

constexpr Muestra Formas[] = {
    {L"Clásico", {{{L"Estilos", 0}}}},
    {L"Suave", {{{L"Estilos", 1}, {L"RelX", 0.10}, {L"RelY", 0.30}}}},
    {L"Medio", {{{L"Estilos", 1}, {L"RelX", 0.20}, {L"RelY", 0.60}}}},
    {L"Píldora", {{{L"Estilos", 1}, {L"RelX", 0.36}, {L"RelY", 1.0}}}},
    {L"Barril", {{{L"Estilos", 1}, {L"RelX", 0.12}, {L"RelY", 1.0}}}},
    {L"Elipse", {{{L"Estilos", 1}, {L"RelX", 1.0}, {L"RelY", 1.0}}}},
};

constexpr Muestra Letras[] = {
    {L"Normal", {{{L"TipoLetra", LetraNormal}}}},
    {L"Levantada", {{{L"TipoLetra", Levantada}}}},
    {L"Undida", {{{L"TipoLetra", Undida}}}},
    {L"InvesoL", {{{L"TipoLetra", InvesoL}, {L"ColorLetra", Oro}, {L"ColorLetraSobre", Crema}}}},
    {L"InvesoU", {{{L"TipoLetra", InvesoU}, {L"ColorLetra", Oro}, {L"ColorLetraSobre", Crema}}}},
    {L"Grande", {{{L"TipoLetra", Levantada}, {L"Font", Fuente{15, true}}}}},
};

// One row per width, one column per style.
constexpr Muestra Bordes[] = {
    {L"Chico", {{{L"EstilosBord", Ninguno}, {L"AnchoBorde", 1}}}},
    {L"Chico", {{{L"EstilosBord", Normal}, {L"AnchoBorde", 1}}}},
    {L"Chico", {{{L"EstilosBord", Lineal}, {L"AnchoBorde", 1}}}},
    {L"Chico", {{{L"EstilosBord", Colores}, {L"AnchoBorde", 1}}}},
    {L"Chico", {{{L"EstilosBord", Degradados}, {L"AnchoBorde", 1}}}},
    {L"Mediano", {{{L"EstilosBord", Ninguno}, {L"AnchoBorde", 2}}}},
    {L"Mediano", {{{L"EstilosBord", Normal}, {L"AnchoBorde", 2}}}},
    {L"Mediano", {{{L"EstilosBord", Lineal}, {L"AnchoBorde", 2}}}},
    {L"Mediano", {{{L"EstilosBord", Colores}, {L"AnchoBorde", 2}}}},
    {L"Mediano", {{{L"EstilosBord", Degradados}, {L"AnchoBorde", 2}}}},
    {L"Grande", {{{L"EstilosBord", Ninguno}, {L"AnchoBorde", 3}}}},
    {L"Grande", {{{L"EstilosBord", Normal}, {L"AnchoBorde", 3}}}},
    {L"Grande", {{{L"EstilosBord", Lineal}, {L"AnchoBorde", 3}}}},
    {L"Grande", {{{L"EstilosBord", Colores}, {L"AnchoBorde", 3}}}},
    {L"Grande", {{{L"EstilosBord", Degradados}, {L"AnchoBorde", 3}}}},
};

// Laid out as on the button itself: the rows are top, middle and bottom.
constexpr Muestra Alineaciones[] = {
    {L"Izq Sup", {{{L"AlinText", IzqSup}}}}, {L"Med Sup", {{{L"AlinText", MedSup}}}},
    {L"Der Sup", {{{L"AlinText", DerSup}}}}, {L"Izq Med", {{{L"AlinText", IzqMed}}}},
    {L"Medio", {{{L"AlinText", Medio}}}},    {L"Der Med", {{{L"AlinText", DerMed}}}},
    {L"Izq Inf", {{{L"AlinText", IzqInf}}}}, {L"Med Inf", {{{L"AlinText", MedInf}}}},
    {L"Der Inf", {{{L"AlinText", DerInf}}}},
};

constexpr Muestra Imagenes[] = {
    {L"&Abrir", {{{L"Expandir", false}, {L"AlinImag", IzqMed}, {L"ImagNormal", Dibujo::carpeta}}}},
    {L"&Buscar", {{{L"Expandir", false}, {L"AlinImag", DerMed}, {L"ImagNormal", Dibujo::lupa}}}},
    {L"Favorito",
     {{{L"Expandir", false},
       {L"AlinImag", IzqMed},
       {L"ImagNormal", Dibujo::estrella},
       {L"ImagSobre", Dibujo::visto}}}},
    {L"", {{{L"Expandir", false}, {L"AlinImag", Medio}, {L"ImagNormal", Dibujo::flecha}}}},
    {L"Paisaje",
     {{{L"Expandir", true},
       {L"ImagNormal", Dibujo::paisaje},
       {L"ImagSobre", Dibujo::paisajeNoche},
       {L"Font", Fuente{10, true}},
       {L"ColorLetra", Marino},
       {L"ColorLetraSobre", Oro}}}},
    {L"&Quitar", {{{L"Expandir", false}, {L"AlinImag", IzqMed}, {L"ImagNormal", Dibujo::equis}}}},
};

constexpr Muestra Estados[] = {
    {L"&Guardar",
     {{{L"Expandir", false},
       {L"AlinImag", IzqMed},
       {L"ImagNormal", Dibujo::disco},
       {L"EstilosRell", Vertical},
       {L"ColorDegradeN", Tonos(Blanco, Menta)},
       {L"ColorDegradeS", Tonos(Menta, Blanco)}}}},
    {L"&Progresivo",
     {{{L"CambioProgre", true},
       {L"CambioProgrePasos", 10},
       {L"EstilosRell", Vertical},
       {L"ColorDegradeN", Tonos(Blanco, Lila)},
       {L"ColorDegradeS", Tonos(Lila, Violeta)}}}},
    {L"&Sigue al ratón",
     {{{L"FocoConMouse", true},
       {L"EfectoBoton", 2},
       {L"EstilosRell", Vertical},
       {L"ColorDegradeN", Tonos(Blanco, Crema)},
       {L"ColorDegradeS", Tonos(Crema, Ambar)}}}},
    {L"Sin uso", {{{L"Enabled", false}, {L"ColorFondo", Cielo}, {L"ColorFondoSobre", Cielo}}}},
    {L"Sin uso",
     {{{L"Enabled", false},
       {L"EstilosRell", Vertical},
       {L"ColorDegradeN", Tonos(Blanco, Menta)},
       {L"ColorDegradeS", Tonos(Blanco, Menta)}}}},
    {L"Sin uso",
     {{{L"Enabled", false},
       {L"Expandir", false},
       {L"AlinImag", IzqMed},
       {L"ImagNormal", Dibujo::carpeta},
       {L"ColorFondo", Niebla},
       {L"ColorFondoSobre", Niebla}}}},
};

constexpr std::array<const wchar_t*, 5> SinCabeceras{};

constexpr Grupo Grupos[] = {
    {L"Relleno",
     24,
     76,
     330,
     126,
     3,
     34,
     SinCabeceras,
     {{{L"ColorLetra", Tinta}, {L"ColorLetraSobre", Marino}, {L"Angulo", 45}}},
     Rellenos},
    {L"Ángulo de la diagonal",
     370,
     76,
     330,
     126,
     3,
     34,
     SinCabeceras,
     {{{L"ColorLetra", Blanco},
       {L"ColorLetraSobre", Blanco},
       {L"EstilosRell", Diagonal},
       {L"EstilosBord", Ninguno},
       {L"ColorDegradeN", Tonos(Marino, Azul, Rgb(125, 170, 245))},
       {L"ColorDegradeS", Tonos(Rgb(125, 170, 245), Azul, Marino)}}},
     Angulos},
    {L"Forma y curvatura",
     24,
     214,
     330,
     126,
     3,
     34,
     SinCabeceras,
     {{{L"ColorLetra", Blanco},
       {L"ColorLetraSobre", Blanco},
       {L"EstilosRell", Vertical},
       {L"EstilosBord", Lineal},
       {L"ColorDegradeN", Tonos(Rgb(64, 176, 134), Verde)},
       {L"ColorDegradeS", Tonos(Verde, Rgb(64, 176, 134))}}},
     Formas},
    {L"Letra",
     370,
     214,
     330,
     126,
     3,
     34,
     SinCabeceras,
     {{{L"ColorLetra", Rgb(186, 200, 218)},
       {L"ColorLetraSobre", Oro},
       {L"EstilosBord", Ninguno},
       {L"Font", Fuente{11, true}},
       {L"ColorFondo", Pizarra},
       {L"ColorFondoSobre", Rgb(51, 65, 85)}}},
     Letras},
    {L"Borde",
     24,
     352,
     400,
     174,
     5,
     28,
     {L"Ninguno", L"Normal", L"Lineal", L"Colores", L"Degradados"},
     {{{L"ColorLetra", Tinta},
       {L"ColorLetraSobre", Violeta},
       {L"EstilosRell", Vertical},
       {L"ColorDegradeN", Tonos(Blanco, Lila)},
       {L"ColorDegradeS", Tonos(Lila, Blanco)}}},
     Bordes},
    {L"Alineación del texto",
     440,
     352,
     260,
     174,
     3,
     36,
     SinCabeceras,
     {{{L"ColorLetra", Tinta},
       {L"ColorLetraSobre", Granate},
       {L"ColorFondo", Crema},
       {L"ColorFondoSobre", Rgb(253, 226, 160)},
       {L"EstilosBord", Ninguno},
       {L"AnchoBorde", 3}}},
     Alineaciones},
    {L"Imagen",
     24,
     538,
     330,
     126,
     3,
     34,
     SinCabeceras,
     {{{L"ColorLetra", Tinta},
       {L"ColorLetraSobre", Azul},
       {L"EstilosRell", Vertical},
       {L"EstilosBord", Lineal},
       {L"ColorDegradeN", Tonos(Blanco, Plata)},
       {L"ColorDegradeS", Tonos(Blanco, Cielo)}}},
     Imagenes},
    {L"Estado y conducta",
     370,
     538,
     330,
     126,
     3,
     34,
     SinCabeceras,
     {{{L"ColorLetra", Tinta}, {L"ColorLetraSobre", Tinta}}},
     Estados},
};

} // namespace

constinit const Hoja HojaDeBotones{
    L"Botonazo", L"Galería de Pincela: un botón, muchas caras",
    L"Tabulador recorre los botones, Espacio o Entrar los pulsa, Alt y la letra subrayada también.",
    Grupos};

} // namespace galeria
