#pragma once

#include "contract/BuildingDocument.h"
#include "platform/AtomicFile.h"
#include "platform/Result.h"

#include <QString>

namespace vlt::buildings {

/// What a layer of buildings shows.
enum class TexbSubtype { Colored, Roofs, Walls, Storeys };

/// The values of a building layer.
struct TexbLayer
{
    QString title;
    QString url; ///< texbUrl()
    double xCenter =
        0; ///< of the extent of the buildings, in their system; both written with 9 digits
    double yCenter = 0;
    TexbSubtype subtype = TexbSubtype::Colored;
    QString description;
};

/// What a layer shows whose images lie on this part of the buildings.
TexbSubtype subtypeOf(contract::TextureMode mode);

/// "rf_colored_buildings", "rf_roofs", "rf_walls", "rf_storeys".
QString subtypeName(TexbSubtype subtype);

/// By which a layer names its document.
///
/// @param documentPath  without the extension ".texb"
QString texbUrl(const QString &documentPath);

/// The layer template of an installation.
QString texbTemplatePath(const QString &installDir);

/// Writes the layer file out of a template: afterwards it is the old one or the whole new one.
///
/// @par Errors  MESS_MISSING_CONF_FILE with the template's path, nothing is written then;
///              MESS_CANT_CREATE_LAYER with the output's path and the system's reason
Result<Done> createTexbLayerFile(const QString &outputPath, const QString &templatePath,
                                 const TexbLayer &layer, platform::Access access);

} // namespace vlt::buildings
