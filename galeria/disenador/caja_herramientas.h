// The controls that the designer offers.
#pragma once

#include "anfitrion/componente.h"

#include <string>

namespace galeria {

inline constexpr const wchar_t* ClasesParaColocar[] = {L"Pincela.Botonazo", L"Pincela.Area",
                                                       L"Pincela.Tbox",     L"Pincela.TBoxML",
                                                       L"Pincela.TboxSS",   L"Pincela.TboxSSML"};

/// The picture for a toolbox that a class registers; null when there is none. The caller deletes
/// it.
HBITMAP ImagenDe(const anfitrion::Componente& componente, const std::wstring& clase);

} // namespace galeria
