// The separators of the user's locale.
#pragma once

#include "common/conversion.h"

namespace pincela::windows {

/// The user's decimal and thousands separators as they are now. The platform answers out of its own
/// memory, which follows the settings: some hundredths of a microsecond.
Regional LeerRegional();

} // namespace pincela::windows
