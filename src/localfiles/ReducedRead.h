#pragma once

#include <gdal_priv.h>

#include <vector>

namespace vlt::localfiles {

/// Pixels of a raster file, and the smaller picture that is made of them.
struct Reduction
{
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int columns = 0; ///< of the picture
    int rows = 0;    ///< of the picture
};

/// How many pixels of the file, or of its overview that is used, have to be decoded in each band.
double pixelsToRead(GDALDataset &file, const Reduction &part);

inline constexpr int MaskBand = 0; ///< stands for the mask of the first band: 0 or 255

/// Reads bands at a lower resolution. Overviews of the file are used. The file is read in strips,
/// so that the library's cache never holds more than a few tens of megabytes of it.
///
/// @param bands   their numbers, or MaskBand alone
/// @param values  [bands][rows][columns]
/// @return        whether all could be read
bool readReduced(GDALDataset &file, const std::vector<int> &bands, const Reduction &part,
                 GDALRIOResampleAlg how, std::vector<float> &values);

} // namespace vlt::localfiles
