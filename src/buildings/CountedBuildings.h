#pragma once

#include "contract/BuildingDocument.h"
#include "contract/CityCounts.h"
#include "contract/Progress.h"
#include "platform/Result.h"

#include <QStringList>

namespace vlt::buildings {

/// What the scene of a building document draws.
struct CountedBuildings
{
    contract::CityCounts counts;
    QStringList notices; ///< in the language in use: what is left out or drawn with a substitute
};

/// Reads the footprints, the ground and the raster of the colours as the scene does.
///
/// @par Errors  in the language in use, if the footprints cannot be used
Result<CountedBuildings> countBuildings(const contract::BuildingDocument &document,
                                        const Progress &progress);

} // namespace vlt::buildings
