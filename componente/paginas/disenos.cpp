// Positions are on a grid: margins of 7, two columns of labels and fields, rows of 17.
#include "componente/paginas/disenos.h"

#include "componente/clases.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace pincela::componente {

namespace {

using windows::ClasePieza;
using windows::Pieza;
using enum windows::ClasePieza;

constexpr short Ancho = 252;
// The two columns: label and field.
constexpr short Rotulo1 = 7, Campo1 = 55, Rotulo2 = 130, Campo2 = 179;
constexpr short AnchoRotulo = 47, AnchoCampo = 66;
// Inside a frame.
constexpr short Dentro = 14, AnchoDentro = 224;

constexpr Pieza Rotula(short x, short y, const wchar_t* texto) {
    return {Rotulo, u"", x, y, AnchoRotulo, 12, texto};
}
constexpr Pieza Enumera(VistaTexto nombre, short x, short y, const wchar_t* propiedad) {
    return {Lista, nombre, x, y, AnchoCampo, 12, L"", u"", propiedad};
}
constexpr Pieza Marca(VistaTexto nombre, short x, short y, short ancho, const wchar_t* texto,
                      const wchar_t* propiedad) {
    return {Casilla, nombre, x, y, ancho, 12, texto, u"", propiedad};
}

constexpr Pieza PiezasGeneral[] = {
    Rotula(Rotulo1, 7, L"&Texto"),
    {Campo, u"Texto", Campo1, 7, Campo2 + AnchoCampo - Campo1, 12, L"", u"", L"Caption"},
    Rotula(Rotulo1, 24, L"Estilo &Boton"),
    Enumera(u"CobEstilo", Campo1, 24, L"Estilos"),
    Rotula(Rotulo2, 24, L"&Efectos Boton"),
    Enumera(u"CobEfectos", Campo2, 24, L"EfectoBoton"),
    Rotula(Rotulo1, 41, L"&Alin-Text"),
    Enumera(u"CobAlinText", Campo1, 41, L"AlinText"),
    Rotula(Rotulo2, 41, L"Alin-&Imag"),
    Enumera(u"cobAlinImag", Campo2, 41, L"AlinImag"),
    Rotula(Rotulo1, 58, L"A&ncho Borde"),
    Enumera(u"comAnchoB", Campo1, 58, L"AnchoBorde"),
    Rotula(Rotulo2, 58, L"Estilo Bor&de"),
    Enumera(u"ComEstBorde", Campo2, 58, L"EstilosBord"),
    Rotula(Rotulo1, 75, L"Tipo &Letra"),
    Enumera(u"comTipoLetra", Campo1, 75, L"TipoLetra"),
    Marca(u"ChkEnabled", Rotulo2, 75, 110, L"&Habilitado", L"Enabled"),
    {Grupo, u"", 7, 92, 238, 46},
    {Rotulo, u"Rel_X", Dentro, 102, 24, 12, L"Rel_&X"},
    {Campo, u"txtRelX", 40, 102, 34, 12, L"", u"", L"RelX"},
    {Deslizador, u"sldX", 78, 101, 92, 15},
    {Rotulo, u"Rel_Y", Dentro, 119, 24, 12, L"Rel_&Y"},
    {Campo, u"txtRelY", 40, 119, 34, 12, L"", u"", L"RelY"},
    {Deslizador, u"sldY", 78, 118, 92, 15},
    {CuadroLibre, u"PicPV", 180, 102, 58, 29},
    Marca(u"chkProg", Rotulo1, 143, 84, L"Cambio Pro&grecivo", L"CambioProgre"),
    {Campo, u"txtCamTiem", 92, 143, 29, 12, L"", u"", L"CambioProgrePasos"},
    Marca(u"chkFocoVisi", Rotulo2, 143, 110, L"Foco &Visible", L"FocoVisible"),
    Marca(u"chkEstConIma", Rotulo1, 160, 114, L"E&stirar-Contraer Imagen", L"Expandir"),
    Marca(u"chkFocConMouse", Rotulo2, 160, 110, L"Foco &Con Mouse", L"FocoConMouse"),
};

// The colour editor of one state, `y` the top of its frame. Colour pages differ in the names of
// the widgets, in the properties and in what stands below the row of stops.
struct NombresDeEditor {
    VistaTexto marco, letra, fondo, estilo, fila, mas, menos, vista;
    const wchar_t *propiedadLetra, *propiedadFondo, *propiedadEstilo, *propiedadFila = nullptr;
};
constexpr NombresDeEditor Normal{u"Frame1(0)",        u"cbColLetra(0)", u"cbColFondo(0)",
                                 u"cmbEstDegrade(0)", u"FraDegra(0)",   u"CBMasColor(0)",
                                 u"CBMenColor(0)",    u"Picture1(0)",   L"ColorLetra",
                                 L"ColorFondo",       L"EstilosRell"};
constexpr NombresDeEditor Sobre{u"Frame1(1)",        u"cbColLetra(1)", u"cbColFondo(1)",
                                u"cmbEstDegrade(1)", u"FraDegra(1)",   u"CBMasColor(1)",
                                u"CBMenColor(1)",    u"Picture1(1)",   L"ColorLetraSobre",
                                L"ColorFondoSobre",  nullptr};
constexpr NombresDeEditor DelPanel{u"Frame1",     u"cbColLetra", u"cbColFondo",  u"cmbEstDegrade",
                                   u"FraDegra",   u"CBMasColor", u"CBMenColor",  u"Picture1",
                                   L"ColorLetra", L"ColorFondo", L"EstilosRell", L"ColorDegrade"};

constexpr short AnchoRotuloDentro = 54, ColorDentro = 70;
constexpr short AnchoCampo2Dentro = Dentro + AnchoDentro - Campo2;

/// Pieces in tab order, one after the other.
template <std::size_t N>
struct Composicion {
    Pieza piezas[N];
    std::size_t puestas = 0;

    template <std::size_t M>
    constexpr void Agregar(const Pieza (&nuevas)[M]) {
        for (const Pieza& pieza : nuevas)
            piezas[puestas++] = pieza;
    }
};

/// The frame with the two colours and the fill.
constexpr std::size_t PiezasDeColor = 7;
template <std::size_t N>
constexpr void PonColores(Composicion<N>& pagina, const NombresDeEditor& n, short y, short alto) {
    const auto en = [y](int resto) { return static_cast<short>(y + resto); };
    pagina.Agregar({
        {Grupo, n.marco, 7, y, 238, alto, L"Colores"},
        {Rotulo, u"", Dentro, en(12), AnchoRotuloDentro, 12, L"Color de &letra:", n.marco},
        {BotonColor, n.letra, ColorDentro, en(11), 32, 14, L"Color de letra", n.marco,
         n.propiedadLetra},
        {Rotulo, u"", Rotulo2, en(12), AnchoRotulo, 12, L"&EstiloRelleno:", n.marco},
        {Lista, n.estilo, Campo2, en(12), AnchoCampo2Dentro, 12, L"", n.marco, n.propiedadEstilo},
        {Rotulo, u"", Dentro, en(29), AnchoRotuloDentro, 12, L"Color de &Fondo:", n.marco},
        {BotonColor, n.fondo, ColorDentro, en(28), 32, 14, L"Color de Fondo", n.marco,
         n.propiedadFondo},
    });
}

/// The row of stops with its buttons, and the preview, `alto` units high.
constexpr std::size_t PiezasDeFila = 4;
template <std::size_t N>
constexpr void PonFila(Composicion<N>& pagina, const NombresDeEditor& n, short y, short alto) {
    const auto en = [y](int resto) { return static_cast<short>(y + resto); };
    pagina.Agregar({
        {FilaDeTopes, n.fila, Dentro, en(42), AnchoDentro, 28, L"", n.marco, n.propiedadFila},
        {Boton, n.mas, Dentro, en(74), 42, 14, L"+  &Color", n.marco},
        {Boton, n.menos, 60, en(74), 42, 14, L"- C&olor", n.marco},
        {Cuadro, n.vista, Dentro, en(94), AnchoDentro, alto, L"", n.marco},
    });
}

// The two states lie over each other. Both have their colours before the one angle, and their rows
// behind it: the tab key passes over what is hidden, and so goes down the page in each of them.
constexpr auto ComponerColores() {
    constexpr short y = 26, alto = 146;
    Composicion<3 + 2 * (PiezasDeColor + PiezasDeFila + 2) + 2> c{};
    c.Agregar({
        {Opcion, u"OptNorSob(0)", 7, 8, 50, 12, L"&Normal"},
        {Opcion, u"OptNorSob(1)", 60, 8, 50, 12, L"&Sobre"},
        {Boton, u"cbIgual", 190, 7, 55, 14, L"I&gualar"},
    });
    PonColores(c, Normal, y, alto);
    PonColores(c, Sobre, y, alto);
    c.Agregar({
        {Rotulo, u"lblAngulo", Rotulo2, y + 29, AnchoRotulo, 12, L"&Angulo :"},
        {Campo, u"txtAngulo", Campo2, y + 29, 34, 12},
    });
    const VistaTexto inversiones[2][2] = {{u"cbInvColores(0)", u"cbInvOrden(0)"},
                                          {u"cbInvColores(1)", u"cbInvOrden(1)"}};
    for (const NombresDeEditor* n : {&Normal, &Sobre}) {
        const auto& [colores, orden] = inversiones[n == &Normal ? 0 : 1];
        PonFila(c, *n, y, 44);
        c.Agregar({
            {Boton, colores, 108, y + 74, 64, 14, L"&Invertir Colores", n->marco},
            {Boton, orden, 176, y + 74, 62, 14, L"Invertir O&rden", n->marco},
        });
    }
    return c;
}
constexpr auto PiezasDeColores = ComponerColores();
static_assert(PiezasDeColores.puestas == std::size(PiezasDeColores.piezas));

constexpr auto ComponerColoresArea() {
    Composicion<15 + PiezasDeColor + PiezasDeFila> c{};
    c.Agregar({
        Rotula(Rotulo1, 7, L"&Texto"),
        {Campo, u"Texto", Campo1, 7, Rotulo2 + AnchoRotulo - 10 - Campo1, 12, L"", u"", L"Caption"},
        Marca(u"ChkEnabled", Campo2, 7, AnchoCampo, L"&Habilitado", L"Enabled"),
        Rotula(Rotulo1, 24, L"&BackStyle"),
        Enumera(u"comBkStyle", Campo1, 24, L"BackStyle"),
        Rotula(Rotulo2, 24, L"&Separaci"),
        Enumera(u"comSepara", Campo2, 24, L"SeparaBorde"),
        Rotula(Rotulo1, 41, L"A&ncho Borde"),
        Enumera(u"comAnchoB", Campo1, 41, L"AnchoBorde"),
        Rotula(Rotulo2, 41, L"Estilo Bor&de"),
        Enumera(u"ComEstBorde", Campo2, 41, L"EstilosBord"),
        Rotula(Rotulo1, 58, L"Tipo Let&ra"),
        Enumera(u"comTipoLetra", Campo1, 58, L"TipoLetra"),
        Rotula(Rotulo2, 58, L"Alin-Te&xt"),
        Enumera(u"CobAlinText", Campo2, 58, L"AlinText"),
    });
    constexpr short y = 75;
    PonColores(c, DelPanel, y, 128);
    PonFila(c, DelPanel, y, 26);
    return c;
}
constexpr auto PiezasDeColoresArea = ComponerColoresArea();
static_assert(PiezasDeColoresArea.puestas == std::size(PiezasDeColoresArea.piezas));

} // namespace

const windows::DisenoPagina DisenoGeneral{L"General", Ancho, 179, PiezasGeneral};
const windows::DisenoPagina DisenoColores{L"Colores", Ancho, 179, PiezasDeColores.piezas};
const windows::DisenoPagina DisenoColoresArea{L"Colores", Ancho, 210, PiezasDeColoresArea.piezas};

const windows::DisenoPagina* DisenoDe(REFGUID pagina) {
    if (pagina == DatosProPGeneral.clase)
        return &DisenoGeneral;
    if (pagina == DatosProPColores.clase)
        return &DisenoColores;
    if (pagina == DatosProPColoresArea.clase)
        return &DisenoColoresArea;
    return nullptr;
}

bool Edita(const windows::DisenoPagina& diseno, const wchar_t* propiedad) {
    return std::any_of(diseno.piezas.begin(), diseno.piezas.end(), [&](const Pieza& pieza) {
        return pieza.propiedad && std::wstring_view(pieza.propiedad) == propiedad;
    });
}

} // namespace pincela::componente
