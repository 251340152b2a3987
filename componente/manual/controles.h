// Controls that live without a window, for whoever asks them for their values.
#pragma once

#include <memory>

namespace pincela::manual {

/// A new control on a host of its own. Defined for the six controls.
template <class Nucleo>
std::shared_ptr<Nucleo> Hacer();

} // namespace pincela::manual
