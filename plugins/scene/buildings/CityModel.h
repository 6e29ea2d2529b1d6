#pragma once

#include "city/CityCore.h"
#include "city/FootprintReader.h"
#include "colormaps/ColorMap.h"
#include "plugins/scene/reading/SceneFrame.h"

#include <osg/Vec2d>

#include <string>
#include <vector>

namespace vlt::scene {

using city::Footprints;
using city::Notices;

/// The buildings of a document in a local frame. An array that is parallel to another one has the
/// same number of elements in the same order.
struct CityModel
{
    Footprints footprints;
    std::string srs; ///< WKT of the footprints' system; empty: unknown
    SceneFrame frame;
    std::vector<osg::Vec2d> positions; ///< parallel to footprints.positions, in the frame, metres
    std::vector<float> baseM;          ///< parallel to footprints.buildings
    std::vector<colormaps::Rgba> wallColors; ///< parallel to footprints.buildings
    std::vector<colormaps::Rgba> roofColors;
    contract::CityCounts counts;
    std::optional<city::CityCore> core;
};

} // namespace vlt::scene
