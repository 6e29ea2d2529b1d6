#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vlt::contract {

/// The columns of a site table that information pages show and scenes draw, by their index among
/// the fields; -1 where none was recognised. The lists are in field order and independent of each
/// other; "transmitter" stands for the antenna of one sector.
struct SiteColumns
{
    int name = -1;
    int x = -1;
    int y = -1;
    int terrainHeight = -1;
    std::vector<int> sectorIds;
    std::vector<int> heights;
    std::vector<int> azimuths;
    std::vector<int> tilts;
};

/// Recognises columns by their whole name, without regard to case. Of the single columns the first
/// match is kept; a field may be several of them.
SiteColumns recogniseColumns(const std::vector<std::string> &fieldNames);

/// The number of the transmitter to which a column belongs: 2 for "Transmitter-2 Azimuth"; none for
/// a column of the site or a number of more than six digits.
std::optional<int> transmitterOfColumn(std::string_view fieldName);

} // namespace vlt::contract
