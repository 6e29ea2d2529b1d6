#include "landscape/Terrain.h"

#include "contract/SceneTexts.h"

#include <utility>

namespace vlt::landscape {

contract::Opened<std::unique_ptr<Terrain>>
Terrain::open(const std::string &path, std::optional<double> noData, const FrameOnEarth &place)
{
    auto [raster, reason] = linkpath::TerrainRaster::open(path, {noData, &place.srs});
    if (!raster)
        return {nullptr, reason};
    std::optional<IntoRaster> intoRaster = IntoRaster::make(place, raster->srs());
    if (!intoRaster)
        return {nullptr, contract::formatted("MESS_SCENE_NO_TRANSFORMATION")};
    return {std::unique_ptr<Terrain>(new Terrain(std::move(raster), *std::move(intoRaster)))};
}

Terrain::Terrain(std::unique_ptr<linkpath::TerrainRaster> raster, IntoRaster intoRaster)
    : m_raster(std::move(raster))
    , m_intoRaster(std::move(intoRaster))
{}

Lattice Terrain::heights(const Square &square, int cells, bool isRough)
{
    Lattice lattice{square, cells, m_raster->pixelSizeM(), {}};
    const RasterPlaces places(square, cells, m_intoRaster);
    linkpath::TerrainExcerpt excerpt;
    if (places.isPlaced())
        excerpt = m_raster->excerpt(places.least().x, places.least().y, places.most().x,
                                    places.most().y, places.cellSize(), isRough);
    lattice.heightM.reserve(static_cast<std::size_t>(lattice.points()) *
                            static_cast<std::size_t>(lattice.points()));
    for (int row = 0; row <= cells; ++row) {
        for (int column = 0; column <= cells; ++column) {
            const Place place = places.at(column, row);
            lattice.heightM.push_back(excerpt.heightM(place.x, place.y));
        }
    }
    return lattice;
}

} // namespace vlt::landscape
