#pragma once

#include "plugins/tables/sites/TableDeclaration.h"

#include <string>
#include <vector>

namespace vlt::driver {

/// What a table of sites tells about itself; its format is asset, atoll, mentum or generic.
struct SiteLayout : TableDeclaration
{
    PointFields point;
};

/// Recognises the fields of a table that tell where its sites are.
SiteLayout recogniseSiteLayout(const TableProfile &table);

/// The planning tool that names columns so.
std::string recogniseFormat(const std::vector<Field> &fields);

} // namespace vlt::driver
