#pragma once

#include "buildings/BuildingLayerFiles.h"
#include "buildings/CountedBuildings.h"

#include <memory>

namespace vlt::city {
struct CityValues;
}

namespace vlt::buildings {

/// Where and how the values of buildings are written.
struct ValuesTarget
{
    QString path;    ///< of a name of geodata::ValuesFile
    QString idField; ///< empty: a field with a name that ids have
};

/// The buildings of a document with the values under them, read once.
class ValuedBuildings
{
public:
    /// Reads footprints, ground and raster as the scene does.
    ///
    /// @par Errors  in the language in use, if the footprints cannot be used
    static Stoppable<ValuedBuildings> read(const contract::BuildingDocument &document,
                                           const Progress &progress);

    CountedBuildings counted() const;

    /// Writes a row for each feature of the source, in its order: fid, id, height_m, height_from,
    /// base_m, bottom_m, value, pixels, share_CLASS for each class of a classified raster, color,
    /// left_out. Names and words are the same in all languages.
    ///
    /// @param legend  the colours of the values; nothing: no colour comes from a raster or a field
    /// @par Errors    those of geodata::ValuesFile; there is no such field of ids
    Stoppable<Done> write(const ValuesTarget &target, const std::optional<LegendInput> &legend,
                          const Progress &progress) const;

private:
    ValuedBuildings(const contract::BuildingDocument &document,
                    std::shared_ptr<const city::CityValues> read);

    contract::BuildingDocument m_document;
    std::shared_ptr<const city::CityValues> m_read;
};

/// Reads the buildings of a document and writes their values: ValuedBuildings::read() and write().
Stoppable<Done> saveValues(const contract::BuildingDocument &document, const ValuesTarget &target,
                           const std::optional<LegendInput> &legend, const Progress &progress);

} // namespace vlt::buildings
