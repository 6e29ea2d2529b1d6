#pragma once

#include "geodata/SrsBounds.h"

#include <QString>

#include <optional>

namespace vlt::geodata {

/// The EPSG code of a terrain raster's coordinate system as text ("2154"), after identification;
/// empty if the file cannot be opened, has no system, or has one that EPSG does not list.
///
/// `rasterPath` comes from a project file. Therefore only a regular file of the local disk is
/// opened, and only with formats that cannot refer to anything outside the file.
QString terrainReferenceCode(const QString &rasterPath);

/// The area of a terrain raster, in degrees of WGS 84; none if the file cannot be opened or its
/// position is not known. The same files are opened as by terrainReferenceCode().
std::optional<SrsBounds> terrainArea(const QString &rasterPath);

} // namespace vlt::geodata
