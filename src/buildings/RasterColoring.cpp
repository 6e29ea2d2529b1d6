#include "buildings/RasterColoring.h"

namespace vlt::buildings {

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

bool needsOwnMap(const RasterColoring &coloring)
{
    return coloring.stretched && !coloring.isText &&
           (!coloring.field.isEmpty() || coloring.stretch.kind != Stretch::Raster);
}

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
    if (!coloring.field.isEmpty()) {
        using enum contract::FieldColoring;
        colors.field = coloring.field.toStdString();
        colors.map = coloring.isText ? std::string() : coloring.colorMap.toStdString();
        colors.coloring = coloring.isText         ? Distinct
                          : coloring.interpolated ? Interpolation
                                                  : ColorRange;
        return colors;
    }
    colors.band = coloring.band;
    if (coloring.stretched && !needsOwnMap(coloring))
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
