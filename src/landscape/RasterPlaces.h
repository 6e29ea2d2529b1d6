#pragma once

#include "landscape/Lattice.h"
#include "localframe/LocalFrame.h"

#include <ogr_spatialref.h>

#include <memory>
#include <optional>
#include <vector>

namespace vlt::landscape {

/// Where a scene lies on the earth.
struct FrameOnEarth
{
    std::shared_ptr<const localframe::LocalFrame> frame;
    OGRSpatialReference srs; ///< of the frame, x before y
};

/// Positions of a scene's frame in the system of a raster.
class IntoRaster
{
public:
    /// Nothing if there is no transformation to the raster's system.
    static std::optional<IntoRaster> make(const FrameOnEarth &place,
                                          const OGRSpatialReference &raster);

    Place at(const Place &inFrame) const; ///< NaN where there is none

private:
    explicit IntoRaster(FrameOnEarth place) : m_place(std::move(place)) {}

    FrameOnEarth m_place;
    std::unique_ptr<OGRCoordinateTransformation> m_toRaster; ///< null: the same system
};

/// Positions within a square in the system of a raster: exact at knots, interpolated between them.
class RasterPlaces
{
public:
    RasterPlaces(const Square &square, int cells, const IntoRaster &intoRaster);

    /// Whether the square has an extent in the raster's system.
    bool isPlaced() const { return m_least.x < m_most.x && m_least.y < m_most.y; }
    const Place &least() const { return m_least; }
    const Place &most() const { return m_most; }

    /// Width of a cell in the raster's system.
    double cellSize() const;

    /// By the distances from the south-western corner, in cells.
    Place at(double column, double row) const;

private:
    const Place &knot(int column, int row) const
    {
        return m_places[static_cast<std::size_t>(row) * static_cast<std::size_t>(m_number) +
                        static_cast<std::size_t>(column)];
    }

    int m_number; ///< of knots in a row
    std::vector<Place> m_places;
    Place m_least;
    Place m_most;
};

} // namespace vlt::landscape
