#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vlt::contract {

/// The columns of a site table that information pages show and scenes draw, as indices of fields;
/// -1 for a column that was not recognised. The lists are in the order of the fields and
/// independent of each other; "transmitter" means the antenna of one sector.
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

/// Recognises columns by their whole names, in any case of letters. For a single column the first
/// matching field is taken; one field may match several columns.
SiteColumns recogniseColumns(const std::vector<std::string> &fieldNames);

/// The number of the transmitter to which a column belongs: 2 for "Transmitter-2 Azimuth"; nothing
/// for a column of the site and for a number of more than six digits.
std::optional<int> transmitterOfColumn(std::string_view fieldName);

} // namespace vlt::contract
