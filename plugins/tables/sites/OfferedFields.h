#pragma once

#include "plugins/tables/sites/SiteRoles.h"

#include <string>
#include <vector>

namespace vlt::driver {

/// What a field beside those of the source holds.
enum class OfferedValue {
    SiteId,
    X, ///< in the file's system
    Y,
    GroundHeight,
    SectorId,
    Height,
    Azimuth,
    MechanicalTilt,
    ElectricalTilt,
    BeamWidth,
    Frequency,
    Technology,
};

/// A field under a name that readers of layers look for.
struct OfferedField
{
    std::string name;
    OfferedValue value = OfferedValue::SiteId;
    std::size_t transmitter = 0; ///< index

    bool isText() const
    {
        return value == OfferedValue::SiteId || value == OfferedValue::SectorId ||
               value == OfferedValue::Technology;
    }
    bool isOfTransmitter() const
    {
        return value != OfferedValue::SiteId && value != OfferedValue::X &&
               value != OfferedValue::Y && value != OfferedValue::GroundHeight;
    }
};

/// Whether a table has transmitters in the columns of a planning tool, which readers know.
bool hasKnownTransmitters(const TableProfile &table);

/// The fields whose values the table holds, but not under the names that readers look for.
///
/// @param transmitters      columns of the transmitters, which may be those of another table
/// @param transmitterCount  maximum number of transmitters of a site
std::vector<OfferedField> offeredFields(const TableProfile &table, const SiteRoles &roles,
                                        const PointFields &point, CoordinateUnit unit,
                                        const std::vector<TransmitterFields> &transmitters,
                                        std::size_t transmitterCount);

} // namespace vlt::driver
