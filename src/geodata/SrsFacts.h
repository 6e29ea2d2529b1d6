#pragma once

#include "geodata/SrsBounds.h"
#include "platform/Result.h"

#include <QString>

#include <optional>

class OGRSpatialReference;

namespace vlt::geodata {

/// Kind of the coordinates of a system.
enum class SrsUse {
    Unknown,    ///< no system, or one of another kind
    Geographic, ///< angles, with or without heights
    Projected,  ///< lengths in a plane, with or without heights
    Heights,    ///< only heights
    Geocentric  ///< lengths from the centre of the earth
};

/// Kind and area of use of a coordinate system.
struct SrsFacts
{
    SrsUse use = SrsUse::Unknown;
    QString name;
    std::optional<SrsBounds> area; ///< area of use; none if it is not known
};

/// Properties of a system that is given as an EPSG number, another code or a definition. Neither
/// files nor the network are used; may run on any thread.
SrsFacts srsFacts(const QString &systemText);
SrsFacts srsFacts(const OGRSpatialReference &system);

/// Why a system cannot give points a position on a map: MESS_SRS_HEIGHTS_ONLY or
/// MESS_SRS_GEOCENTRIC, without a path. None for all other systems, including unknown ones.
std::optional<Error> srsRefusal(const SrsFacts &facts);

} // namespace vlt::geodata
