#pragma once

#include "contract/TableTexts.h"
#include "plugins/tables/values/Hemisphere.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vlt::driver {

/// Both coordinates of a position, in degrees.
struct CoordinatePair
{
    double x = 0;
    double y = 0;
    bool inParts = false;                       ///< in degrees, minutes and seconds
    std::optional<contract::TableTextId> fault; ///< reason why there is no position
};

/// The order of coordinates whose text does not name them.
enum class PairOrder {
    LatitudeFirst,
    LongitudeFirst,
};

/// Reads both coordinates from one cell:
/// - in the given order: "48.85,2.35", "48,85;2,35", "48,85 / 2,35", "(48.85, 2.35)";
/// - with hemispheres, in any order: 49°11'23.10"N,16°32'13.38"E, 48.85N 2.35E;
/// - with names, in any order: {'lon': 2.27, 'lat': 48.85}, "lat 48.85 lon 2.27", "x=2.27;y=48.85";
/// - longitude first: POINT(2.27 48.85), SRID=4326;POINT Z (2.27 48.85 35), and points in GeoJSON.
CoordinatePair readCoordinatePair(std::string_view text, PairOrder order = PairOrder::LatitudeFirst,
                                  LetterO letterO = LetterO::Unknown);

/// The order of the coordinates in a column of pairs: as its values show, of which only longitudes
/// exceed 90 degrees; else as in the name of the column, such as "lon,lat"; else latitude first.
PairOrder findPairOrder(const std::vector<std::string> &texts, std::string_view columnName);

} // namespace vlt::driver
