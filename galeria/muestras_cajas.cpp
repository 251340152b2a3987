// The page of text boxes.
#include "galeria/muestras.h"

namespace galeria {

namespace {

constexpr Color Blanco = Rgb(255, 255, 255);
constexpr Color Tinta = Rgb(31, 41, 55);
constexpr Color Niebla = Rgb(241, 245, 249);
constexpr Color Pizarra = Rgb(71, 85, 105);
constexpr Color Cielo = Rgb(219, 234, 254);
constexpr Color Azul = Rgb(37, 99, 235);
constexpr Color Crema = Rgb(254, 243, 215);
constexpr Color Limon = Rgb(255, 240, 150);
constexpr Color Oro = Rgb(253, 216, 96);
constexpr Color Menta = Rgb(209, 243, 226);
constexpr Color Verde = Rgb(22, 128, 90);
constexpr Color Granate = Rgb(179, 48, 58);

enum Sombra { Negra = 1, Gris, Blanca, Invertida };
enum Letra { LetraNormal, Levantada, Undida, InvesoL, InvesoU };
enum Tipo { TextNorm, Mayuscula, NumericoEnt, NumericoDes };
enum Lugar { IzqSup, IzqMed, IzqInf, MedSup, Medio, MedInf, DerSup, DerMed, DerInf };

// In the order of a page: the place of the field, the caption opposite.
constexpr Muestra Lugares[] = {
    {L"Izq Sup", {{{L"AlinTBox", IzqSup}}}}, {L"Med Sup", {{{L"AlinTBox", MedSup}}}},
    {L"Der Sup", {{{L"AlinTBox", DerSup}}}}, {L" Izq Med", {{{L"AlinTBox", IzqMed}}}},
    {L"Medio", {{{L"AlinTBox", Medio}}}},    {L"Der Med ", {{{L"AlinTBox", DerMed}}}},
    {L"Izq Inf", {{{L"AlinTBox", IzqInf}}}}, {L"Med Inf", {{{L"AlinTBox", MedInf}}}},
    {L"Der Inf", {{{L"AlinTBox", DerInf}}}},
};

constexpr Muestra Sombras[] = {
    {L"Negra", {{{L"TipoSombra", Negra}}}},
    {L"Gris", {{{L"TipoSombra", Gris}}}},
    {L"Blanca", {{{L"TipoSombra", Blanca}}}},
    {L"Invertida", {{{L"TipoSombra", Invertida}}}},
    {L"Separa 2", {{{L"TipoSombra", Gris}, {L"Separa", 2}}}},
    {L"Separa 8", {{{L"TipoSombra", Gris}, {L"Separa", 8}}}},
};

constexpr Muestra Letras[] = {
    {L"Normal", {{{L"TipoLetra", LetraNormal}}}},
    {L"Levantada", {{{L"TipoLetra", Levantada}}}},
    {L"Undida", {{{L"TipoLetra", Undida}}}},
    {L"InvesoL", {{{L"TipoLetra", InvesoL}}}},
    {L"InvesoU", {{{L"TipoLetra", InvesoU}}}},
    {L"Con el ratón",
     {{{L"ColorLetraES", Blanco}, {L"ColorFondoSobre", Azul}, {L"ColorFonTextoS", Crema}}}},
};

constexpr Muestra Tipos[] = {
    {L"Texto &normal", {{{L"TipoTexto", TextNorm}, {L"Text", L"Lo que sea"}}}},
    {L"&Mayúscula", {{{L"TipoTexto", Mayuscula}, {L"Text", L"MAYÚSCULAS"}}}},
    {L"&Entero", {{{L"TipoTexto", NumericoEnt}, {L"Text", L"2500"}, {L"AlinText", 1}}}},
    {L"&Decimal", {{{L"TipoTexto", NumericoDes}, {L"Text", L"12,50"}, {L"AlinText", 1}}}},
};

// A blank keeps the caption off the field.
constexpr Muestra Estados[] = {
    {L"Opaco ", {{{L"BackStyle", 1}, {L"Text", L"con fondo"}}}},
    {L"Transparente ", {{{L"BackStyle", 0}, {L"Text", L"sin él"}}}},
    {L"Sin uso ", {{{L"BackStyle", 0}, {L"Enabled", false}, {L"Text", L"apagado"}}}},
    {L"Trancado ", {{{L"BackStyle", 0}, {L"Tranca", true}, {L"Text", L"se lee"}}}},
    {L"Plano ", {{{L"BackStyle", 0}, {L"Apariencia", 0}, {L"Text", L"sin relieve"}}}},
    {nullptr,
     {{{L"BackStyle", 1},
       {L"ToolTipText", L"Caja simple, centrada"},
       {L"AlinText", 2},
       {L"Text", L"TboxSS"}}},
     L"TboxSS"},
};

constexpr Muestra Multiples[] = {
    {L"Notas ",
     {{{L"AlinTBox", DerMed}, {L"TipoSombra", Gris}, {L"Text", L"Con barra\r\ny con\r\nsombra."}}}},
    {nullptr,
     {{{L"NavConEnter", false},
       {L"ToolTipText", L"Nota"},
       {L"Text", L"Aquí Entrar\r\nempieza otro\r\nrenglón."}}},
     L"TboxSSML"},
};

constexpr std::array<const wchar_t*, 5> SinCabeceras{};

constexpr Grupo Grupos[] = {
    {L"Lugar del campo",
     24,
     76,
     400,
     192,
     3,
     42,
     SinCabeceras,
     {{{L"ColorLetraE", Tinta},
       {L"ColorFondo", Niebla},
       {L"ColorFondoSobre", Cielo},
       {L"TipoSombra", Gris}}},
     Lugares,
     L"Tbox"},
    {L"Sombra",
     440,
     76,
     260,
     192,
     2,
     42,
     SinCabeceras,
     {{{L"AlinTBox", IzqInf},
       {L"ColorLetraE", Tinta},
       {L"ColorFondo", Rgb(200, 212, 228)},
       {L"ColorFondoSobre", Rgb(200, 212, 228)},
       {L"ColorFonTexto", Limon},
       {L"ColorFonTextoS", Menta}}},
     Sombras,
     L"Tbox"},
    {L"Letra",
     24,
     276,
     400,
     144,
     3,
     44,
     SinCabeceras,
     {{{L"AlinTBox", IzqInf},
       {L"FuenteEtic", Fuente{11, true}},
       {L"ColorLetraE", Oro},
       {L"ColorLetraES", Oro},
       {L"ColorFondo", Pizarra},
       {L"ColorFondoSobre", Pizarra}}},
     Letras,
     L"Tbox"},
    {L"Tipo de texto",
     440,
     276,
     260,
     144,
     2,
     44,
     SinCabeceras,
     {{{L"AlinTBox", IzqInf},
       {L"ColorLetraE", Tinta},
       {L"ColorLetraES", Verde},
       {L"ColorFondo", Blanco},
       {L"ColorFondoSobre", Menta},
       {L"TipoSombra", Gris}}},
     Tipos,
     L"Tbox"},
    {L"Fondo y estado",
     24,
     428,
     330,
     142,
     2,
     26,
     SinCabeceras,
     {{{L"AlinTBox", DerMed},
       {L"ColorLetraE", Granate},
       {L"ColorLetraES", Granate},
       {L"ColorFondo", Niebla},
       {L"ColorFondoSobre", Niebla},
       {L"TipoSombra", Gris}}},
     Estados,
     L"Tbox"},
    {L"Varios renglones",
     24,
     578,
     330,
     86,
     2,
     44,
     SinCabeceras,
     {{{L"ColorLetraE", Tinta}, {L"ColorFondo", Blanco}, {L"ColorFondoSobre", Blanco}}},
     Multiples,
     L"TBoxML"},
};

} // namespace

constinit const Hoja HojaDeCajas{
    L"Cajas de texto", L"Etiquetadas y simples, de un renglón o de varios",
    L"Alt y la letra subrayada llevan al campo; en el alta rápida, Entrar pasa al siguiente.",
    Grupos};

} // namespace galeria
