#include "buildings/ui/TextureSettings.h"

#include <algorithm>

namespace vlt::buildings {

namespace {

const QString Group = QStringLiteral("AddTexbTexturedPage");
const QString DataStructureKey = QStringLiteral("DataStructure");
const QString FilterKey = QStringLiteral("Filter");
const QString FileCountKey = QStringLiteral("FileCount");
const QString FullPathKey = QStringLiteral("fullPath_%1");
const QString ShortNameKey = QStringLiteral("shortName_%1");
const QString HeightKey = QStringLiteral("height_%1");
const QString UnitKey = QStringLiteral("unit_%1");
const QString UsedKey = QStringLiteral("used_%1");
const QString DescriptionKey = QStringLiteral("description_%1");

FileEntry readEntry(const QSettings &settings, qsizetype n)
{
    const auto value = [&settings, n](const QString &key, const QVariant &absent) {
        return settings.value(key.arg(n), absent);
    };
    return {value(FullPathKey, QString()).toString(),
            value(HeightKey, 0.0).toDouble(),
            value(UnitKey, 0).toInt(),
            value(ShortNameKey, QString()).toString(),
            value(UsedKey, QStringLiteral("true")).toBool(),
            value(DescriptionKey, QString()).toString()};
}

void writeEntry(QSettings &settings, qsizetype n, const FileEntry &entry)
{
    settings.setValue(FullPathKey.arg(n), entry.file.filePath());
    settings.setValue(ShortNameKey.arg(n), entry.shortName);
    settings.setValue(HeightKey.arg(n), entry.height);
    settings.setValue(UnitKey.arg(n), entry.unit);
    settings.setValue(UsedKey.arg(n),
                      entry.used ? QStringLiteral("true") : QStringLiteral("false"));
    settings.setValue(DescriptionKey.arg(n), entry.description);
}

} // namespace

TextureSettings readTextureSettings(QSettings &settings)
{
    settings.beginGroup(Group);
    TextureSettings textures;
    textures.dataStructure = settings.value(DataStructureKey, 0).toInt();
    textures.filter = settings.value(FilterKey).toString();
    // A damaged count must not block the page.
    const qsizetype count =
        std::min<qsizetype>(settings.value(FileCountKey, 0).toInt(), settings.childKeys().size());
    for (qsizetype n = 0; n < count; ++n) {
        const FileEntry entry = readEntry(settings, n);
        if (!entry.file.filePath().isEmpty())
            textures.files += entry;
    }
    settings.endGroup();
    return textures;
}

void writeTextureSettings(QSettings &settings, const TextureSettings &textures)
{
    settings.remove(Group);
    settings.beginGroup(Group);
    settings.setValue(DataStructureKey, textures.dataStructure);
    settings.setValue(FilterKey, textures.filter);
    settings.setValue(FileCountKey, static_cast<int>(textures.files.size()));
    for (qsizetype n = 0; n < textures.files.size(); ++n)
        writeEntry(settings, n, textures.files.at(n));
    settings.endGroup();
}

} // namespace vlt::buildings
