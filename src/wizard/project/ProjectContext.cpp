#include "wizard/project/ProjectContext.h"

#include "wizard/project/ProjectReaders.h"

#include <QDir>
#include <QFileInfo>

namespace vlt::project {

QString ProjectContext::directory() const
{
    return projectPath.isEmpty() ? QString() : QFileInfo(projectPath).absolutePath();
}

QString ProjectContext::relativePath(const QString &file) const
{
    const QString absolute = QFileInfo(file).absoluteFilePath();
    return projectPath.isEmpty() ? absolute : QDir(directory()).relativeFilePath(absolute);
}

ProjectContext readProjectContext(const QString &projectPath)
{
    ProjectContext context;
    context.projectPath = projectPath;
    if (projectPath.isEmpty())
        return context;
    const Result<QString> terrain = terrainFile(projectPath);
    if (terrain)
        context.terrainFile = terrain.value();
    return context;
}

} // namespace vlt::project
