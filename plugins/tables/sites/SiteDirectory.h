#pragma once

#include "plugins/tables/sites/PositionReader.h"

#include <string>
#include <string_view>
#include <unordered_map>

namespace vlt::driver {

/// Positions of sites by their ids and names. The spelling of a name may differ as that of the ids
/// in JoinKey.h.
class SiteDirectory
{
public:
    /// @param unit  of the positions
    explicit SiteDirectory(CoordinateUnit unit) : m_unit(unit) {}

    /// Adds a row of a table of sites; id or name may be empty.
    void add(std::string_view id, std::string_view name, const Position &position);

    /// A site as found.
    struct Entry
    {
        Position position;        ///< of the first row that has one
        bool isAmbiguous = false; ///< another place has the same id or name
    };
    /// The site with that id, else the one with that name; null if there is none.
    const Entry *find(std::string_view idOrName) const;

private:
    using Entries = std::unordered_map<std::string, Entry>;

    void addTo(Entries &entries, std::string_view key, const Position &position) const;

    CoordinateUnit m_unit;
    Entries m_byId;
    Entries m_byName;
};

} // namespace vlt::driver
