#pragma once

#include "geodata/SystemCheck.h"

#include <QString>

namespace vlt::tables {

/// What is known about coordinate systems when a table is opened; each may be empty.
struct KnownSystems
{
    QString unit;        ///< of the file: "METERS", "DMS", else decimal degrees
    QString fileEpsg;    ///< code that the file declares; "0" stands for none as well
    QString projectEpsg; ///< reference projection of the target project
    QString terrainEpsg; ///< code of the project's terrain
};

/// The systems to offer; an empty one leaves the user's choice as it is. Source: the file's own
/// code, else WGS 84 for degrees, else the terrain's. Target: the project's, else the terrain's,
/// else WGS 84 for degrees, else the file's own.
geodata::SystemPair chooseSystems(const KnownSystems &known);

} // namespace vlt::tables
