#pragma once

#include "geodata/SrsBounds.h"
#include "platform/Result.h"

#include <QString>

#include <optional>

class OGRSpatialReference;

namespace vlt::geodata {

/// What the coordinates of a system are.
enum class SrsUse {
    Unknown,    ///< no system, or one of another kind than these
    Geographic, ///< degrees, with or without heights
    Projected,  ///< lengths in a plane, with or without heights
    Heights,    ///< heights alone
    Geocentric  ///< lengths from the centre of the earth
};

/// What is known of a coordinate system.
struct SrsFacts
{
    SrsUse use = SrsUse::Unknown;
    QString name;
    std::optional<SrsBounds> area; ///< where it may be used
};

/// Facts of a system given as a bare EPSG number, another code or a definition. Neither files nor
/// the network are asked; may run on any thread.
SrsFacts srsFacts(const QString &systemText);
SrsFacts srsFacts(const OGRSpatialReference &system);

/// Why a system cannot place points on a map: MESS_SRS_HEIGHTS_ONLY or MESS_SRS_GEOCENTRIC, without
/// a path. None for all others, unknown ones included.
std::optional<Error> srsRefusal(const SrsFacts &facts);

} // namespace vlt::geodata
