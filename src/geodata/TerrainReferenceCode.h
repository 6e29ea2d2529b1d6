#pragma once

#include "geodata/SrsBounds.h"

#include <QString>

#include <optional>

namespace vlt::geodata {

/// The EPSG code of a terrain raster's coordinate system as text ("2154"), after identification;
/// empty when the file cannot be opened, has no system, or has one that EPSG does not list.
///
/// `rasterPath` comes out of a project file, so only a regular file of the local disk is opened,
/// and only through formats that cannot refer to anything outside it.
QString terrainReferenceCode(const QString &rasterPath);

/// Where a terrain raster lies, in degrees of WGS 84; none where its file or its place is not
/// known. The same files are opened.
std::optional<SrsBounds> terrainArea(const QString &rasterPath);

} // namespace vlt::geodata
