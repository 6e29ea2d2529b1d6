#pragma once

#include <QString>
#include <QVariantMap>

namespace vlt::buildings {

/// What the source page hands to the pages after it.
struct BuildingsSource
{
    QString file;
    QString layer;
    QString heightField;
    QString terrainFile;
    QString terrainNoData; ///< as typed; may be empty
    double xCenter = 0;    ///< of the extent of the buildings, in their system
    double yCenter = 0;
    QString project; ///< path of the project file; may be empty
};

/// Out of the wizard's shared parameters: "Buildings", "Layer", "Height", "Dtm", "Nodata",
/// "CenterX", "CenterY", "ProjectName".
BuildingsSource readBuildingsSource(const QVariantMap &parameters);

/// Into the same parameters, but for the project, which another page chooses.
void publishBuildingsSource(const BuildingsSource &source, QVariantMap &parameters);

} // namespace vlt::buildings
