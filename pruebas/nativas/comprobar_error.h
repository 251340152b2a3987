// Which run-time error something ends in.
#pragma once

#include "common/errores.h"

#include <doctest/doctest.h>

#include <string>

namespace doctest {

/// Lets a failed comparison of texts print them.
template <>
struct StringMaker<pincela::Texto> {
    static String convert(const pincela::Texto& texto) {
        std::string escrito = "\"";
        for (const char16_t letra : texto) {
            if (letra >= 0x20 && letra < 0x7F)
                escrito.push_back(static_cast<char>(letra));
            else
                escrito += "\\u" + std::to_string(static_cast<unsigned>(letra));
        }
        return (escrito + "\"").c_str();
    }
};

} // namespace doctest

namespace pincela::pruebas {

/// Number of the error raised, 0 when there was none.
template <class Accion>
int ErrorDe(Accion accion) {
    try {
        accion();
    } catch (const ErrorEjecucion& error) {
        return static_cast<int>(error.Numero());
    }
    return 0;
}

inline constexpr int kDesbordamiento = static_cast<int>(NumeroError::Desbordamiento);
inline constexpr int kSubindice = static_cast<int>(NumeroError::Subindice);
inline constexpr int kDivision = static_cast<int>(NumeroError::DivisionPorCero);
inline constexpr int kTipos = static_cast<int>(NumeroError::TiposNoCoinciden);
inline constexpr int kNulo = static_cast<int>(NumeroError::NuloNoValido);

} // namespace pincela::pruebas
