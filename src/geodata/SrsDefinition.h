#pragma once

#include "platform/Result.h"

#include <QString>

#include <optional>

namespace vlt::geodata {

/// The code that lists of systems have for a text: "EPSG:2154" for "2154" and for "epsg:2154", with
/// or without blanks around; any other text as it stands.
QString listedCode(const QString &systemText);

/// Why a text that somebody typed does not define a coordinate system for points on a map; none
/// where it does. It may be an authority code, a PROJ string, WKT or whatever else the geodata
/// library takes for one. Neither files nor the network are asked.
///
/// @return  MESS_SRS_NOT_LATIN1 for characters that layers cannot carry, MESS_SRS_NOT_DEFINED, or
///          what srsRefusal() says.
std::optional<Error> definitionRefusal(const QString &text);

} // namespace vlt::geodata
