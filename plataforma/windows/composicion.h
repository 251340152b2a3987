// What a surface looks like: background, image and elements, in any context at any scale.
#pragma once

#include "plataforma/windows/silueta.h"

namespace pincela::windows {

/// Draws everything; where a transparent surface shows nothing the context keeps what it has.
void Componer(const Nucleo& nucleo, SuperficieWindows& superficie, const Destino& destino);

/// Draws the colour of the background alone; nothing where the surface is transparent.
void ComponerColor(SuperficieWindows& superficie, const Destino& destino);

/// Asks the window's parent to draw itself as it is behind the window; it may end everything.
void DibujarPadre(Nucleo& nucleo, HDC dc);

/// The pixels of a transparent surface's window that are drawn on; null without memory. `mezclada`
/// tells whether what is behind is seen through any of them.
DuenoRegion LoDibujado(const Nucleo& nucleo, SuperficieWindows& superficie, bool& mezclada);

/// Answers WM_PAINT: composes what needs painting off screen and copies it once. True when anything
/// of the surface itself did.
bool PintarVentana(Nucleo& nucleo, SuperficieWindows& superficie, Silueta& silueta);

/// Answers WM_PRINT and WM_PRINTCLIENT.
void ImprimirVentana(Nucleo& nucleo, SuperficieWindows& superficie, HDC dc, LPARAM banderas,
                     bool conHijas);

} // namespace pincela::windows
