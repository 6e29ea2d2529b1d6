#pragma once

#include "plugins/tables/roles/Vocabulary.h"

#include <map>
#include <string>
#include <vector>

namespace vlt::driver {

/// The columns of a table of sites that its values show, as a header would name them: the position,
/// then directions of antennas, their heights beside them, the first column of names. Empty unless
/// exactly two neighbouring columns, or one with both, are convincing as a position.
///
/// @param columns  texts by column and row; empty for none
std::map<int, std::string> siteColumnsByValues(const std::vector<std::vector<std::string>> &columns,
                                               const Vocabulary &vocabulary);

} // namespace vlt::driver
