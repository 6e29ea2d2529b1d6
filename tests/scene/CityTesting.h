#pragma once

#include "plugins/scene/buildings/CityModel.h"

#include <gdal_priv.h>

#include <QString>

#include <array>
#include <functional>
#include <vector>

/// Helpers for the tests of towns.
namespace towntest {

using namespace vlt::scene;

using Ring = std::vector<osg::Vec2d>;
using Rings = std::vector<Ring>;

constexpr float BaseM = 30;

/// Adds a building; all rings except the first are holes.
inline void add(CityModel &city, const Rings &rings, float heightM = 12)
{
    Footprints &shapes = city.footprints;
    const auto begin = static_cast<std::uint32_t>(shapes.rings.size());
    for (const Ring &ring : rings) {
        const auto first = static_cast<std::uint32_t>(shapes.places.size());
        shapes.places.insert(shapes.places.end(), ring.begin(), ring.end());
        city.places.insert(city.places.end(), ring.begin(), ring.end());
        shapes.rings.push_back(
            {first, static_cast<std::uint32_t>(shapes.places.size()), shapes.rings.size() > begin});
    }
    shapes.buildings.push_back({begin, static_cast<std::uint32_t>(shapes.rings.size()), heightM});
    city.baseM.push_back(BaseM);
    city.wallColors.push_back({10, 20, 30, 0});
    city.roofColors.push_back({200, 100, 50, 255});
}

inline Ring square(double x, double y, double side)
{
    return {{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}};
}

inline Ring turned(Ring ring)
{
    std::reverse(ring.begin(), ring.end());
    return ring;
}

/// A GeoTIFF.
struct Image
{
    int columns = 1;
    int rows = 1;
    int bands = 1;
    GDALDataType type = GDT_Byte;
    osg::Vec2d corner;       ///< lower left corner
    double pixel = 10;       ///< its width and height
    const char *system = ""; ///< empty for none
    std::function<double(int column, int row, int band)> value = {};
    std::function<void(GDALDataset &)> finish = {}; ///< before the values; may be empty
};

inline std::string make(const QString &path, const Image &image)
{
    GDALAllRegister();
    const GDALDatasetUniquePtr made(GetGDALDriverManager()->GetDriverByName("GTiff")->Create(
        path.toUtf8().constData(), image.columns, image.rows, image.bands, image.type, nullptr));
    std::array<double, 6> placing{
        image.corner.x(), image.pixel, 0, image.corner.y() + image.pixel * image.rows, 0,
        -image.pixel};
    OGRSpatialReference srs;
    if (!made || made->SetGeoTransform(placing.data()) != CE_None ||
        (*image.system && (srs.SetFromUserInput(image.system) != OGRERR_NONE ||
                           made->SetSpatialRef(&srs) != CE_None)))
        qFatal("no image");
    if (image.finish)
        image.finish(*made);
    std::vector<double> values;
    for (int i = 0; i < image.bands * image.rows * image.columns; ++i) {
        const int pixel = i % (image.rows * image.columns);
        values.push_back(image.value(pixel % image.columns, pixel / image.columns,
                                     1 + i / (image.rows * image.columns)));
    }
    if (made->RasterIO(GF_Write, 0, 0, image.columns, image.rows, values.data(), image.columns,
                       image.rows, GDT_Float64, image.bands, nullptr, 0, 0, 0) != CE_None)
        qFatal("no pixels");
    return path.toStdString();
}

} // namespace towntest
