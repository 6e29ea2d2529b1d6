#pragma once

#include <gdal_priv.h>

#include <QString>

#include <array>
#include <functional>
#include <vector>

/// A raster in a GeoTIFF file.
struct GeoTiff
{
    int columns = 1;
    int rows = 1;
    int bands = 1;
    GDALDataType type = GDT_Byte;
    std::array<double, 6> placing{0, 1, 0, 0, 0, -1}; ///< as in the geodata library
    const char *system = "";                          ///< empty for none
    std::function<double(int column, int row, int band)> value = {};
    std::function<void(GDALDataset &)> finish = {}; ///< before the values; may be empty
    CSLConstList options = nullptr;
};

/// The placing of a raster whose rows go to the south, from its lower left corner.
inline std::array<double, 6> northUp(double west, double south, double pixel, int rows)
{
    return {west, pixel, 0, south + pixel * rows, 0, -pixel};
}

/// Writes the raster. A test that cannot write it ends at once.
///
/// @return  the path
inline std::string makeGeoTiff(const QString &path, const GeoTiff &image)
{
    GDALAllRegister();
    const GDALDatasetUniquePtr made(GetGDALDriverManager()->GetDriverByName("GTiff")->Create(
        path.toUtf8().constData(), image.columns, image.rows, image.bands, image.type,
        const_cast<char **>(image.options)));
    std::array<double, 6> placing = image.placing;
    OGRSpatialReference srs;
    if (!made || made->SetGeoTransform(placing.data()) != CE_None ||
        (*image.system && (srs.SetFromUserInput(image.system) != OGRERR_NONE ||
                           made->SetSpatialRef(&srs) != CE_None)))
        qFatal("no image");
    if (image.finish)
        image.finish(*made);
    std::vector<double> values;
    for (int i = 0; image.value && i < image.bands * image.rows * image.columns; ++i) {
        const int pixel = i % (image.rows * image.columns);
        values.push_back(image.value(pixel % image.columns, pixel / image.columns,
                                     1 + i / (image.rows * image.columns)));
    }
    if (image.value &&
        made->RasterIO(GF_Write, 0, 0, image.columns, image.rows, values.data(), image.columns,
                       image.rows, GDT_Float64, image.bands, nullptr, 0, 0, 0) != CE_None)
        qFatal("no pixels");
    return path.toStdString();
}
