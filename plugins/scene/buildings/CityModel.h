#pragma once

#include "colormaps/ColorMap.h"
#include "contract/Progress.h"
#include "plugins/scene/reading/SceneFrame.h"

#include <osg/Vec2d>

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace vlt::scene {

/// Lines for the user, one for each incomplete part of a scene.
using Notices = std::vector<std::string>;

/// Building footprints, with all vertices in one array.
struct Footprints
{
    /// A closed line of at least three vertices, without the first one repeated at the end. A hole
    /// follows the outline of its part, perhaps after other holes of it.
    struct Ring
    {
        std::uint32_t begin = 0; ///< in `positions`
        std::uint32_t end = 0;
        bool isHole = false;
    };

    struct Building
    {
        std::uint32_t ringBegin = 0; ///< in `rings`
        std::uint32_t ringEnd = 0;
        float heightM = 0; ///< above its base; finite and positive
    };

    std::vector<osg::Vec2d> positions; ///< in the system of the footprints, x before y
    std::vector<Ring> rings;
    std::vector<Building> buildings;

    std::span<const Ring> ringsOf(const Building &building) const
    {
        return std::span(rings).subspan(building.ringBegin, building.ringEnd - building.ringBegin);
    }
    std::span<const osg::Vec2d> positionsOf(const Ring &ring) const
    {
        return std::span(positions).subspan(ring.begin, ring.end - ring.begin);
    }
};

/// Numbers of the features of a source that are not shown as buildings, by reason.
struct LeftOut
{
    std::size_t noHeight = 0;    ///< the height is missing, not a number or not finite
    std::size_t notPositive = 0; ///< the height is not positive
    std::size_t noShape = 0;     ///< there is no polygon with an area
    std::size_t noPosition = 0;  ///< the polygon cannot be transformed to the frame
};

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
    LeftOut leftOut;
};

} // namespace vlt::scene
