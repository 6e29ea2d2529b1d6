#pragma once

#include "city/Footprints.h"
#include "city/PositionTransform.h"
#include "coverage/CoverageRaster.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vlt::city {

/// Opens the raster of colours.
///
/// @param directories  searched for a relative path, in this order
/// @throws BadLayer    it cannot be used
std::unique_ptr<coverage::CoverageRaster> openRaster(const contract::RasterColors &colors,
                                                     const std::vector<std::string> &directories);

/// Throws BadLayer if positions cannot be transformed to the raster of colours.
void checkTransform(const PositionTransform &transform, const contract::RasterColors &colors);

/// The notice that features have no value in the raster of colours.
std::string withoutValue(std::size_t without, std::size_t features,
                         const contract::RasterColors &colors);

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

    /// The values under all buildings of a feature.
    ///
    /// @param first  index of its first building
    coverage::ValuesUnder valuesUnder(std::size_t first, bool withCounts);

    /// The value of valuesUnder().
    std::optional<double> under(std::size_t first) { return valuesUnder(first, false).value; }

private:
    const Footprints &m_footprints;
    const PositionTransform &m_transform;
    coverage::CoverageRaster &m_raster;
    coverage::Reduction m_reduction;
    std::vector<Place> m_positions;
    std::vector<coverage::Ring> m_rings;
};

} // namespace vlt::city
