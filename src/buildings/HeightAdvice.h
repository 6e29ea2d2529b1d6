#pragma once

#include "buildings/CountedBuildings.h"
#include "geodata/PolygonSource.h"

#include <optional>

namespace vlt::buildings {

/// A better choice for the heights of a source of footprints, which the user may take.
struct HeightAdvice
{
    QString text;      ///< the reason, in the language in use, without a full stop
    QString elseField; ///< the second field; empty: the heights are above sea level

    bool operator==(const HeightAdvice &) const = default;
};

/// The best choice that the counts of a document suggest: a second field for buildings without a
/// height, else that the heights are above sea level; nothing if there is none.
///
/// Reads the values of the fields whose names are those of heights or levels.
///
/// @param document  with the layer's heights
/// @param counted   of the document
/// @par Errors      nothing is returned if the footprints cannot be read or `progress` stopped it
std::optional<HeightAdvice> adviseHeights(const contract::BuildingDocument &document,
                                          const CountedBuildings &counted,
                                          const geodata::PolygonLayer &layer,
                                          const Progress &progress);

} // namespace vlt::buildings
