#pragma once

#include "city/CityValues.h"

#include <functional>
#include <string>

class OGRGeometry;

namespace vlt::city {

/// A feature of the footprints in a list of all of them.
struct BuildingRow
{
    std::size_t index = 0; ///< among the features that are read, see Footprints::Feature::row
    std::int64_t fid = -1; ///< that the source gives it
    std::string id;        ///< from the field of ids; empty if there is none
    std::optional<contract::LeftOutReason> leftOut;

    // of those that are not left out:
    HeightSource source = HeightSource::Field;
    double heightM = 0;                  ///< of the roof above the base
    double baseM = 0;                    ///< above sea level; the lowest of several parts
    double bottomM = 0;                  ///< of the underside above the base
    const FeatureValue *value = nullptr; ///< null if there is no raster

    const OGRGeometry *shape = nullptr; ///< as in the source; may be null
};

/// Reads the features of a document again, in the order of their source, each with what became of
/// it.
///
/// @param read      of the same document
/// @param idField   in any case of letters; empty: the first of "ID", "osm_id", "cleabs" and
///                  "gml_id" that there is
/// @param use       false ends the reading
/// @throws BadLayer there is no such field; the footprints cannot be read any more or have changed
/// @throws Stopped  `progress` stopped the function
void forEachRow(const contract::BuildingDocument &document,
                const std::vector<std::string> &directories, const CityValues &read,
                const std::string &idField, const std::function<bool(const BuildingRow &)> &use,
                const Progress &progress);

} // namespace vlt::city
