#pragma once

#include "contract/BuildingDocument.h"
#include "contract/CityCounts.h"
#include "contract/Progress.h"
#include "platform/Result.h"

#include <QStringList>

#include <vector>

namespace vlt::buildings {

/// What the scene of a building document draws.
struct CountedBuildings
{
    contract::CityCounts counts;
    bool isProbablyAboveSea = false; ///< the heights, though they are read as above the ground
    QStringList notices; ///< in the language in use: what is left out or drawn with a substitute
    std::vector<double> values; ///< of the buildings that have one in the raster of the colours
    QString unit;               ///< that the raster states for them; may be empty
};

/// Reads the footprints, the ground and the raster of the colours as the scene does.
///
/// @par Errors  in the language in use, if the footprints cannot be used; without a text if
///              `progress` stopped the function
Result<CountedBuildings> countBuildings(const contract::BuildingDocument &document,
                                        const Progress &progress);

/// The parts of a document on which its counts depend: those of two documents are equal if these
/// are.
contract::BuildingDocument countedParts(const contract::BuildingDocument &document);

} // namespace vlt::buildings
