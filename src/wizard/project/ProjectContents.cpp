#include "wizard/project/ProjectContents.h"

#include "language/VltLanguageManager.h"
#include "wizard/project/ProjectReaders.h"

#include <QFileInfo>

namespace vlt::project {

namespace {

QString fileText(const QString &path)
{
    if (path.isEmpty())
        return dico_label("MESS_PROJECT_STATES_NONE", "none");
    const QFileInfo file(path);
    return file.isFile()
               ? file.fileName()
               : dico_label("MESS_PROJECT_LACKS_FILE", "%1 (this file does not exist)").arg(path);
}

QString systemText(const QString &projection, const QString &name)
{
    if (projection.isEmpty())
        return dico_label("MESS_PROJECT_NO_SYSTEM", "that of the terrain");
    return name.isEmpty() ? projection : QStringLiteral("%1 (%2)").arg(name, projection);
}

} // namespace

QStringList projectContents(const QString &projectPath, const QString &systemName)
{
    const Result<QString> terrain = terrainFile(projectPath);
    if (!terrain || namesNothing(projectPath))
        return {};
    const Result<QString> buildings = buildingVectorFile(projectPath);
    return {dico_label("MESS_PROJECT_SYSTEM", "Coordinate system: %1")
                .arg(systemText(referenceProjection(projectPath), systemName)),
            dico_label("MESS_PROJECT_TERRAIN", "Terrain: %1").arg(fileText(terrain.value())),
            dico_label("MESS_PROJECT_BUILDINGS", "Buildings: %1")
                .arg(fileText(buildings ? buildings.value() : QString()))};
}

} // namespace vlt::project
