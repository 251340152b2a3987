// The sheet under the buttons: title, cards and headings.
#pragma once

#include "galeria/muestras.h"

#include <windows.h>

#include <memory>

namespace galeria {

/// Right column of the page, at 96 dpi: the card of the event log.
constexpr RECT TarjetaEventos{716, 76, 956, 664};
constexpr RECT LugarDiario{TarjetaEventos.left + 8, TarjetaEventos.top + 36,
                           TarjetaEventos.right - 8, TarjetaEventos.bottom - 54};
constexpr int AnchoPagina = 980;
constexpr int AltoPagina = 700;
/// Inside of a card: space to the edge, height of the heading, of the column captions, and the gap
/// between buttons.
constexpr int Margen = 14;
constexpr int AltoTitulo = 26;
constexpr int AltoCabecera = 18;
constexpr int Hueco = 8;

constexpr COLORREF ColorLamina = RGB(243, 245, 249);
constexpr COLORREF ColorTarjeta = RGB(255, 255, 255);

/// Place of the n-th button of a group, at 96 dpi.
RECT LugarDeMuestra(const Grupo& grupo, int n);

struct SoltarObjeto {
    void operator()(void* objeto) const { DeleteObject(objeto); }
};
using FuenteGdi = std::unique_ptr<void, SoltarObjeto>;
FuenteGdi CrearFuenteGdi(double puntos, int peso);

class Lamina {
  public:
    Lamina();
    /// The page of buttons.
    void Pintar(HDC hdc, const RECT& cliente) const;
    /// What every page has: title, motto, the card of events, a line at the foot.
    struct Leyendas {
        const wchar_t *titular, *lema, *pie;
    };
    void PintarBase(HDC hdc, const RECT& cliente, const Leyendas& leyendas) const;
    /// `lugar` at 96 dpi.
    void PintarTarjeta(HDC hdc, const RECT& lugar, const wchar_t* titulo) const;
    HFONT Texto() const { return static_cast<HFONT>(texto_.get()); }

  private:
    void PintarCabeceras(HDC hdc, const Grupo& grupo) const;

    FuenteGdi titular_, titulo_, texto_;
};

} // namespace galeria
