#pragma once

#include "city/CityCore.h"
#include "city/FootprintReader.h"
#include "localframe/LocalFrame.h"

#include <memory>

namespace vlt::city {

/// The buildings of a document, as all programs draw, count and value them. An array that is
/// parallel to another one has the same number of elements in the same order.
struct CityInputs
{
    Footprints footprints;                  ///< of the buildings that are drawn
    std::optional<OGRSpatialReference> srs; ///< x before y; nothing: unknown
    std::shared_ptr<const localframe::LocalFrame> frame;
    std::vector<Place> positions; ///< parallel to footprints.positions, in the frame, metres
    std::vector<float> baseM;     ///< parallel to footprints.buildings, above sea level
    /// Why each feature read from the source, in its order, is not drawn; nothing for the others.
    std::vector<std::optional<contract::LeftOutReason>> fates;
    contract::CityCounts counts;  ///< without those of colours
    std::optional<CityCore> core; ///< nothing: it is the whole city
};

/// Reads the footprints and the terrain of a document.
///
/// @param directories  searched for relative paths, in this order
/// @param notices      receives one for each reason why features are left out or have a substitute
/// @throws BadLayer    the footprints cannot be used
/// @throws Stopped     `progress` stopped the function
CityInputs readCityInputs(const contract::BuildingDocument &document,
                          const std::vector<std::string> &directories, Notices &notices,
                          const Progress &progress);

/// The text of a coordinate system, as BuildingValues and scenes take it; empty if it is unknown.
std::string wktOf(const std::optional<OGRSpatialReference> &srs);

/// The index of the first building of each feature.
std::vector<std::size_t> firstBuildings(const Footprints &footprints);

} // namespace vlt::city
