#pragma once

#include "table/Table.h"

#include <array>
#include <string>

namespace vlt::tables {

/// How the coordinates of a table are written.
enum class CoordinateUnit {
    Degrees, ///< decimal degrees
    Dms,     ///< degrees, minutes, seconds
    Meters,  ///< a projected system
};

/// Where a coordinate of a site stands: field numbers, -1 where there is none.
struct CoordinateFields
{
    int value = -1; ///< the only field, or degrees where there are parts
    int minutes = -1;
    int seconds = -1;
    int hemisphere = -1;

    bool found() const { return value >= 0; }
    bool inParts() const { return minutes >= 0; }
};

/// What a table of sites tells about itself.
struct SiteLayout
{
    CoordinateFields x;
    CoordinateFields y;
    int pair = -1; ///< field that holds both coordinates
    CoordinateUnit unit = CoordinateUnit::Degrees;
    std::string format; ///< asset, atoll, mentum or generic: the planning tool that wrote the table
    std::string epsg;   ///< code that the file declares; empty when it declares none

    bool hasCoordinates() const { return pair >= 0 || (x.found() && y.found()); }
};

/// Recognises the fields of a table that tell where its sites are.
SiteLayout recogniseSiteLayout(const TableProfile &table);

/// The planning tool that names columns so.
std::string recogniseFormat(const std::vector<Field> &fields);

} // namespace vlt::tables
