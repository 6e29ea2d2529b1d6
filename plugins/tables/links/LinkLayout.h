#pragma once

#include "plugins/tables/links/LinkRoles.h"
#include "plugins/tables/sites/SiteDirectory.h"
#include "plugins/tables/sites/TableDeclaration.h"

#include <optional>

namespace vlt::driver {

/// Properties of a table of links. The format is asset, atoll, "generic (numbered ends)" or
/// "generic (ends side by side)".
struct LinkLayout : TableDeclaration, LinkRoles
{
};

/// Recognises the fields of a table of links that are not stated. The ends are named by words of
/// the vocabulary or by 1 and 2 (0 and 1), at the start or at the end of the column name. Throws
/// RefusedFile (NoLinks) if the coordinates of both ends are not found.
LinkLayout recogniseLinkLayout(const TableProfile &table, const Vocabulary &vocabulary,
                               const StatedRoles &stated = {});

/// Finds the unit of lengths without one, by the positions of the ends.
void findLengthUnit(const TableProfile &table, LinkLayout &layout);

/// The columns of a table that recogniseLinkLayout() refuses, as far as they are found.
LinkLayout incompleteLinkLayout(const TableProfile &table, const Vocabulary &vocabulary,
                                const StatedRoles &stated);

/// Recognises the fields of a table of links whose ends are only named. Nothing if there are no
/// columns of both ends with ids or names of the sites.
///
/// @param ofSites  properties of the table of sites, whose positions the links have
std::optional<LinkLayout> recogniseNamedLinks(const TableProfile &table,
                                              const Vocabulary &vocabulary,
                                              const SiteDirectory &sites,
                                              const TableDeclaration &ofSites,
                                              const StatedRoles &stated = {});

/// How well the start of a sheet suits a table of links, from 0 to HighestLinkSuitability: it has
/// the positions of both ends or at least columns of both, it has more rows than a legend.
constexpr int HighestLinkSuitability = 5;
int linkSuitability(const TableProfile &start, const Vocabulary &vocabulary);

/// Whether a table has the positions of both ends of links.
bool holdsLinks(const TableProfile &table, const Vocabulary &vocabulary,
                const StatedRoles &stated = {});

} // namespace vlt::driver
