#pragma once

#include "plugins/tables/table/Table.h"

#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// How the coordinates of a table are written.
enum class CoordinateUnit {
    Degrees, ///< decimal degrees
    Dms,     ///< degrees, minutes, seconds
    Meters,  ///< a projected system
};

/// Where a coordinate of a point stands: field numbers, -1 where there is none.
struct CoordinateFields
{
    int value = -1; ///< the only field, or degrees where there are parts
    int minutes = -1;
    int seconds = -1;
    int hemisphere = -1;

    bool found() const { return value >= 0; }
    bool inParts() const { return minutes >= 0; }
};

/// Where a point stands in a table.
struct PointFields
{
    CoordinateFields x;
    CoordinateFields y;
    int pair = -1; ///< field that holds both coordinates

    bool found() const { return pair >= 0 || (x.found() && y.found()); }
    /// The field to name when something is wrong with a coordinate.
    int xField() const { return pair >= 0 ? pair : x.value; }
    int yField() const { return pair >= 0 ? pair : y.value; }
};

/// The words by which each field of a table is judged; nothing for a field that is left out.
using FieldWords = std::vector<std::optional<std::vector<std::string>>>;

/// Recognises the fields of a point among those that have words.
PointFields findPoint(const FieldWords &words, const std::vector<Field> &fields);

/// How the coordinates of a point are written, by their names and samples.
CoordinateUnit findUnit(const PointFields &point, const std::vector<Field> &fields);

} // namespace vlt::driver
