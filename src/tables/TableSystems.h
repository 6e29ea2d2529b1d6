#pragma once

#include "geodata/SystemCheck.h"

#include <QString>

namespace vlt::tables {

/// The unit and the coordinate systems that are known when a table is opened; each may be empty.
struct KnownSystems
{
    QString unit;        ///< of the file: "METERS", "DMS", else decimal degrees
    QString fileEpsg;    ///< code that the file declares; "0" also means none
    QString projectEpsg; ///< reference projection of the target project
    QString terrainEpsg; ///< code of the project's terrain
};

/// The systems to suggest; an empty one does not change the user's choice. The source is that of
/// the file, else WGS 84 for degrees, else that of the terrain. The target is that of the project,
/// else that of the terrain, else WGS 84 for degrees, else that of the file.
geodata::SystemPair chooseSystems(const KnownSystems &known);

} // namespace vlt::tables
