#pragma once

#include "contract/Opened.h"
#include "landscape/Lattice.h"
#include "linkpath/TerrainRaster.h"
#include "localframe/LocalFrame.h"

#include <memory>
#include <optional>
#include <string>

namespace vlt::landscape {

/// Where a scene lies on the earth.
struct FrameOnEarth
{
    std::shared_ptr<const localframe::LocalFrame> frame;
    OGRSpatialReference srs; ///< of the frame, x before y
};

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
    Lattice heights(const Square &square, int cells);

private:
    Terrain(std::unique_ptr<linkpath::TerrainRaster> raster, FrameOnEarth place,
            std::unique_ptr<OGRCoordinateTransformation> toRaster);

    Place inRaster(const Place &inFrame) const; ///< NaN where there is none

    std::unique_ptr<linkpath::TerrainRaster> m_raster;
    FrameOnEarth m_place;
    std::unique_ptr<OGRCoordinateTransformation> m_toRaster; ///< null: the same system
};

} // namespace vlt::landscape
