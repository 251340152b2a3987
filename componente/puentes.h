// The platform's own marshallers, which carry our interfaces between threads.
#pragma once

#include "componente/guid.h"

namespace pincela::componente {

inline constexpr GUID PuenteDual = "{00020424-0000-0000-C000-000000000046}"_guid;
/// Of dispatch-only interfaces: the events.
inline constexpr GUID PuenteDespacho = "{00020420-0000-0000-C000-000000000046}"_guid;

} // namespace pincela::componente
