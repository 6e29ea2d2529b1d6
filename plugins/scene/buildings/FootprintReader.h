#pragma once

#include "plugins/scene/buildings/CityModel.h"

#include <ogr_spatialref.h>

#include <optional>

namespace vlt::scene {

/// Maximum number of vertices of all footprints: half a gigabyte, a hundred times a typical city.
inline constexpr std::size_t MaxPositions = 30'000'000;

/// Maximum height of a building. A larger number is taken for a mark of a missing height.
inline constexpr double MaxBuildingHeightM = 10000;

/// The source of footprints.
struct FootprintSource
{
    std::string file;  ///< absolute path of a file or folder
    std::string layer; ///< empty: the first layer
    std::string heightField;
};

struct ReadFootprints
{
    Footprints footprints;
    std::optional<OGRSpatialReference> srs; ///< x before y; nothing if the source declares none
    LeftOut leftOut;                        ///< without noPosition
    std::size_t features = 0;               ///< number of features read from the source
};

/// Reads the polygons of a layer: also those with holes, with several parts and in collections.
/// Curves become lines; the z of vertices is ignored. Layer and field are found by their exact
/// names, else in any case of letters.
///
/// The height field has heights in metres as numbers or as texts, which may have a decimal comma.
/// Repeated vertices, vertices that are not finite and rings without an area are left out.
///
/// @param notices    receives a notice with the reason if a part of the file cannot be read
/// @throws BadLayer  there is no such file, layer or field, the field has no numbers, or nothing
///                   can be read
/// @throws Stopped   `progress` stopped the function
ReadFootprints readFootprints(const FootprintSource &source, Notices &notices,
                              const Progress &progress);

} // namespace vlt::scene
