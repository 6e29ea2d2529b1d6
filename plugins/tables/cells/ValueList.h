#pragma once

#include <string_view>
#include <vector>

namespace vlt::driver {

/// The values in a cell that holds one per sector: "120/240/0", "30; 28,5; 30", "0-120-240",
/// "0 | 120 |", "[0, 120, 240]", lines. They keep their position: an empty part stands for a sector
/// without a value. A cell without a list gives one part. A single comma between digits, as in
/// "133,5", is a decimal mark.
std::vector<std::string_view> splitList(std::string_view text);

/// The same for names: commas and dashes are parts of them.
std::vector<std::string_view> splitNames(std::string_view text);

} // namespace vlt::driver
