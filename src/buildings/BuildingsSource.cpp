#include "buildings/BuildingsSource.h"

namespace vlt::buildings {

BuildingsSource readBuildingsSource(const QVariantMap &parameters)
{
    const auto textOf = [&parameters](const char *key) {
        return parameters.value(QLatin1String(key)).toString();
    };
    BuildingsSource source;
    source.file = textOf("Buildings");
    source.layer = textOf("Layer");
    source.heightField = textOf("Height");
    source.terrainFile = textOf("Dtm");
    source.terrainNoData = textOf("Nodata");
    source.xCenter = parameters.value(QStringLiteral("CenterX")).toDouble();
    source.yCenter = parameters.value(QStringLiteral("CenterY")).toDouble();
    source.project = textOf("ProjectName");
    return source;
}

} // namespace vlt::buildings
