#include "contract/SiteColumns.h"

#include "contract/ColumnPattern.h"

#include <array>
#include <charconv>

namespace vlt::contract {

namespace {

struct SingleColumn
{
    int SiteColumns::*member;
    ColumnPattern pattern;
};

/// One alternative for each of the four layouts of tables, in the order asset, atoll, mentum and
/// generic.
struct ColumnList
{
    std::vector<int> SiteColumns::*member;
    ColumnPattern pattern;
};

const std::array<SingleColumn, 4> &singleColumns()
{
    static const std::array<SingleColumn, 4> columns = {{
        {&SiteColumns::name, ColumnPattern(R"(Site(\s*)ID|Name|Site(\s*)name|Site)")},
        {&SiteColumns::x, ColumnPattern(R"(X|Longitude|Site(\s*|.)longitude|Site.X)")},
        {&SiteColumns::y, ColumnPattern(R"(Y|Latitude|Site(\s*|.)latitude|Site.Y)")},
        {&SiteColumns::terrainHeight,
         ColumnPattern(R"(Transmitter-1(\s*)Terrain(\s*)Height(\s*)(\(m\))?)")},
    }};
    return columns;
}

// In the azimuth patterns of the mentum and generic layouts the "%1" for the degree sign is not
// replaced: they match only headers that contain "(%1" literally. The patterns of the other tilts
// cover those of asset and mentum.
const std::array<ColumnList, 4> &columnLists()
{
    static const std::array<ColumnList, 4> lists = {{
        {&SiteColumns::sectorIds,
         ColumnPattern(R"(Transmitter-\d+ ANT-INDEX|Transmitter-\d+ Transmitter)"
                       R"(|Transmitter-\d+ Antenna ID|Transmitter-\d+ Sector ID)")},
        {&SiteColumns::heights,
         ColumnPattern(R"(Transmitter-\d+ HEIGHT|Transmitter-\d+ Height(\s)?(\(m\))?)")},
        {&SiteColumns::azimuths,
         ColumnPattern(R"(Transmitter-\d+ AZIMUTH|Transmitter-\d+ Azimuth(\s)?\(°\)?)"
                       R"(|Transmitter-\d+ Azimuth(\s)?\(%1\)?)")},
        {&SiteColumns::tilts,
         ColumnPattern(R"(Transmitter-\d+ DOWN-TILT|Transmitter-\d+ Mechanical tilt)"
                       R"(|Transmitter-\d+ (mech(\S+)?(\s)?(\S+)?tilt(\s+)?(\(°\))?)"
                       R"(|tilt(\s+)?(\(°\))?))")},
    }};
    return lists;
}

} // namespace

SiteColumns recogniseColumns(const std::vector<std::string> &fieldNames)
{
    SiteColumns found;
    for (int index = 0; index < static_cast<int>(fieldNames.size()); ++index) {
        const std::string name = plainColumnName(fieldNames[static_cast<std::size_t>(index)]);
        for (const SingleColumn &column : singleColumns()) {
            if (found.*column.member < 0 && column.pattern.matches(name))
                found.*column.member = index;
        }
        for (const ColumnList &list : columnLists()) {
            if (list.pattern.matches(name))
                (found.*list.member).push_back(index);
        }
    }
    return found;
}

std::optional<int> transmitterOfColumn(std::string_view fieldName)
{
    static const ColumnPattern pattern(R"(Transmitter-\d{1,6} .+)");
    const std::string name = plainColumnName(fieldName);
    if (!pattern.matches(name))
        return std::nullopt;
    const std::size_t digits = name.find('-') + 1;
    int number = 0;
    const auto read = std::from_chars(name.data() + digits, name.data() + name.size(), number);
    return read.ec == std::errc() ? std::optional(number) : std::nullopt; // digits of other scripts
}

} // namespace vlt::contract
