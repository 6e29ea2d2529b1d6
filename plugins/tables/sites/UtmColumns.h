#pragma once

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/sites/StatedRoles.h"
#include "plugins/tables/values/Utm.h"

#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

struct PointFields;

/// The name of the role in mappings.
constexpr char UtmZoneRole[] = "utmZone";

/// The zones of UTM in which the positions of a table stand.
struct UtmColumns
{
    int zone = -1; ///< field with the zones; -1 if they stand in the cells of the pair
    UtmNotation notation;
    /// The zone of all rows, whose coordinates are then in metres. Without it, the positions are
    /// longitudes and latitudes on WGS 84, each from its own zone.
    std::optional<UtmGrid> only;

    /// The code of the system of the positions.
    std::string epsg() const;
};

/// The zones in a column beside coordinates in metres, or in the cells of a pair; nothing if there
/// are none.
///
/// @param words  of each column, as findPoint() gets them
std::optional<UtmColumns> findUtmColumns(
    const PointFields &point, const std::vector<std::optional<std::vector<std::string>>> &words,
    const std::vector<Field> &fields, const Vocabulary &vocabulary, const StatedRoles &stated);

/// Whether the words of a name mean a zone.
bool namesUtmZone(const std::vector<std::string> &words, const Vocabulary &vocabulary);

/// Whether most texts are positions with their zones.
bool holdUtmPositions(const std::vector<std::string> &texts);

/// The zone of a row; nothing if it has none that can be read.
std::optional<UtmGrid> gridOfRow(const PointFields &point, const std::vector<const Cell *> &cells);

} // namespace vlt::driver
