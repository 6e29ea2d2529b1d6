#pragma once

#include "contract/Opened.h"
#include "landscape/RasterPlaces.h"
#include "localfiles/RasterPicture.h"

#include <gdal_priv.h>

#include <memory>
#include <string>
#include <vector>

namespace vlt::landscape {

/// An image of the ground, such as an aerial photograph or a map. Not for two threads at once.
class Imagery
{
public:
    /// Opens a local raster file: colors, gray or a palette, of any type of numbers. There is none
    /// if it cannot be opened or placed.
    static contract::Opened<std::unique_ptr<Imagery>> open(const std::string &path,
                                                           const FrameOnEarth &place);

    /// Colors of the cells of a square, averaged if pixels of the file are smaller. Overviews of
    /// the file are used.
    ///
    /// @return  [cells][cells][4] bytes, red, green, blue and opacity, rows from the south
    std::vector<unsigned char> colors(const Square &square, int cells) const;

private:
    struct Part; ///< of the file, at the resolution of a picture

    Imagery(GDALDatasetUniquePtr file, IntoRaster intoRaster, const double (&toPixel)[6]);
    Part read(const RasterPlaces &places) const;

    GDALDatasetUniquePtr m_file;
    localfiles::RasterPicture m_picture;
    IntoRaster m_intoRaster;
    double m_toPixel[6];
};

} // namespace vlt::landscape
