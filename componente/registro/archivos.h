// Names of files as the registry keeps them.
#pragma once

#include <string>

namespace pincela::componente {

/// True when both name one file of one place: letters large or small, short or long names, quotes
/// and the prefix of long paths make no difference. A copy, or a name that can't be resolved, is
/// another file.
bool MismoArchivo(const std::wstring& uno, const std::wstring& otro);

/// Name of a file that is there in the system's short form, where it keeps one; empty on failure.
std::wstring NombreCorto(const std::wstring& archivo);

/// The folder of a file, without a last separator.
std::wstring CarpetaDe(const std::wstring& archivo);

} // namespace pincela::componente
