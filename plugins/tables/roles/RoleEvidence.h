#pragma once

#include "plugins/tables/roles/ColumnFacts.h"
#include "plugins/tables/roles/Role.h"

#include <string>

namespace vlt::driver {

/// Why a column has its role, as a text for the user: its name and what its values are like.
/// Numbers that are names, such as the id 056001, have no range.
std::string roleEvidence(const std::string &name, Role role, const ColumnFacts &facts);

} // namespace vlt::driver
