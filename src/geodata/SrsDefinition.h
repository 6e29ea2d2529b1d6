#pragma once

#include "platform/Result.h"

#include <QString>

#include <optional>

namespace vlt::geodata {

/// The code of a system as lists show it: "EPSG:2154" for "2154" and for "epsg:2154", with or
/// without blanks around; any other text unchanged.
QString listedCode(const QString &systemText);

/// Why a text that the user typed does not define a coordinate system for points on a map; none if
/// it does. The text may be an authority code, a PROJ string, WKT or any other definition that the
/// geodata library accepts. Neither files nor the network are used.
///
/// @return  MESS_SRS_NOT_LATIN1 for characters that layers cannot carry, MESS_SRS_NOT_DEFINED, or
///          the error of srsRefusal().
std::optional<Error> definitionRefusal(const QString &text);

} // namespace vlt::geodata
