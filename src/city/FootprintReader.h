#pragma once

#include "city/Footprints.h"
#include "contract/BuildingDocument.h"
#include "contract/CityCounts.h"
#include "contract/Progress.h"

#include <ogr_spatialref.h>

#include <optional>
#include <string>
#include <vector>

namespace vlt::city {

/// Lines for the user, one for each incomplete part of a scene.
using Notices = std::vector<std::string>;

/// Maximum number of vertices of all footprints: half a gigabyte, a hundred times a typical city.
inline constexpr std::size_t MaxPositions = 30'000'000;

struct ReadFootprints
{
    Footprints footprints;
    std::optional<OGRSpatialReference> srs; ///< x before y; nothing if the source declares none
    /// Why each feature read from the source, in its order, is not one of the footprints; nothing
    /// for those that are.
    std::vector<std::optional<contract::LeftOutReason>> fates;
};

/// Reads the polygons of a layer: also those with holes, with several parts and in collections.
/// Curves become lines; the z of vertices is ignored. Layer and fields are found by their exact
/// names, else in any case of letters. Repeated vertices, vertices that are not finite and rings
/// without an area are left out.
///
/// The height of a building is still that of its feature (see Footprints::Feature::isAboveSea).
///
/// @param path       absolute path of a file or folder, in place of source.file
/// @param notices    receives a notice with the reason if a part of the file cannot be read
/// @throws BadLayer  there is no such file, layer or field, a field has no numbers, the filter
///                   cannot be used or excludes every feature, or nothing can be read
/// @throws Stopped   `progress` stopped the function
ReadFootprints readFootprints(const std::string &path, const contract::BuildingFootprints &source,
                              Notices &notices, const Progress &progress);

} // namespace vlt::city
