#include "landscape/RasterPlaces.h"

#include <cpl_error.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vlt::landscape {

namespace {

constexpr int CellsPerKnot = 16;

} // namespace

std::optional<IntoRaster> IntoRaster::make(const FrameOnEarth &place,
                                           const OGRSpatialReference &raster)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    IntoRaster made(place);
    if (place.srs.IsSame(&raster))
        return made;
    made.m_toRaster.reset(OGRCreateCoordinateTransformation(&place.srs, &raster));
    if (!made.m_toRaster)
        return std::nullopt;
    return made;
}

Place IntoRaster::at(const Place &inFrame) const
{
    Place place = m_place.frame->fromFrame(inFrame);
    if (m_toRaster && !m_toRaster->Transform(1, &place.x, &place.y))
        return {NAN, NAN};
    return place;
}

RasterPlaces::RasterPlaces(const Square &square, int cells, const IntoRaster &intoRaster)
    : m_number((cells + CellsPerKnot - 1) / CellsPerKnot + 1)
    , m_least{HUGE_VAL, HUGE_VAL}
    , m_most{-HUGE_VAL, -HUGE_VAL}
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const Lattice lattice{square, cells, 0, {}};
    for (int row = 0; row < m_number; ++row) {
        for (int column = 0; column < m_number; ++column) {
            const Place place =
                intoRaster.at(lattice.at(column * CellsPerKnot, row * CellsPerKnot));
            m_places.push_back(place);
            if (!std::isfinite(place.x) || !std::isfinite(place.y))
                continue;
            m_least = {std::min(m_least.x, place.x), std::min(m_least.y, place.y)};
            m_most = {std::max(m_most.x, place.x), std::max(m_most.y, place.y)};
        }
    }
}

double RasterPlaces::cellSize() const
{
    return std::min(m_most.x - m_least.x, m_most.y - m_least.y) / ((m_number - 1) * CellsPerKnot);
}

Place RasterPlaces::at(double column, double row) const
{
    const double atColumn = column / CellsPerKnot;
    const double atRow = row / CellsPerKnot;
    const int left = std::min(static_cast<int>(atColumn), m_number - 2);
    const int below = std::min(static_cast<int>(atRow), m_number - 2);
    const double right = atColumn - left;
    const double up = atRow - below;
    const auto mixed = [&](double Place::*axis) {
        const double lower =
            knot(left, below).*axis * (1 - right) + knot(left + 1, below).*axis * right;
        const double upper =
            knot(left, below + 1).*axis * (1 - right) + knot(left + 1, below + 1).*axis * right;
        return lower * (1 - up) + upper * up;
    };
    return {mixed(&Place::x), mixed(&Place::y)};
}

} // namespace vlt::landscape
