#include "galeria/pagina_paneles.h"

#include "galeria/escala.h"
#include "galeria/valores.h"

#include <algorithm>
#include <array>

namespace galeria {

using namespace anfitrion;

namespace {

constexpr CLSID ClaseArea = {
    0xE8ED987E, 0x24A6, 0x44AE, {0x89, 0xAE, 0xA7, 0x53, 0x46, 0xF5, 0x93, 0x9A}};
constexpr CLSID ClaseBotonazo = {
    0x4F01CAAB, 0xE98C, 0x4DD8, {0xA1, 0x11, 0xA7, 0x9C, 0xD4, 0xA6, 0xF3, 0x07}};

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

/// Cards of samples: the tables of the page of buttons, with panels for buttons.
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
     Rellenos},
    {L"Bordes, junto al cuadro de grupo de la plataforma",
     24,
     226,
     676,
     140,
     6,
     88,
     {},
     {{{L"AlinText", Medio}, {L"ColorFondo", CaraDeBoton}, {L"SeparaBorde", 2}}},
     Bordes},
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
     Letras},
};

constexpr RECT TarjetaPanel{24, 486, 700, 664};
constexpr RECT LugarPanel{38, 524, 536, 652};
constexpr RECT LugarMarcas{552, 524, 686, 556};

constexpr Par DelBoton[] = {
    {L"EstilosRell", Vertical},
    {L"ColorDegradeN", Tonos(Blanco, Rgb(226, 232, 240))},
    {L"ColorDegradeS", Tonos(Blanco, Cielo)},
    {L"ColorLetra", Tinta},
    {L"ColorLetraSobre", Azul},
};

} // namespace

PaginaPaneles::PaginaPaneles(const std::optional<Componente>& componente, HWND padre)
    : forma_(OpcionesDePagina(padre)),
      diario_(forma_.Ventana(), Escalar(LugarDiario), lamina_.Texto()), componente_(componente) {
    forma_.alPintar = [this](HDC hdc, const RECT& sucio) { Pintar(hdc, sucio); };
    const RECT grupo = Escalar(LugarDeMuestra(Grupos[1], 5));
    // Transparent, so that the card is painted inside its line too.
    const HWND cuadro = CreateWindowExW(
        WS_EX_TRANSPARENT, L"BUTTON", L"De grupo", WS_CHILD | WS_VISIBLE | BS_GROUPBOX, grupo.left,
        grupo.top, Ancho(grupo), Alto(grupo), forma_.Ventana(), nullptr, nullptr, nullptr);
    SendMessageW(cuadro, WM_SETFONT, reinterpret_cast<WPARAM>(lamina_.Texto()), TRUE);
    if (componente_) {
        PonerMuestras();
        PonerPanelConControles();
        PonerMarcas();
    }
    // Last in the tab order.
    forma_.AgregarVentana(diario_.Ventana(), static_cast<long>(forma_.Controles().size()));
}

void PaginaPaneles::Pintar(HDC hdc, const RECT& cliente) const {
    lamina_.PintarBase(hdc, cliente,
                       {L"Area", L"Galería de Pincela: paneles que llevan otros controles",
                        L"Un clic en un panel, o Espacio cuando tiene el foco, es un Click; lo que "
                        L"está dentro se mueve y se recorta con él."});
    for (const Grupo& grupo : Grupos)
        lamina_.PintarTarjeta(hdc, {grupo.x, grupo.y, grupo.x + grupo.ancho, grupo.y + grupo.alto},
                              grupo.titulo);
    lamina_.PintarTarjeta(hdc, TarjetaPanel, L"Un panel con controles dentro");
    // The group box paints no more than its line and its title.
    const RECT grupo = Escalar(LugarDeMuestra(Grupos[1], 5));
    FillRect(hdc, &grupo, GetSysColorBrush(COLOR_BTNFACE));
}

PaginaPaneles::Control PaginaPaneles::Poner(REFCLSID clase, const std::wstring& nombre,
                                            const RECT& lugar, std::span<const Par> comunes,
                                            std::span<const Par> propios, ControlAlojado* dentro) {
    const RECT pixeles = Escalar(lugar);
    const auto bolsa = BolsaDe({comunes, propios}, pixeles);
    const auto control =
        forma_.Agregar(*componente_, clase, nombre, pixeles, {.bolsa = bolsa.get()}, dentro);
    control->Conectar([this, nombre](Evento& evento) { diario_.Anotar(nombre, evento); });
    return control;
}

void PaginaPaneles::PonerMuestras() {
    for (const Grupo& grupo : Grupos)
        for (std::size_t n = 0; n < grupo.muestras.size(); ++n) {
            const Muestra& muestra = grupo.muestras[n];
            std::array<Par, 9> comunes{};
            std::copy(grupo.comunes.begin(), grupo.comunes.end(), comunes.begin());
            comunes.back() = {L"Caption", muestra.titulo};
            if (*muestra.titulo)
                Poner(ClaseArea, muestra.titulo, LugarDeMuestra(grupo, static_cast<int>(n)),
                      comunes, muestra.pares);
        }
}

void PaginaPaneles::PonerPanelConControles() {
    static constexpr Par DelPanel[] = {
        {L"Caption", L"Datos del cliente"},
        {L"AlinText", IzqSup},
        {L"SeparaBorde", 3},
        {L"EstilosBord", Colores},
        {L"EstilosRell", Vertical},
        {L"ColorDegrade", Tonos(Niebla, Cielo)},
        {L"ColorLetra", Marino},
        {L"Font", Fuente{9, true}},
    };
    static constexpr Par DelTransparente[] = {
        {L"Caption", L"Transparente"}, {L"AlinText", IzqSup},
        {L"EstilosBord", Normal},      {L"BackStyle", 0},
        {L"ColorLetra", Azul},
    };
    panel_ = Poner(ClaseArea, L"Panel", LugarPanel, {}, DelPanel);
    int x = 16;
    for (const wchar_t* titulo : {L"Nuevo", L"Buscar", L"Guardar"}) {
        const Par propios[] = {{L"Caption", titulo}};
        Poner(ClaseBotonazo, titulo, {x, 48, x + 88, 80}, DelBoton, propios, panel_.get());
        x += 100;
    }
    const auto dentro =
        Poner(ClaseArea, L"Interior", {326, 26, 482, 112}, {}, DelTransparente, panel_.get());
    const Par propios[] = {{L"Caption", L"Borrar"}};
    Poner(ClaseBotonazo, L"Borrar", {30, 32, 126, 64}, DelBoton, propios, dentro.get());
}

void PaginaPaneles::PonerMarcas() {
    const Par propios[] = {{L"Caption", L"Poner marcas"}};
    marcas_ = Poner(ClaseBotonazo, L"Marcas", LugarMarcas, DelBoton, propios);
    marcas_->Conectar([this](Evento& evento) {
        if (evento.nombre == L"Click")
            CambiarMarcas();
    });
}

void PaginaPaneles::CambiarMarcas() {
    marcado_ = !marcado_;
    Llamar(panel_->Despacho(), L"ManAreas", {Variante(marcado_)});
    anfitrion::Poner(marcas_->Despacho(), L"Caption",
                     marcado_ ? L"&Quitar marcas" : L"&Poner marcas");
}

void PaginaPaneles::Ensayar() {
    if (!panel_)
        return;
    const LPARAM punto = MAKELPARAM(Escala(20), Escala(100));
    SendMessageW(panel_->Ventana(), WM_LBUTTONDOWN, MK_LBUTTON, punto);
    SendMessageW(panel_->Ventana(), WM_LBUTTONUP, 0, punto);
    CambiarMarcas();
    forma_.Esperar(100);
}

} // namespace galeria
