// The separators of the user's locale.
#pragma once

namespace pincela::windows {

/// Reads the user's decimal and thousands separators and puts them in force for conversions.
/// Called at start and whenever the platform tells that the settings changed.
void LeerRegional();

} // namespace pincela::windows
