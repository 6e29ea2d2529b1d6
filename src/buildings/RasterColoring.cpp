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
            coloring.noData.toStdString(),
            coloring.band};
}

} // namespace

bool isUsable(const geodata::RasterSummary &raster)
{
    return raster.bandCount > 0 && !raster.isColorPicture;
}

QString bandText(int band, const QStringList &descriptions)
{
    const QString description = descriptions.value(band - 1);
    return description.isEmpty()
               ? QString::number(band)
               : QStringLiteral("%1 (%2)").arg(QString::number(band), description);
}

contract::BuildingColors otherColors(const RasterColoring &coloring)
{
    contract::BuildingColors colors;
    colors.band = coloring.band;
    if (coloring.stretched)
        colors.range = coloring.range;
    return colors;
}

QString imageColor(const RasterColoring &coloring)
{
    return QString::fromStdString(contract::imageColorText(rasterColors(coloring)));
}

QString colorMapColor(const RasterColoring &coloring)
{
    return QString::fromStdString(contract::colorMapColorText(rasterColors(coloring)));
}

} // namespace vlt::buildings
