#include "batch/DatasetNames.h"

#include "geodata/RasterSource.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace vlt::batch {

namespace {

/// Names that begin with a colon are those of the application's own resources.
bool isThere(const QString &file)
{
    return !file.startsWith(QLatin1Char(':')) && QFileInfo::exists(file);
}

/// Start, file and end of a dataset's name: one that exists, or "FORMAT:", perhaps with a number or
/// a quote, before one and perhaps something behind it.
struct DatasetName
{
    QString before;
    QString file; ///< empty where no file of this computer is in it
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
