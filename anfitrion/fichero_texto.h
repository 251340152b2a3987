// Whole files of text, in UTF-8.
#pragma once

#include <stdexcept>
#include <string>

namespace anfitrion {

/// A file that can't be read or written.
struct ErrorDeFichero : std::runtime_error {
    explicit ErrorDeFichero(std::wstring que);
    std::wstring texto; ///< for the user
};

std::wstring Ensanchar(const std::string& utf8);

/// They throw ErrorDeFichero. Of a file that can't be written whole nothing is promised.
std::wstring LeerTexto(const std::wstring& ruta);
void EscribirTexto(const std::wstring& ruta, const std::wstring& texto);

} // namespace anfitrion
