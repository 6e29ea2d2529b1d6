#pragma once

#include "plugins/tables/links/EndColumns.h"
#include "plugins/tables/roles/Role.h"
#include "plugins/tables/values/Quantity.h"

#include <array>
#include <string>
#include <vector>

namespace vlt::driver {

/// The role of a column of links, and why it has that role.
struct LinkColumnRole
{
    int field = -1;
    Role role = Role::None;
    LinkEndId end = LinkEndId::None;
    std::string evidence; ///< English, from contract/TableTexts.h

    /// The role with the end: xA, siteNameB, lengthLink.
    std::string name() const;
};

/// The columns of one end of a link: field numbers, -1 for none.
struct LinkEndFields
{
    PointFields point; ///< not found if the ends are only named
    int identifier = -1;
    QuantityField height;    ///< of the antenna above ground
    int seaLevelHeight = -1; ///< of the antenna above sea level, if `height` is missing
    QuantityField frequency;
    QuantityField azimuth; ///< unit in degrees
    QuantityField tilt;
    QuantityField dx;
    QuantityField dy;

    /// The field that is reported if the end has no position.
    int positionField() const { return point.found() ? point.xField() : identifier; }
};

/// The columns of a table of links.
struct LinkRoles
{
    std::array<LinkEndFields, 2> ends; ///< A and B
    int name = -1;
    QuantityField frequency; ///< of both ends
    QuantityField band;      ///< the same, if there is no frequency
    QuantityField length;
    std::vector<LinkColumnRole> columns; ///< those of positions first, then by field
};

/// Finds the roles by the words of the header, and by the sampled values where a name says little,
/// as far as they are not stated.
LinkRoles findLinkRoles(const TableProfile &table, const FoundEnds &ends,
                        const Vocabulary &vocabulary, const StatedRoles &stated);

} // namespace vlt::driver
