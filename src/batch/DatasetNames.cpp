#include "batch/DatasetNames.h"

#include "geodata/RasterSource.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace vlt::batch {

namespace {

/// Whether a file exists. Names with a colon at the start are excluded: they are resources of the
/// application.
bool isThere(const QString &file)
{
    return !file.startsWith(QLatin1Char(':')) && QFileInfo::exists(file);
}

/// The parts of a dataset's name: an existing file, or "FORMAT:", optionally a number or a quote,
/// an existing file, optionally a part of it.
struct DatasetName
{
    QString before;
    QString file; ///< empty if the name has no local file
    QString after;
};

DatasetName parsedName(const QString &name)
{
    static const QRegularExpression inFormat(
        QStringLiteral("\\A([A-Za-z0-9_]+:(?:[0-9]+:)?\"?)([^\"]+?)((?:\"?(?::.*)?|\"))\\z"));
    if (isThere(name))
        return {{}, name, {}};
    const QRegularExpressionMatch match = inFormat.match(name);
    if (match.hasMatch() && isThere(match.captured(2)))
        return {match.captured(1), match.captured(2), match.captured(3)};
    return {name, {}, {}};
}

} // namespace

QString absoluteDatasetName(const QString &name)
{
    const DatasetName parts = parsedName(name);
    if (parts.file.isEmpty())
        return name;
    QString path = QFileInfo(parts.file).absoluteFilePath();
    if (parts.before.isEmpty())
        return path;
    QString full = parts.before + path + parts.after;
    const auto withoutQuotes = [](QString text) { return text.remove(QLatin1Char('"')); };
    if (const auto file = geodata::readRasterSummary(path)) {
        for (const geodata::Subdataset &part : file.value().subdatasets) {
            if (withoutQuotes(part.name) == withoutQuotes(full))
                return part.name;
        }
    }
    return full;
}

QString fileOfDataset(const QString &name)
{
    return parsedName(name).file;
}

} // namespace vlt::batch
