// The input focus of a control: one for its window and all of its edit fields.
#pragma once

#include "plataforma/windows/nucleo.h"

namespace pincela::windows {

/// A window of the control got the focus; moving among them is no news. False when the
/// environment is gone afterwards.
bool FocoEntra(Nucleo& nucleo);
/// Input may reach the control again: if it has the focus, now is the time to tell it.
void FocoDescongelado(Nucleo& nucleo);
/// A window of the control lost the focus to `siguiente`.
bool FocoSale(Nucleo& nucleo, HWND siguiente);

/// TAB, alone or with SHIFT, as a key or as its character: a step through the form.
bool EsTabulador(UINT mensaje, WPARAM w);

} // namespace pincela::windows
