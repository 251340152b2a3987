#include "galeria/pagina_paneles.h"

#include "anfitrion/tardio.h"
#include "galeria/escala.h"

#include <array>

namespace galeria {

using namespace anfitrion;

namespace {

constexpr Color Blanco = Rgb(255, 255, 255);
constexpr Color Tinta = Rgb(31, 41, 55);
constexpr Color Niebla = Rgb(241, 245, 249);
constexpr Color Cielo = Rgb(191, 219, 254);
constexpr Color Azul = Rgb(37, 99, 235);
constexpr Color Marino = Rgb(30, 58, 138);

constexpr int Vertical = 2, BordeNormal = 1, BordeColores = 3, IzqSup = 0;

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

/// The place that the samples of borders leave free for the platform's own.
RECT LugarDelGrupo() {
    return LugarDeMuestra(HojaDePaneles.grupos[1], 5);
}

} // namespace

PaginaPaneles::PaginaPaneles(const std::optional<Componente>& componente, HWND padre)
    : PaginaMuestras(HojaDePaneles, componente, padre) {
    const RECT grupo = Escalar(LugarDelGrupo());
    // Transparent, so that the card is painted inside its line too.
    const HWND cuadro = CreateWindowExW(
        WS_EX_TRANSPARENT, L"BUTTON", L"De grupo", WS_CHILD | WS_VISIBLE | BS_GROUPBOX, grupo.left,
        grupo.top, Ancho(grupo), Alto(grupo), Forma().Ventana(), nullptr, nullptr, nullptr);
    SendMessageW(cuadro, WM_SETFONT, reinterpret_cast<WPARAM>(Hojas().Texto()), TRUE);
}

void PaginaPaneles::PintarDemas(HDC hdc) const {
    Hojas().PintarTarjeta(hdc, TarjetaPanel, L"Un panel con controles dentro");
    // The group box paints no more than its line and its title.
    const RECT grupo = Escalar(LugarDelGrupo());
    FillRect(hdc, &grupo, GetSysColorBrush(COLOR_BTNFACE));
}

void PaginaPaneles::PonerDemas() {
    PonerPanelConControles();
    PonerMarcas();
}

void PaginaPaneles::PonerPanelConControles() {
    static constexpr Par DelPanel[] = {
        {L"Caption", L"Datos del cliente"},
        {L"AlinText", IzqSup},
        {L"SeparaBorde", 3},
        {L"EstilosBord", BordeColores},
        {L"EstilosRell", Vertical},
        {L"ColorDegrade", Tonos(Niebla, Cielo)},
        {L"ColorLetra", Marino},
        {L"Font", Fuente{9, true}},
    };
    static constexpr Par DelTransparente[] = {
        {L"Caption", L"Transparente"}, {L"AlinText", IzqSup},
        {L"EstilosBord", BordeNormal}, {L"BackStyle", 0},
        {L"ColorLetra", Azul},
    };
    panel_ = PonerControl(L"Area", L"Panel", LugarPanel, {}, DelPanel);
    int x = 16;
    for (const wchar_t* titulo : {L"Nuevo", L"Buscar", L"Guardar"}) {
        const Par propios[] = {{L"Caption", titulo}};
        PonerControl(L"Botonazo", titulo, {x, 48, x + 88, 80}, DelBoton, propios, panel_.get());
        x += 100;
    }
    static constexpr Par DeLaCaja[] = {
        {L"ColorFonTexto", Blanco},
        {L"ToolTipText", L"Una caja de texto dentro del panel"},
    };
    const Par deTexto[] = {{L"Text", L"Ana Gómez"}};
    PonerControl(L"TboxSS", L"Caja", {16, 90, 304, 114}, DeLaCaja, deTexto, panel_.get());
    const auto dentro =
        PonerControl(L"Area", L"Interior", {326, 26, 482, 112}, {}, DelTransparente, panel_.get());
    const Par propios[] = {{L"Caption", L"Borrar"}};
    PonerControl(L"Botonazo", L"Borrar", {30, 32, 126, 64}, DelBoton, propios, dentro.get());
}

void PaginaPaneles::PonerMarcas() {
    const Par propios[] = {{L"Caption", L"Poner marcas"}};
    marcas_ = PonerControl(L"Botonazo", L"Marcas", LugarMarcas, DelBoton, propios);
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
    Forma().Esperar(100);
}

} // namespace galeria
