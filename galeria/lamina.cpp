#include "galeria/lamina.h"

#include "galeria/trazos.h"

#include <cmath>

namespace galeria {

namespace {

constexpr COLORREF ColorTitular = RGB(17, 24, 39);
constexpr COLORREF ColorTitulo = RGB(55, 65, 81);
constexpr COLORREF ColorLinea = RGB(222, 227, 235);

void Escribir(HDC hdc, const wchar_t* texto, RECT r, const FuenteGdi& fuente, COLORREF color,
              UINT formato) {
    const HGDIOBJ anterior = SelectObject(hdc, fuente.get());
    SetTextColor(hdc, color);
    SetBkMode(hdc, TRANSPARENT);
    DrawTextW(hdc, texto, -1, &r, formato | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    SelectObject(hdc, anterior);
}

} // namespace

RECT LugarDeMuestra(const Grupo& grupo, int n) {
    const int columna = n % grupo.columnas;
    const int fila = n / grupo.columnas;
    const int util = grupo.ancho - 2 * Margen + Hueco;
    const int izquierda = grupo.x + Margen + util * columna / grupo.columnas;
    const int derecha = grupo.x + Margen + util * (columna + 1) / grupo.columnas - Hueco;
    const int cabecera = grupo.cabeceras[0] ? AltoCabecera : 0;
    const int arriba =
        grupo.y + Margen + AltoTitulo + cabecera + fila * (grupo.altoBoton + Hueco) - 4;
    return {izquierda, arriba, derecha, arriba + grupo.altoBoton};
}

FuenteGdi CrearFuenteGdi(double puntos, int peso) {
    const int alto = -static_cast<int>(std::lround(Escala(96) * puntos / 72));
    return FuenteGdi(CreateFontW(alto, 0, 0, 0, peso, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                                 OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY,
                                 DEFAULT_PITCH | FF_SWISS, L"Arial"));
}

Lamina::Lamina(const Hoja& hoja)
    : hoja_(hoja), titular_(CrearFuenteGdi(18, FW_BOLD)), titulo_(CrearFuenteGdi(10, FW_BOLD)),
      texto_(CrearFuenteGdi(9, FW_NORMAL)) {}

void Lamina::PintarTarjeta(HDC hdc, const RECT& lugar, const wchar_t* titulo) const {
    const RECT r = Escalar(lugar);
    SetDCBrushColor(hdc, ColorTarjeta);
    SetDCPenColor(hdc, ColorLinea);
    const HGDIOBJ pluma = SelectObject(hdc, GetStockObject(DC_PEN));
    const HGDIOBJ brocha = SelectObject(hdc, GetStockObject(DC_BRUSH));
    RoundRect(hdc, r.left, r.top, r.right, r.bottom, Escala(8), Escala(8));
    SelectObject(hdc, brocha);
    SelectObject(hdc, pluma);
    RECT renglon = Escalar({lugar.left + Margen, lugar.top + 9, lugar.right - Margen, 0});
    renglon.bottom = renglon.top + Escala(20);
    Escribir(hdc, titulo, renglon, titulo_, ColorTitulo, DT_LEFT);
}

void Lamina::PintarNota(HDC hdc, const RECT& lugar, const wchar_t* texto) const {
    Escribir(hdc, texto, Escalar(lugar), texto_, ColorLetraFloja, DT_LEFT);
}

void Lamina::PintarCabeceras(HDC hdc, const Grupo& grupo) const {
    for (int i = 0; i < grupo.columnas && grupo.cabeceras[i]; ++i) {
        RECT r = Escalar(LugarDeMuestra(grupo, i));
        r.bottom = r.top - Escala(1);
        r.top -= Escala(AltoCabecera);
        Escribir(hdc, grupo.cabeceras[i], r, texto_, ColorLetraFloja, DT_CENTER);
    }
}

void Lamina::Pintar(HDC hdc, const RECT& cliente) const {
    Llenar(hdc, cliente, ColorLamina);
    Escribir(hdc, hoja_.titular, Escalar({24, 10, 500, 42}), titular_, ColorTitular, DT_LEFT);
    Escribir(hdc, hoja_.subtitulo, Escalar({24, 44, 500, 64}), texto_, ColorLetraFloja, DT_LEFT);
    for (const Grupo& grupo : hoja_.grupos) {
        PintarTarjeta(hdc, {grupo.x, grupo.y, grupo.x + grupo.ancho, grupo.y + grupo.alto},
                      grupo.titulo);
        PintarCabeceras(hdc, grupo);
    }
    PintarTarjeta(hdc, TarjetaEventos, L"Eventos");
    Escribir(hdc, hoja_.pie, Escalar({24, 668, 956, 696}), texto_, ColorLetraFloja, DT_LEFT);
}

} // namespace galeria
