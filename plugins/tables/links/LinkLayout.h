#pragma once

#include "plugins/tables/sites/SiteDirectory.h"
#include "plugins/tables/sites/TableDeclaration.h"
#include "plugins/tables/values/Quantity.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// The columns of one end of a link: field numbers, -1 for none.
struct LinkEndFields
{
    PointFields point; ///< not found if the ends are only named
    int identifier = -1;
    QuantityField height;    ///< of the antenna above ground
    int seaLevelHeight = -1; ///< of the antenna above sea level, if `height` is missing
    QuantityField frequency;
    int azimuth = -1;
    int tilt = -1;
    QuantityField dx;
    QuantityField dy;

    /// The field that is reported if the end has no position.
    int positionField() const { return point.found() ? point.xField() : identifier; }
};

/// Properties of a table of links. The format is asset, atoll, "generic (numbered ends)" or
/// "generic (ends side by side)".
struct LinkLayout : TableDeclaration
{
    std::array<LinkEndFields, 2> ends; ///< A and B
    int name = -1;
    QuantityField band; ///< frequency for both ends
    QuantityField length;
};

/// Recognises the fields of a table of links. The ends are named A and B, TX and RX, 1 and 2 (0 and
/// 1), start and end, near and far, at the start or at the end of the column name. Throws
/// RefusedFile (NoLinks) if the coordinates of both ends are not found.
LinkLayout recogniseLinkLayout(const TableProfile &table, const Vocabulary &vocabulary);

/// Recognises the fields of a table of links whose ends are only named. Nothing if there are no
/// columns of both ends with ids or names of the sites.
///
/// @param ofSites  properties of the table of sites, whose positions the links have
std::optional<LinkLayout> recogniseNamedLinks(const TableProfile &table,
                                              const Vocabulary &vocabulary,
                                              const SiteDirectory &sites,
                                              const TableDeclaration &ofSites);

/// How well the start of a sheet suits a table of links, from 0 to HighestLinkSuitability: it has
/// the positions of both ends or at least columns of both, it has more rows than a legend.
constexpr int HighestLinkSuitability = 5;
int linkSuitability(const TableProfile &start, const Vocabulary &vocabulary);

/// Whether a table has the positions of both ends of links.
bool holdsLinks(const TableProfile &table, const Vocabulary &vocabulary);

} // namespace vlt::driver
