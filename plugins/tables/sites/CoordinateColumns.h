#pragma once

#include "plugins/tables/sites/CoordinateNames.h"
#include "plugins/tables/sites/StatedRoles.h"
#include "plugins/tables/sites/UtmColumns.h"
#include "plugins/tables/table/Table.h"
#include "plugins/tables/values/Angle.h"
#include "plugins/tables/values/CoordinatePair.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vlt::driver {

/// The unit of the coordinates of a table.
enum class CoordinateUnit {
    Degrees, ///< decimal degrees
    Dms,     ///< degrees, minutes, seconds
    Meters,  ///< a projected system
};

/// The fields of a coordinate: field numbers, -1 for none.
struct CoordinateFields
{
    int value = -1; ///< the only field, or the degrees if the coordinate is in parts
    int minutes = -1;
    int seconds = -1;
    int hemisphere = -1;
    bool isNegative = false; ///< the name says west or south: "Long (W)"
    AngleStyle style = AngleStyle::Plain;

    bool found() const { return value >= 0; }
    bool inParts() const { return minutes >= 0; }
    bool uses(int field) const
    {
        return field >= 0 &&
               (field == value || field == minutes || field == seconds || field == hemisphere);
    }
};

/// What the numbers of coordinates are to be multiplied by.
struct CoordinateScale
{
    double factor = 1;
    bool givesDegrees = false; ///< else metres; of no meaning if the factor is 1
    bool isGuessed = false;    ///< from the values: no name states it
};

class PositionCorrections;

/// The fields of a position.
struct PointFields
{
    CoordinateFields x;
    CoordinateFields y;
    int pair = -1; ///< field with both coordinates
    PairOrder pairOrder = PairOrder::LatitudeFirst;
    LetterO letterO = LetterO::Unknown; ///< in the longitudes
    bool isPairSwapped = false;
    CoordinateScale scale;
    std::shared_ptr<const PositionCorrections> corrections = {}; ///< null if none are stated
    std::optional<UtmColumns> utm;

    /// Exchanges the coordinates.
    void swapAxes()
    {
        std::swap(x, y);
        isPairSwapped = !isPairSwapped;
    }
    bool found() const { return pair >= 0 || (x.found() && y.found()); }
    bool uses(int field) const
    {
        return field >= 0 && (holdsCoordinate(field) || (utm && field == utm->zone));
    }
    /// The same without the zone of UTM.
    bool holdsCoordinate(int field) const
    {
        return field == pair || x.uses(field) || y.uses(field);
    }
    /// The fields of the position with their roles: x, y, pair, zone of UTM.
    std::vector<std::pair<int, Role>> roles() const;
    /// The field that is reported if a coordinate cannot be used.
    int xField() const { return pair >= 0 ? pair : x.value; }
    int yField() const { return pair >= 0 ? pair : y.value; }
};

/// Recognises the fields of a position among those that have words, unless its x, y or pair is
/// stated.
PointFields findPoint(const FieldWords &words, const std::vector<Field> &fields,
                      const Vocabulary &vocabulary, const StatedRoles &stated = {});

/// The meaning of O in the longitudes of a position, from their samples; else `otherwise`.
LetterO findLetterO(const PointFields &point, const std::vector<Field> &fields, LetterO otherwise);

/// Whether the values of the fields are positions, at least half of them.
bool holdsPositions(const PointFields &point, const std::vector<Field> &fields);

/// Whether the samples of both coordinates are whole degrees, each in a single column.
bool areWholeDegrees(const PointFields &point, const std::vector<Field> &fields);

/// The unit of the coordinates of a position, from the names and samples of its fields.
CoordinateUnit findUnit(const PointFields &point, const std::vector<Field> &fields,
                        const Vocabulary &vocabulary);

} // namespace vlt::driver
