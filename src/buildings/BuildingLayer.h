#pragma once

#include "contract/BuildingDocument.h"
#include "platform/AtomicFile.h"
#include "platform/Result.h"

#include <QString>

namespace vlt::buildings {

/// The representation of buildings in a layer.
enum class TexbSubtype { Colored, Roofs, Walls, Storeys };

/// The values of a building layer.
struct TexbLayer
{
    QString title;
    QString url;        ///< texbUrl()
    double xCenter = 0; ///< centre of the buildings' extent, in their system; written with 9 digits
    double yCenter = 0;
    TexbSubtype subtype = TexbSubtype::Colored;
    QString description;
};

/// The representation of a layer with images on this part of the buildings.
TexbSubtype subtypeOf(contract::TextureMode mode);

/// "rf_colored_buildings", "rf_roofs", "rf_walls", "rf_storeys".
QString subtypeName(TexbSubtype subtype);

/// The URL of the document in a layer.
///
/// @param documentPath  without the extension ".texb"
QString texbUrl(const QString &documentPath);

/// The layer template of an installation.
QString texbTemplatePath(const QString &installDir);

/// Writes the layer file from a template. Afterwards the file is the whole new one or, after an
/// error, the old one.
///
/// @par Errors  MESS_MISSING_CONF_FILE with the template's path, and nothing is written;
///              MESS_CANT_CREATE_LAYER with the output's path and the system's reason
Result<Done> createTexbLayerFile(const QString &outputPath, const QString &templatePath,
                                 const TexbLayer &layer, platform::Access access);

} // namespace vlt::buildings
