#include "wizard/project/RecentProjects.h"

#include "platform/Settings.h"

#include <QDateTime>
#include <QFileInfo>

namespace vlt::project {

QStringList recentProjects(const QString &currentProject)
{
    QStringList paths = {currentProject};
    const auto settings = platform::builderSettings();
    for (int n = 1; n <= 10; ++n)
        paths += settings->value(QStringLiteral("RECENT_PROJECT_%1").arg(n)).toString();
    paths.removeDuplicates();
    paths.removeIf([](const QString &path) { return !QFileInfo(path).isFile(); });
    return paths;
}

QString projectCaption(const QString &path)
{
    const QFileInfo file(path);
    const QDateTime changed = file.lastModified();
    return QStringLiteral("%1\n%2\n%3")
        .arg(file.baseName(), changed.toString(QStringLiteral("dd/MM/yyyy")),
             changed.toString(QStringLiteral("hh:mm")));
}

} // namespace vlt::project
