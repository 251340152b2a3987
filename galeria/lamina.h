// The sheet under the controls: title, cards and headings.
#pragma once

#include "galeria/muestras.h"
#include "galeria/trazos.h"

#include <windows.h>

#include <memory>

namespace galeria {

/// Right column of the page, at 96 dpi: the card of the event log.
constexpr RECT TarjetaEventos{716, 76, 956, 664};
constexpr int AnchoPagina = 980;
constexpr int AltoPagina = 700;
/// Inside of a card: space to the edge, height of the heading, of the column captions, and the gap
/// between controls.
constexpr int Margen = 14;
constexpr int AltoTitulo = 26;
constexpr int AltoCabecera = 18;
constexpr int Hueco = 8;

/// Place of the n-th control of a group, at 96 dpi.
RECT LugarDeMuestra(const Grupo& grupo, int n);

struct SoltarObjeto {
    void operator()(void* objeto) const { DeleteObject(objeto); }
};
using FuenteGdi = std::unique_ptr<void, SoltarObjeto>;
FuenteGdi CrearFuenteGdi(double puntos, int peso);

class Lamina {
  public:
    explicit Lamina(const Hoja& hoja);
    void Pintar(HDC hdc, const RECT& cliente) const;
    /// A card of its own, at 96 dpi.
    void PintarTarjeta(HDC hdc, const RECT& lugar, const wchar_t* titulo) const;
    /// A word in small letters, at 96 dpi.
    void PintarNota(HDC hdc, const RECT& lugar, const wchar_t* texto) const;
    HFONT Texto() const { return static_cast<HFONT>(texto_.get()); }

  private:
    void PintarCabeceras(HDC hdc, const Grupo& grupo) const;

    const Hoja& hoja_;
    FuenteGdi titular_, titulo_, texto_;
};

} // namespace galeria
