// The layouts of the three property pages.
#pragma once

#include "plataforma/windows/diseno_pagina.h"

namespace pincela::componente {

extern const windows::DisenoPagina DisenoGeneral;
extern const windows::DisenoPagina DisenoColores;
extern const windows::DisenoPagina DisenoColoresArea;

/// The layout of a page of this component; null for any other class.
const windows::DisenoPagina* DisenoDe(REFGUID pagina);

/// Whether a page lets the user edit the property.
bool Edita(const windows::DisenoPagina& diseno, const wchar_t* propiedad);

} // namespace pincela::componente
