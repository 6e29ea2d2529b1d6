#include "colormaps/ColorMapList.h"

#include "contract/Installation.h"
#include "language/VltLanguageManager.h"
#include "platform/Paths.h"

#include <QDir>
#include <QFileInfo>

namespace vlt::colormaps {

ColorMapEntry colorMapEntry(const QString &path)
{
    const QFileInfo file(path);
    return {file.completeBaseName(), file.absoluteFilePath()};
}

QList<ColorMapEntry> listColorMaps(const QString &installDir, bool withNone)
{
    QList<ColorMapEntry> entries;
    if (withNone)
        entries.append({dico_label("MESS_AUCUNE", "None"), QString()});

    const QDir root(platform::installedFile(installDir, contract::ColorMapFolder, {}));
    for (const QString &folder : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QDir dir(root.filePath(folder));
        const QStringList patterns = {QStringLiteral("*.cmap"), QStringLiteral("*.txt")};
        for (const QString &file : dir.entryList(patterns, QDir::Files, QDir::Name))
            entries.append(colorMapEntry(dir.filePath(file)));
    }
    return entries;
}

} // namespace vlt::colormaps
