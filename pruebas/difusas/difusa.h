// What the fuzzed readers share.
#pragma once

#include "common/texto.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

/// A property that must hold for every input; where it does not the program stops, and the input is
/// kept.
inline void Exigir(bool cierto) {
    if (!cierto)
        std::abort();
}

inline pincela::Texto TextoDe(const std::uint8_t* datos, std::size_t largo) {
    pincela::Texto texto(largo / sizeof(char16_t), u'\0');
    if (!texto.empty())
        std::memcpy(texto.data(), datos, texto.size() * sizeof(char16_t));
    return texto;
}

/// Called by the fuzzer for each input; always 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo);
