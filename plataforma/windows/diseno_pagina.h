// The layout of a property page: its widgets in tab order, in dialog units.
#pragma once

#include "common/texto.h"

#include <windows.h>

#include <cstdint>
#include <span>
#include <vector>

namespace pincela::windows {

enum class ClasePieza {
    Rotulo,
    Campo,
    Casilla,
    Opcion,
    Lista,
    Deslizador,
    Boton,
    BotonColor,
    Grupo,       // frame with a title around what lies in it
    FilaDeTopes, // frame that makes its own colour buttons
    Cuadro,      // sunken picture box
    CuadroLibre, // picture box without an edge, for a shape of its own
};

struct Pieza {
    ClasePieza clase;
    VistaTexto nombre; // empty for what nobody asks for
    short x, y, ancho, alto;
    /// "&" marks the mnemonic. Of a colour button it is what a screen reader says.
    const wchar_t* texto = L"";
    /// Name of the frame it is shown, hidden and disabled with.
    VistaTexto dentro = {};
    /// Property of the control that is edited here.
    const wchar_t* propiedad = nullptr;
};

struct DisenoPagina {
    const wchar_t* titulo;
    short ancho, alto;
    std::span<const Pieza> piezas;
};

/// Dialog units are 4 to the average width of a character and 8 to its height; at 96 dots per inch
/// and with the font of dialogs one is a pixel and a half wide, 22.5 twips.
constexpr std::int32_t TwipsDe(int unidades) {
    return unidades * 45 / 2;
}

/// Window class of the picture boxes. It asks its dialog to paint, as owner-drawn widgets do.
inline constexpr wchar_t ClaseDeCuadro[] = L"PincelaCuadro";

/// Window of the first piece; the others count on from it.
inline constexpr WORD PrimeraPieza = 1000;

/// Windows of the stops of a row, which is the window `fila`; those of two rows never meet.
constexpr WORD PrimerTope(WORD fila) {
    constexpr int Topes = 512; // more than a row can have
    return static_cast<WORD>(0x2000 + (fila - PrimeraPieza) * Topes);
}

/// The dialog as the platform takes it.
std::vector<WORD> PlantillaDe(const DisenoPagina& diseno);
/// Size in pixels that the page will have.
SIZE MedidaDe(const DisenoPagina& diseno);

} // namespace pincela::windows
