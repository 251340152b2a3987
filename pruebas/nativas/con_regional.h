// A locale for the length of a test.
#pragma once

#include "common/conversion.h"

namespace pincela::pruebas {

/// Separators in force while it lives.
struct ConRegional {
    explicit ConRegional(Regional regional) { PonRegional(regional); }
    ConRegional(const ConRegional&) = delete;
    ConRegional& operator=(const ConRegional&) = delete;
    ~ConRegional() { PonRegional(antes); }

    Regional antes = RegionalActual();
};

} // namespace pincela::pruebas
