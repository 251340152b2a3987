// Names, identifiers and types as the manual writes them.
#pragma once

#include "componente/descripcion.h"

#include <string>
#include <string_view>

namespace pincela::manual {

std::string Utf8(std::wstring_view texto);
std::string Escrito(const GUID& guid);

/// A cell of a table: what would end it is escaped.
std::string Celda(std::wstring_view texto);

/// "Long", "String"; enumerations by their name, with a link to their page.
std::string NombreDelTipo(const componente::Tipo& tipo);

/// "Degrade(hdc As Long, ByVal Esti As TEstilosR, [Angulo As Integer])".
std::string Llamada(const wchar_t* nombre,
                    const std::vector<componente::DescripcionParametro>& parametros);

} // namespace pincela::manual
