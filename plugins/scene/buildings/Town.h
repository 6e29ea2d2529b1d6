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

/// Takes what the user has to know of a scene that is not whole, one line each.
using Notices = std::vector<std::string>;

/// Building footprints, all points in one array.
struct Footprints
{
    /// A closed line that does not repeat its first point; three points at least.
    struct Ring
    {
        std::uint32_t begin = 0; ///< in `places`
        std::uint32_t end = 0;
        bool isHole =
            false; ///< of the part whose outline is the last ring before it that is no hole
    };

    struct Building
    {
        std::uint32_t ringBegin = 0; ///< in `rings`
        std::uint32_t ringEnd = 0;
        float heightM = 0; ///< above its base; finite, positive
    };

    std::vector<osg::Vec2d> places; ///< in the system of the footprints, x before y
    std::vector<Ring> rings;
    std::vector<Building> buildings;

    std::span<const Ring> ringsOf(const Building &building) const
    {
        return std::span(rings).subspan(building.ringBegin, building.ringEnd - building.ringBegin);
    }
    std::span<const osg::Vec2d> placesOf(const Ring &ring) const
    {
        return std::span(places).subspan(ring.begin, ring.end - ring.begin);
    }
};

/// How many features of the source are no building of a scene, by reason.
struct LeftOut
{
    std::size_t noHeight = 0; ///< no value, no number, not finite
    std::size_t notPositive = 0;
    std::size_t noShape = 0; ///< no polygon with an area
    std::size_t noPlace = 0; ///< cannot be brought into the frame
};

/// The buildings of a document, placed in a frame; what is parallel to an array of `footprints` has
/// as many elements.
struct Town
{
    Footprints footprints;
    std::string srs; ///< WKT of the footprints' system; empty where it states none
    SceneFrame frame;
    std::vector<osg::Vec2d> places; ///< parallel to footprints.places, in the frame, metres
    std::vector<float> baseM;       ///< parallel to footprints.buildings
    std::vector<colormaps::Rgba> wallColors; ///< parallel to footprints.buildings
    std::vector<colormaps::Rgba> roofColors;
    LeftOut leftOut;
};

} // namespace vlt::scene
