#pragma once

#include <QString>

#include <ogr_spatialref.h>

namespace vlt::geodata {

/// The EPSG code of a system as text ("2154"): the code in its definition, the one that the library
/// identifies, or that of an equivalent system of EPSG's list; empty if there is none. The code of
/// a part, such as the geographic base of a projected system, does not count.
QString identifiedEpsgCode(const OGRSpatialReference &system);

} // namespace vlt::geodata
