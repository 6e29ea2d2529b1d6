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

/// Number of entries; a damaged one must not block the page.
qsizetype entryCount(const QSettings &settings)
{
    return std::min<qsizetype>(settings.value(FileCountKey, 0).toInt(),
                               settings.childKeys().size());
}

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
    change(settings, FullPathKey.arg(n), entry.file.filePath());
    change(settings, ShortNameKey.arg(n), entry.shortName);
    change(settings, HeightKey.arg(n), entry.height);
    change(settings, UnitKey.arg(n), entry.unit);
    change(settings, UsedKey.arg(n), entry.used ? QStringLiteral("true") : QStringLiteral("false"));
    change(settings, DescriptionKey.arg(n), entry.description);
}

bool isSame(const FileEntry &a, const FileEntry &b)
{
    return a.height == b.height && a.unit == b.unit && a.used == b.used &&
           a.shortName == b.shortName && a.description == b.description &&
           a.file.filePath() == b.file.filePath();
}

/// Whether the settings have a list of images, by its number and ends: another program with these
/// settings may have stored another one.
bool has(const QSettings &settings, const QList<FileEntry> &images)
{
    return !images.isEmpty() && settings.value(FileCountKey).toInt() == images.size() &&
           isSame(readEntry(settings, 0), images.constFirst()) &&
           isSame(readEntry(settings, images.size() - 1), images.constLast());
}

void removeEntries(QSettings &settings, qsizetype first)
{
    const qsizetype end = entryCount(settings);
    for (qsizetype n = first; n < end; ++n) {
        for (const QString *key :
             {&FullPathKey, &ShortNameKey, &HeightKey, &UnitKey, &UsedKey, &DescriptionKey})
            settings.remove(key->arg(n));
    }
}

} // namespace

void change(QSettings &settings, const QString &key, const QVariant &value)
{
    const QVariant stored = settings.value(key);
    if (!stored.isValid() || stored.toString() != value.toString())
        settings.setValue(key, value);
}

TextureSettings readTextureSettings(QSettings &settings)
{
    settings.beginGroup(Group);
    TextureSettings textures;
    textures.dataStructure = settings.value(DataStructureKey, 0).toInt();
    textures.filter = settings.value(FilterKey).toString();
    const qsizetype count = entryCount(settings);
    for (qsizetype n = 0; n < count; ++n) {
        const FileEntry entry = readEntry(settings, n);
        if (!entry.file.filePath().isEmpty())
            textures.files += entry;
    }
    constexpr qsizetype ValuesOfEntry = 6;
    textures.isWhole = textures.files.size() == settings.value(FileCountKey, 0).toInt() &&
                       settings.childKeys().filter(QChar(u'_')).size() == ValuesOfEntry * count;
    settings.endGroup();
    return textures;
}

void writeTextureSettings(QSettings &settings, const TextureSettings &textures,
                          const QList<FileEntry> &stored)
{
    settings.beginGroup(Group);
    const bool isKnown = has(settings, stored);
    if (!isKnown || stored.size() > textures.files.size())
        removeEntries(settings, textures.files.size());
    change(settings, DataStructureKey, textures.dataStructure);
    change(settings, FilterKey, textures.filter);
    change(settings, FileCountKey, static_cast<int>(textures.files.size()));
    for (qsizetype n = 0; n < textures.files.size(); ++n) {
        const FileEntry &entry = textures.files.at(n);
        if (!isKnown || n >= stored.size() || !isSame(entry, stored.at(n)))
            writeEntry(settings, n, entry);
    }
    settings.endGroup();
}

} // namespace vlt::buildings
