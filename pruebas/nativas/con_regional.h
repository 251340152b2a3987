// A locale for the length of a test.
#pragma once

#include "common/conversion.h"

#include <utility>

namespace pincela::pruebas {

/// Separators in force while it lives.
class ConRegional {
  public:
    explicit ConRegional(Regional regional) : antes_(std::exchange(enVigor, regional)) {
        PonLectorRegional([] { return enVigor; });
    }
    ConRegional(const ConRegional&) = delete;
    ConRegional& operator=(const ConRegional&) = delete;
    ~ConRegional() { enVigor = antes_; }

  private:
    static inline Regional enVigor;
    Regional antes_;
};

} // namespace pincela::pruebas
