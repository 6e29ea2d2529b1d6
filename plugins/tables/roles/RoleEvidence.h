#pragma once

#include "plugins/tables/roles/ColumnFacts.h"

#include <string>

namespace vlt::driver {

/// Why a column has its role, as a text for the user: its name and what its values are like.
std::string roleEvidence(const std::string &name, const ColumnFacts &facts);

} // namespace vlt::driver
