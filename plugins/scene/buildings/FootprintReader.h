#pragma once

#include "plugins/scene/buildings/Town.h"

#include <ogr_spatialref.h>

#include <optional>

namespace vlt::scene {

/// Most points of all footprints that are read: half a gigabyte, most towns have a hundredth of it.
inline constexpr std::size_t MaxPlaces = 30'000'000;

/// Highest building; what claims to be higher has no height but some mark that there is none.
inline constexpr double HighestBuildingM = 10000;

/// Where footprints are.
struct FootprintSource
{
    std::string file;  ///< absolute path of a file or folder
    std::string layer; ///< empty: the first
    std::string heightField;
};

struct ReadFootprints
{
    Footprints footprints;
    std::optional<OGRSpatialReference> srs; ///< x before y; nothing where none is stated
    LeftOut leftOut;                        ///< but for noPlace
    std::size_t features = 0;               ///< read from the source
};

/// Reads the polygons of a layer: with holes, of several parts, within collections, curved ones as
/// lines, heights of their points ignored. Layer and field are found by their exact names, else
/// whatever the case.
///
/// Heights are numbers or texts that hold one, maybe with a decimal comma, in metres. Points that
/// repeat the one before or are not finite, and rings without an area, are left out.
///
/// @param notices  takes that reading ended before the end of the file, with the reason
/// @throws BadLayer  no such file, layer or field, a field of no numbers; nothing can be read;
/// @throws Stopped   by `progress`
ReadFootprints readFootprints(const FootprintSource &source, Notices &notices,
                              const Progress &progress);

} // namespace vlt::scene
