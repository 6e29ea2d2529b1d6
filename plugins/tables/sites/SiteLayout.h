#pragma once

#include "plugins/tables/sites/TableDeclaration.h"

#include <string>
#include <vector>

namespace vlt::driver {

/// Properties of a table of sites. Its format is asset, atoll, mentum or generic.
struct SiteLayout : TableDeclaration
{
    PointFields point;
};

/// Recognises the fields with the positions of the sites.
SiteLayout recogniseSiteLayout(const TableProfile &table, const Vocabulary &vocabulary);

/// The planning tool that uses these names of columns.
std::string recogniseFormat(const std::vector<Field> &fields);

} // namespace vlt::driver
