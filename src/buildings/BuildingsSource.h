#pragma once

#include "contract/BuildingHeights.h"
#include "geodata/PolygonSource.h"

#include <QString>
#include <QVariantMap>

namespace vlt::buildings {

/// The choices of the source page for the pages after it.
struct BuildingsSource
{
    QString file;
    QString layer;
    QString heightField;
    contract::BuildingHeights heights;
    QList<geodata::VectorField> colorFields; ///< of the layer: those that can color buildings
    QString where; ///< SQL condition for the features that are buildings; empty: all
    QString terrainFile;
    QString terrainNoData; ///< as the user typed it; may be empty
    double xCenter = 0;    ///< centre of the buildings' extent, in their system
    double yCenter = 0;
    QString project; ///< path of the project file; may be empty
};

/// Reads the choices from the wizard's shared parameters: "Buildings", "Layer", "Height", "Dtm",
/// "Nodata", "CenterX", "CenterY", "ProjectName", "ColorFields", a list of pairs of name and kind,
/// and "Heights", a map that is absent if all of its values are the defaults.
BuildingsSource readBuildingsSource(const QVariantMap &parameters);

/// Writes the choices to the same parameters, except the project, which another page chooses.
void publishBuildingsSource(const BuildingsSource &source, QVariantMap &parameters);

} // namespace vlt::buildings
