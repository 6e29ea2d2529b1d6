#pragma once

#include "plugins/tables/roles/ColumnFacts.h"
#include "plugins/tables/roles/Role.h"
#include "plugins/tables/sites/CoordinateColumns.h"
#include "plugins/tables/table/RowProblem.h"
#include "plugins/tables/values/Quantity.h"

#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// The columns of one transmitter: field numbers, -1 for none.
struct TransmitterFields
{
    int number = 0; ///< in the names of its columns
    int sectorId = -1;
    QuantityField height;
    QuantityField heightBase;  ///< ground below heights above sea level; none for others
    bool sharesHeight = false; ///< the column of heights holds for all transmitters
    QuantityField azimuth;     ///< unit in degrees
    QuantityField mechanicalTilt;
    QuantityField electricalTilt;
    QuantityField beamWidth;
    QuantityField frequency;
    int band = -1;
    std::optional<double> bandMHz; ///< in the names of its columns
    int technology = -1;
    int kind = -1;         ///< of the antenna; a word for all directions may stand there
    bool asksOmni = false; ///< that field answers with yes or no whether it is of all directions
};

/// The role of a column, and why it has that role.
struct ColumnRole
{
    int field = -1;
    Role role = Role::None;
    int sector = -1;      ///< number of the transmitter in its name; -1 for none
    std::string evidence; ///< English, from contract/TableTexts.h
};

/// The shape of a table with values of transmitters.
enum class SiteShape {
    Own,      ///< no columns of transmitters, or none but those that readers know
    Numbered, ///< a row per site, columns numbered by transmitter
    Lists,    ///< a row per site, lists of values in the cells
    Tall,     ///< a row per transmitter
    Joined,   ///< a row per site, transmitters in another table
};

/// The columns of a table of sites, apart from those of the position.
struct SiteRoles
{
    SiteShape shape = SiteShape::Own;
    int siteId = -1;
    int siteName = -1;
    QuantityField groundHeight;
    std::vector<TransmitterFields> transmitters; ///< by number; one for Lists and Tall
    std::vector<ColumnRole> columns;             ///< by field
    std::vector<RowProblem> problems;            ///< of the whole table
};

/// Finds the roles by the words of the header and by the sampled values, as far as they are not
/// stated.
SiteRoles findSiteRoles(const TableProfile &table, const PointFields &point,
                        const Vocabulary &vocabulary, const StatedRoles &stated = {});

} // namespace vlt::driver
