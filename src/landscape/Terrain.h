#pragma once

#include "contract/Opened.h"
#include "landscape/RasterPlaces.h"
#include "linkpath/TerrainRaster.h"

#include <memory>
#include <optional>
#include <string>

namespace vlt::landscape {

/// The terrain file under a scene. Not for two threads at once.
class Terrain
{
public:
    /// Opens a local raster file. There is none if it cannot be used as a terrain, or its system is
    /// not related to that of the frame.
    ///
    /// @param noData  in addition to the file's own
    static contract::Opened<std::unique_ptr<Terrain>>
    open(const std::string &path, std::optional<double> noData, const FrameOnEarth &place);

    /// Heights of the square, at the resolution that its cells need.
    ///
    /// @param isRough  a few samples if very many pixels of the file would have to be read
    Lattice heights(const Square &square, int cells, bool isRough = false);

private:
    Terrain(std::unique_ptr<linkpath::TerrainRaster> raster, IntoRaster intoRaster);

    std::unique_ptr<linkpath::TerrainRaster> m_raster;
    IntoRaster m_intoRaster;
};

} // namespace vlt::landscape
