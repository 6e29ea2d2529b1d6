#pragma once

#include "contract/Place.h"

#include <ogr_spatialref.h>

#include <memory>
#include <span>
#include <string>

namespace vlt::city {

/// The transformation from the system of footprints to that of a raster, x before y in both. Not
/// for two threads at once.
class PositionTransform
{
public:
    /// If one of the systems is unknown, both are assumed to be the same.
    ///
    /// @param from  WKT; may be empty
    /// @param to    may be null
    PositionTransform(const std::string &from, const OGRSpatialReference *to);

    /// Whether there is a transformation.
    bool isUsable() const { return m_isUsable; }

    /// Transforms positions; those that cannot be transformed become NaN.
    void apply(std::span<contract::Place> positions) const;

private:
    std::unique_ptr<OGRCoordinateTransformation> m_transformation; ///< null: the same system
    bool m_isUsable = true;
};

} // namespace vlt::city
