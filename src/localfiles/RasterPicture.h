#pragma once

#include "localfiles/ReducedRead.h"

#include <vector>

namespace vlt::localfiles {

/// The colors of a raster file, as it is shown: colors, gray or a palette, of any type of numbers
/// that are not complex. Not for two threads at once.
class RasterPicture
{
public:
    /// @param file  with at least one band; must outlive the picture
    explicit RasterPicture(GDALDataset &file);

    /// Reads a part at a lower resolution: averaged, except for palettes.
    ///
    /// @return  [rows][columns][4] bytes, red, green, blue and opacity; empty if it cannot be read
    std::vector<unsigned char> read(const Reduction &part) const;

private:
    void findBands();
    void findRange();
    std::vector<float> opacity(const Reduction &part) const;

    GDALDataset &m_file;
    std::vector<int> m_bands; ///< one (gray or palette) or three
    int m_opacityBand = 0;    ///< 0: none
    double m_black = 0;       ///< values of black and white
    double m_white = 255;
};

} // namespace vlt::localfiles
