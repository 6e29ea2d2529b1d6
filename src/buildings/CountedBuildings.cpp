#include "buildings/CountedBuildings.h"

#include "buildings/ValuedBuildings.h"
#include "contract/RasterColors.h"

namespace vlt::buildings {

namespace {

/// A text of colours with what determines the values; empty without a raster. Without the name of a
/// map it would be no such text.
std::string valuesText(const std::string &color)
{
    constexpr char AnyMap[] = "map";
    const auto colors = contract::parseRasterColors(color);
    return colors ? contract::imageColorText(
                        {colors->raster, AnyMap, colors->reduction, false, false, colors->noData})
                  : std::string();
}

} // namespace

Result<CountedBuildings> countBuildings(const contract::BuildingDocument &document,
                                        const Progress &progress)
{
    const Stoppable<ValuedBuildings> read = ValuedBuildings::read(document, progress);
    if (!read)
        return Error::asIs({}, {});
    if (!*read)
        return read->error();
    return read->value().counted();
}

contract::BuildingDocument countedParts(const contract::BuildingDocument &document)
{
    const contract::BuildingFootprints &footprints = document.footprints;
    contract::BuildingDocument parts;
    parts.footprints.file = footprints.file;
    parts.footprints.layer = footprints.layer;
    parts.footprints.heightField = footprints.heightField;
    parts.footprints.heights = footprints.heights;
    parts.footprints.where = footprints.where;
    parts.footprints.wallColor = valuesText(footprints.wallColor);
    if (parts.footprints.wallColor.empty())
        parts.footprints.wallColor = valuesText(footprints.roofColor);
    parts.terrain = document.terrain;
    parts.colors.band = document.colors.band;
    parts.colors.field = document.colors.field;
    parts.colors.coloring = document.colors.coloring;
    return parts;
}

} // namespace vlt::buildings
