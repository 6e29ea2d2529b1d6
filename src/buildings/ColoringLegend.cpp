#include "buildings/ColoringLegend.h"

#include "colormaps/ColorMapList.h"
#include "colormaps/OpenColorMap.h"
#include "geodata/ErrorCollector.h"

#include <QFile>

namespace vlt::buildings {

using colormaps::ColorMap;

Stoppable<std::optional<coverage::ValueRange>> readCoverageRange(const RasterColoring &coloring,
                                                                 const Progress &progress)
{
    const geodata::ErrorCollector errors;
    const auto opened =
        coverage::CoverageRaster::open(QFile::encodeName(coloring.rasterFile).toStdString(),
                                       coloring.noData.toStdString(), coloring.band);
    if (!opened)
        return Error{QStringLiteral("MESS_ERR_OPEN_RASTERDS"),
                     QStringLiteral("This file can't be open as a raster dataset"),
                     coloring.rasterFile, QString::fromLocal8Bit(opened.reason.c_str())};
    bool isStopped = false;
    const std::optional<coverage::ValueRange> range = opened->range([&](double share) {
        isStopped = progress && !progress(share);
        return !isStopped;
    });
    if (isStopped)
        return std::nullopt;
    return Result(range);
}

Result<LegendInput> legendOf(const RasterColoring &coloring,
                             const std::optional<coverage::ValueRange> &range)
{
    const bool isLaidOver = coloring.stretched && range;
    const Result<ColorMap> map =
        colormaps::openColorMap(coloring.colorMap, isLaidOver ? range->minimum : ColorMap::Unset,
                                isLaidOver ? range->maximum : ColorMap::Unset);
    if (!map)
        return map.error();
    return LegendInput{colormaps::colorMapEntry(coloring.colorMap).name, map.value(),
                       coloring.interpolated ? colormaps::Interpretation::Interpolation
                                             : colormaps::Interpretation::ColorRanges};
}

} // namespace vlt::buildings
