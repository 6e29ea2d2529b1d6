#pragma once

#include "plugins/tables/sites/OfferedFields.h"
#include "plugins/tables/sites/SiteRoles.h"
#include "plugins/tables/sites/TableDeclaration.h"

#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// A column with positions that are not read.
struct UnreadGrid
{
    std::string column; ///< its name
    std::string grid;   ///< name of the grid
};

/// Properties of a table of sites. Its format is asset, atoll, mentum or generic.
struct SiteLayout : TableDeclaration
{
    PointFields point;
    bool isLinkEnd = false; ///< the position is that of one end of a link, named like the other one
    std::optional<UnreadGrid> unreadGrid; ///< if there is no other position
    SiteRoles roles;
    std::size_t maxTransmitters = 0;   ///< of a site
    std::vector<OfferedField> offered; ///< fields before those of the source
};

/// Recognises the columns of a table of sites that are not stated. `offered` is filled when the
/// number of transmitters per site is known.
SiteLayout recogniseSiteLayout(const TableProfile &table, const Vocabulary &vocabulary,
                               const StatedRoles &stated = {});

/// A column of positions in the MGRS or Maidenhead grid; nothing if there is none.
std::optional<UnreadGrid> findUnreadGrid(const std::vector<Field> &fields);

/// How well the start of a sheet suits a table of sites, from 0 to HighestSiteSuitability: it has
/// positions, it has transmitters, it has more rows than a legend.
constexpr int HighestSiteSuitability = 7;
int siteSuitability(const TableProfile &start, const Vocabulary &vocabulary);

/// The planning tool that uses these names of columns.
std::string recogniseFormat(const std::vector<Field> &fields);

} // namespace vlt::driver
