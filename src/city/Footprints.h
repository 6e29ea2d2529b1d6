#pragma once

#include "contract/Place.h"

#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace vlt::city {

using contract::Place;

/// The origin of the height of a building.
enum class HeightSource : std::uint8_t { Field, ElseField, Default };

/// Building footprints, with all vertices in one array.
struct Footprints
{
    /// A closed line of at least three vertices, without the first one repeated at the end. A hole
    /// follows the outline of its building, perhaps after other holes of it.
    struct Ring
    {
        std::uint32_t begin = 0; ///< in `positions`
        std::uint32_t end = 0;
        bool isHole = false;
    };

    /// A part of a feature that stands on ground of its own: an outline with holes. The parts of a
    /// feature follow each other.
    struct Building
    {
        std::uint32_t ringBegin = 0; ///< in `rings`
        std::uint32_t ringEnd = 0;
        float heightM = 0;         ///< of the roof above its base; finite and positive
        std::uint32_t feature = 0; ///< in `features`
        float bottomM = 0;         ///< of the underside above its base, 0 or more
    };

    /// A feature with at least one building.
    struct Feature
    {
        std::int64_t id = -1;  ///< that the source gives it
        std::uint32_t row = 0; ///< its index among the features that were read
        float groundM = std::numeric_limits<float>::quiet_NaN(); ///< from a field; NaN: none
        HeightSource source = HeightSource::Field;
        bool isAboveSea = false; ///< the value in the source is above sea level
    };

    std::vector<Place> positions; ///< in the system of the footprints
    std::vector<Ring> rings;
    std::vector<Building> buildings;
    std::vector<Feature> features;

    /// Whether the feature of a building has several parts or holes.
    bool isComplex(std::size_t building) const
    {
        const Building &one = buildings[building];
        const auto isSame = [&](std::size_t other) {
            return other < buildings.size() && buildings[other].feature == one.feature;
        };
        return one.ringEnd - one.ringBegin > 1 || isSame(building - 1) || isSame(building + 1);
    }

    std::span<const Ring> ringsOf(const Building &building) const
    {
        return std::span(rings).subspan(building.ringBegin, building.ringEnd - building.ringBegin);
    }
    std::span<const Place> positionsOf(const Ring &ring) const
    {
        return std::span(positions).subspan(ring.begin, ring.end - ring.begin);
    }
};

} // namespace vlt::city
