#pragma once

namespace vlt::contract {

/// Where the pylons' catalogues, templates and colours lie below the install directory.
inline constexpr char PylonFolder[] = "addons/telecom/pylons";

} // namespace vlt::contract
