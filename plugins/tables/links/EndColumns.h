#pragma once

#include "plugins/tables/links/LinkColumnName.h"
#include "plugins/tables/roles/NameMatch.h"
#include "plugins/tables/sites/CoordinateColumns.h"
#include "plugins/tables/sites/SiteDirectory.h"

#include <array>
#include <vector>

namespace vlt::driver {

/// All column names, split into words.
using Names = std::vector<LinkColumnName>;

/// The roles that a column of an end can have by its name.
std::vector<NameMatch> matchEndColumn(const LinkColumnName &name, const Vocabulary &vocabulary);

/// How well a column fits by its name as the id or name of an end; 0 if it does not.
int strengthOfIdentifier(const LinkColumnName &name, const Vocabulary &vocabulary);

/// The columns of both ends, and the column names as read in the style of the table.
struct FoundEnds
{
    Names names;
    std::array<PointFields, 2> points;         ///< A and B
    std::array<int, 2> identifiers = {-1, -1}; ///< of ends that are only named
    bool areNumbered = false;

    bool found() const
    {
        return (points[0].found() && points[1].found()) ||
               (identifiers[0] >= 0 && identifiers[1] >= 0);
    }
};

/// The columns with the positions of both ends.
FoundEnds findPlacedEnds(const TableProfile &table, const Vocabulary &vocabulary);

/// The columns of both ends whose sampled values are ids or names of the sites.
FoundEnds findNamedEnds(const TableProfile &table, const Vocabulary &vocabulary,
                        const SiteDirectory &sites);

/// Gives the ends the coordinates and names that are stated. Of those that are not, none lies in a
/// stated column.
void stateEnds(FoundEnds &ends, const std::vector<Field> &fields, const Vocabulary &vocabulary,
               const StatedRoles &stated);

/// The columns that are stated as names or ids of the ends; -1 for none.
std::array<int, 2> statedIdentifiers(const StatedRoles &stated);

/// Whether a header has columns of both ends.
bool namesBothEnds(const Header &header, const Vocabulary &vocabulary);

} // namespace vlt::driver
