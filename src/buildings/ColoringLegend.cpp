#include "buildings/ColoringLegend.h"

#include "colormaps/ColorMapList.h"
#include "colormaps/OpenColorMap.h"

namespace vlt::buildings {

using colormaps::ColorMap;

Result<LegendInput> legendOf(const RasterColoring &coloring,
                             const std::optional<coverage::ValueRange> &range)
{
    const bool isLaidOver = coloring.stretched && range;
    const Result<ColorMap> map =
        colormaps::openColorMap(coloring.colorMap, isLaidOver ? range->minimum : ColorMap::Unset,
                                isLaidOver ? range->maximum : ColorMap::Unset);
    if (!map)
        return map.error();
    return LegendInput{colormaps::colorMapEntry(coloring.colorMap).name,
                       map.value(),
                       coloring.interpolated ? colormaps::Interpretation::Interpolation
                                             : colormaps::Interpretation::ColorRanges,
                       {},
                       needsOwnMap(coloring)};
}

} // namespace vlt::buildings
