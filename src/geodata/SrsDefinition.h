#pragma once

#include <QString>

namespace vlt::geodata {

/// Whether a text that somebody typed defines a coordinate system: an authority code, a PROJ
/// string, WKT or whatever else the geodata library takes for one. Characters outside Latin-1 count
/// as "?". Neither files nor the network are asked.
bool isSrsDefinition(const QString &text);

} // namespace vlt::geodata
