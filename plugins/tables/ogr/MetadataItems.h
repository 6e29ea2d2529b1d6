#pragma once

#include "contract/TableMetadata.h"
#include "plugins/tables/doctor/Finding.h"
#include "plugins/tables/ogr/ProblemList.h"
#include "plugins/tables/ogr/TableFile.h"

#include <cpl_string.h>

#include <string>
#include <string_view>
#include <vector>

namespace vlt::driver {

// The items of the metadata domains of layers, see contract/TableMetadata.h.

CPLStringList problemItems(const ProblemList &problems);
/// @param corrections  those of each finding
CPLStringList
findingItems(const std::vector<Finding> &findings,
             const std::vector<std::vector<contract::PositionCorrection>> &corrections);
/// The systems that may be that of a table in metres.
CPLStringList systemItems(const TableFacts &facts);

/// Adds a column to the items of the roles, behind the shape of the table.
///
/// @param sector  number of the transmitter; empty for none
/// @param prefix  of the name of the item
void addRoleItem(CPLStringList &items, std::string_view role, const std::string &sector,
                 const std::string &column, const std::string &evidence,
                 const char *prefix = contract::metadata::RolePrefix);
/// Adds the columns of the table that completes another one.
void addSecondRoles(CPLStringList &items, const SecondRoles &second);

} // namespace vlt::driver
