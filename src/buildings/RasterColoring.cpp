#include "buildings/RasterColoring.h"

namespace vlt::buildings {

namespace {

contract::RasterColors rasterColors(const RasterColoring &coloring)
{
    return {coloring.rasterFile.toStdString(),
            coloring.colorMap.toStdString(),
            coloring.reduction,
            coloring.stretched,
            coloring.interpolated,
            coloring.noData.toStdString()};
}

} // namespace

QString imageColor(const RasterColoring &coloring)
{
    return QString::fromStdString(contract::imageColorText(rasterColors(coloring)));
}

QString colorMapColor(const RasterColoring &coloring)
{
    return QString::fromStdString(contract::colorMapColorText(rasterColors(coloring)));
}

} // namespace vlt::buildings
