// What the tables of members don't say: a class in two sentences, and its picture.
#pragma once

#include <string_view>

namespace pincela::manual {

struct Presentacion {
    std::wstring_view clase;
    const char* texto;
    const char* imagen; ///< below docs; null when there is none yet
};

/// The introduction of a class; an empty one when it has none.
Presentacion PresentacionDe(std::wstring_view clase);

} // namespace pincela::manual
