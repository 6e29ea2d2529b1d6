#pragma once

#include "city/Footprints.h"
#include "city/PositionTransform.h"
#include "coverage/CoverageRaster.h"

#include <optional>
#include <vector>

namespace vlt::city {

/// The first building of each feature, in an order with neighbours close together, so that each
/// block of a raster is read once.
///
/// @return  indices into footprints.buildings
std::vector<std::size_t> featuresInRows(const Footprints &footprints);

/// Determines the values of a raster under features. Not for two threads at once.
class BuildingValues
{
public:
    BuildingValues(const Footprints &footprints, const PositionTransform &transform,
                   coverage::CoverageRaster &raster, coverage::Reduction reduction)
        : m_footprints(footprints)
        , m_transform(transform)
        , m_raster(raster)
        , m_reduction(reduction)
    {}

    /// The value under all buildings of a feature; nothing if there is none.
    ///
    /// @param first  index of its first building
    std::optional<double> under(std::size_t first);

private:
    const Footprints &m_footprints;
    const PositionTransform &m_transform;
    coverage::CoverageRaster &m_raster;
    coverage::Reduction m_reduction;
    std::vector<Place> m_positions;
    std::vector<coverage::Ring> m_rings;
};

} // namespace vlt::city
