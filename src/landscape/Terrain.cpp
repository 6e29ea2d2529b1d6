#include "landscape/Terrain.h"

#include "contract/SceneTexts.h"

#include <cpl_error.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vlt::landscape {

namespace {

constexpr int CellsPerKnot = 16; ///< positions between knots are interpolated

/// The positions of a lattice in the system of a terrain, exact at its knots.
struct Knots
{
    int number = 0; ///< in a row
    std::vector<Place> places;

    const Place &at(int column, int row) const
    {
        return places[static_cast<std::size_t>(row) * static_cast<std::size_t>(number) +
                      static_cast<std::size_t>(column)];
    }

    Place between(double column, double row) const
    {
        const int left = std::min(static_cast<int>(column), number - 2);
        const int below = std::min(static_cast<int>(row), number - 2);
        const double right = column - left;
        const double up = row - below;
        const auto mixed = [&](double Place::*axis) {
            const double lower =
                at(left, below).*axis * (1 - right) + at(left + 1, below).*axis * right;
            const double upper =
                at(left, below + 1).*axis * (1 - right) + at(left + 1, below + 1).*axis * right;
            return lower * (1 - up) + upper * up;
        };
        return {mixed(&Place::x), mixed(&Place::y)};
    }
};

} // namespace

contract::Opened<std::unique_ptr<Terrain>>
Terrain::open(const std::string &path, std::optional<double> noData, const FrameOnEarth &place)
{
    auto [raster, reason] = linkpath::TerrainRaster::open(path, {noData, &place.srs});
    if (!raster)
        return {nullptr, reason};
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    std::unique_ptr<OGRCoordinateTransformation> toRaster;
    if (!place.srs.IsSame(&raster->srs())) {
        toRaster.reset(OGRCreateCoordinateTransformation(&place.srs, &raster->srs()));
        if (!toRaster)
            return {nullptr, contract::formatted("MESS_SCENE_NO_TRANSFORMATION")};
    }
    return {std::unique_ptr<Terrain>(new Terrain(std::move(raster), place, std::move(toRaster)))};
}

Terrain::Terrain(std::unique_ptr<linkpath::TerrainRaster> raster, FrameOnEarth place,
                 std::unique_ptr<OGRCoordinateTransformation> toRaster)
    : m_raster(std::move(raster))
    , m_place(std::move(place))
    , m_toRaster(std::move(toRaster))
{}

Place Terrain::inRaster(const Place &inFrame) const
{
    Place place = m_place.frame->fromFrame(inFrame);
    if (m_toRaster && !m_toRaster->Transform(1, &place.x, &place.y))
        return {NAN, NAN};
    return place;
}

Lattice Terrain::heights(const Square &square, int cells)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    Lattice lattice{square, cells, m_raster->pixelSizeM(), {}};
    Knots knots{(cells + CellsPerKnot - 1) / CellsPerKnot + 1, {}};
    Place least{HUGE_VAL, HUGE_VAL};
    Place most{-HUGE_VAL, -HUGE_VAL};
    for (int row = 0; row < knots.number; ++row) {
        for (int column = 0; column < knots.number; ++column) {
            const Place place = inRaster(lattice.at(column * CellsPerKnot, row * CellsPerKnot));
            knots.places.push_back(place);
            if (!std::isfinite(place.x) || !std::isfinite(place.y))
                continue;
            least = {std::min(least.x, place.x), std::min(least.y, place.y)};
            most = {std::max(most.x, place.x), std::max(most.y, place.y)};
        }
    }
    linkpath::TerrainExcerpt excerpt;
    if (least.x < most.x && least.y < most.y) {
        const double width = (knots.number - 1) * static_cast<double>(CellsPerKnot);
        excerpt = m_raster->excerpt(least.x, least.y, most.x, most.y,
                                    std::min(most.x - least.x, most.y - least.y) / width);
    }
    lattice.heightM.reserve(static_cast<std::size_t>(lattice.points()) *
                            static_cast<std::size_t>(lattice.points()));
    for (int row = 0; row <= cells; ++row) {
        for (int column = 0; column <= cells; ++column) {
            const Place place = knots.between(static_cast<double>(column) / CellsPerKnot,
                                              static_cast<double>(row) / CellsPerKnot);
            lattice.heightM.push_back(excerpt.heightM(place.x, place.y));
        }
    }
    return lattice;
}

} // namespace vlt::landscape
