#include "buildings/CountedBuildings.h"

#include "buildings/ValuedBuildings.h"
#include "contract/RasterColors.h"

namespace vlt::buildings {

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
    if (const auto colors = contract::parseRasterColors(footprints.wallColor))
        parts.footprints.wallColor = contract::imageColorText(
            {colors->raster, {}, colors->reduction, false, false, colors->noData});
    parts.terrain = document.terrain;
    parts.colors = document.colors;
    return parts;
}

} // namespace vlt::buildings
