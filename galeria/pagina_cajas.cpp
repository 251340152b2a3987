#include "galeria/pagina_cajas.h"

#include "anfitrion/tardio.h"
#include "galeria/escala.h"

#include <algorithm>
#include <array>

namespace galeria {

using namespace anfitrion;

namespace {

constexpr RECT Tarjeta{370, 428, 700, 664};
constexpr int AltoCampo = 21, AltoRenglon = 32, AnchoNombre = 80;
constexpr int Arriba = Tarjeta.top + 36;

struct CampoDeAlta {
    const wchar_t* nombre;
    int tipo; ///< TText
    const wchar_t* ayuda;
    int alineacion;
};

constexpr CampoDeAlta Campos[] = {
    {L"Nombre", 0, L"Nombre y apellido", 0},
    {L"Código", 1, L"Letras del código, en mayúsculas", 0},
    {L"Cantidad", 2, L"Cantidad, en unidades", 1},
    {L"Precio", 3, L"Precio, con coma decimal", 1},
};
constexpr int CuantosCampos = static_cast<int>(std::size(Campos));

constexpr RECT LugarDeCampo(int n) {
    const int y = Arriba + n * AltoRenglon;
    return {Tarjeta.left + Margen + AnchoNombre, y, Tarjeta.right - Margen, y + AltoCampo};
}

/// Stripes behind the transparent samples, so that one sees through them.
void PintarFranjas(HDC hdc, const RECT& lugar) {
    const int izquierda = Escala(lugar.left), derecha = Escala(lugar.right);
    const int arriba = Escala(lugar.top), abajo = Escala(lugar.bottom);
    const int paso = Escala(6);
    for (int y = arriba, n = 0; y < abajo; y += paso, ++n) {
        const RECT franja{izquierda, y, derecha, std::min(y + paso, abajo)};
        SetDCBrushColor(hdc, n % 2 ? RGB(226, 238, 252) : RGB(206, 226, 250));
        FillRect(hdc, &franja, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    }
}

} // namespace

void PaginaCajas::PonerDemas() {
    const std::array<Par, 4> comunes{{{L"ColorFondo", Rgb(148, 163, 184)},
                                      {L"ColorFondoSobre", Rgb(37, 99, 235)},
                                      {L"BackStyle", 1},
                                      {L"Apariencia", 0}}};
    for (int n = 0; n < CuantosCampos; ++n) {
        const CampoDeAlta& campo = Campos[n];
        const std::array<Par, 3> propios{{{L"TipoTexto", campo.tipo},
                                          {L"ToolTipText", campo.ayuda},
                                          {L"AlinText", campo.alineacion}}};
        campos_.push_back(PonerControl(L"TboxSS", campo.nombre, LugarDeCampo(n), comunes, propios));
    }
    const RECT ultimo = LugarDeCampo(CuantosCampos);
    const std::array<Par, 6> deBoton{
        {{L"Caption", L"&Agregar"},
         {L"EstilosRell", 2},
         {L"ColorDegradeN", Tonos(Rgb(255, 255, 255), Rgb(187, 235, 213))},
         {L"ColorDegradeS", Tonos(Rgb(255, 255, 255), Rgb(134, 214, 176))},
         {L"ColorLetra", Rgb(31, 41, 55)},
         {L"ColorLetraSobre", Rgb(22, 101, 72)}}};
    const auto agregar =
        PonerControl(L"Botonazo", L"Agregar",
                     {ultimo.right - 100, ultimo.top, ultimo.right, ultimo.top + 30}, {}, deBoton);
    agregar->Conectar([this](Evento& evento) {
        if (evento.nombre == L"Click")
            Guardar();
    });
}

void PaginaCajas::PintarDemas(HDC hdc) const {
    for (const Grupo& grupo : HojaDeCajas.grupos)
        if (std::wstring_view(grupo.titulo) == L"Fondo y estado")
            PintarFranjas(hdc, {grupo.x + Margen - 4, LugarDeMuestra(grupo, 0).top - 4,
                                grupo.x + grupo.ancho - Margen + 4,
                                LugarDeMuestra(grupo, 5).bottom + 4});
    Hojas().PintarTarjeta(hdc, Tarjeta, L"Alta rápida: solo con Entrar");
    for (int n = 0; n < CuantosCampos; ++n) {
        RECT nombre = LugarDeCampo(n);
        nombre.right = nombre.left;
        nombre.left = Tarjeta.left + Margen;
        Hojas().PintarNota(hdc, nombre, Campos[n].nombre);
    }
    if (guardados_.empty())
        return;
    const RECT renglon = LugarDeCampo(CuantosCampos);
    const std::wstring texto = L"Guardados: " + std::to_wstring(guardados_.size());
    Hojas().PintarNota(hdc,
                       {Tarjeta.left + Margen, renglon.top, renglon.right - 108, renglon.top + 30},
                       texto.c_str());
}

/// Keeps the record and starts the next one.
void PaginaCajas::Guardar() {
    std::wstring alta;
    for (const auto& campo : campos_) {
        alta += Texto(Leer(campo->Despacho(), L"Text")) + L";";
        anfitrion::Poner(campo->Despacho(), L"Text", L"");
    }
    guardados_.push_back(alta);
    InvalidateRect(Forma().Ventana(), nullptr, FALSE);
    campos_.front()->Verbo(OLEIVERB_UIACTIVATE);
}

void PaginaCajas::Ensayar() {
    if (campos_.empty())
        return;
    campos_.front()->Verbo(OLEIVERB_UIACTIVATE);
    Forma().Esperar(50);
    // Straight into the queue: no keyboard is needed to take a picture.
    for (const wchar_t letra : std::wstring_view(L"Ana Gómez\rabc-7\r25\r12.5")) {
        PostMessageW(GetFocus(), WM_CHAR, letra, 1);
        Forma().Esperar(20);
    }
}

} // namespace galeria
