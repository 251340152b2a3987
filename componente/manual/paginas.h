// The generated pages of the manual.
#pragma once

#include <string>
#include <vector>

namespace pincela::manual {

struct Pagina {
    std::string archivo; ///< "Botonazo.md"
    std::string texto;   ///< Markdown in UTF-8, lines ended by a line feed
};

/// An index, a page for each class and one for the enumerations.
std::vector<Pagina> Paginas();

} // namespace pincela::manual
