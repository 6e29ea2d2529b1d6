#pragma once

#include "city/CityCore.h"
#include "city/FootprintReader.h"
#include "colormaps/ColorMap.h"
#include "contract/SceneLegend.h"
#include "plugins/scene/reading/SceneFrame.h"

#include <osg/Vec2d>
#include <osg/Vec3d>

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
    std::vector<city::Place> positions; ///< parallel to footprints.positions, in the frame, metres
    std::vector<float> baseM;           ///< parallel to footprints.buildings
    std::vector<colormaps::Rgba> wallColors; ///< parallel to footprints.buildings
    std::vector<colormaps::Rgba> roofColors;
    std::vector<contract::legend::Row> legend; ///< of the colours

    /// Whether a program that draws the scene finds buildings at points of the view. Only then the
    /// next two have elements, parallel to footprints.buildings, if values or texts give colours.
    bool isPickable = false;
    std::vector<float> values; ///< NaN: none
    std::vector<std::string> texts;

    contract::CityCounts counts;
    std::optional<city::CityCore> core;

    /// A ring in the frame, relative to the origin, in its original direction.
    std::vector<osg::Vec2d> outlineOf(const Footprints::Ring &ring, const osg::Vec3d &origin) const
    {
        std::vector<osg::Vec2d> outline;
        outline.reserve(ring.end - ring.begin);
        for (std::uint32_t i = ring.begin; i < ring.end; ++i)
            outline.emplace_back(positions[i].x - origin.x(), positions[i].y - origin.y());
        return outline;
    }
};

} // namespace vlt::scene
