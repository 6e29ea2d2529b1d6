#include "batch/BuildingsTextures.h"

#include "batch/ProgressLine.h"
#include "buildings/FileListModel.h"
#include "geodata/RasterSource.h"
#include "language/VltLanguageManager.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace vlt::batch {

namespace {

using buildings::DataStructure;
using buildings::FileEntry;
using Images = Result<QList<FileEntry>>;

Error told(const QString &text, const QString &path)
{
    return {QString(), text, path};
}

/// An image and the height that is given for it.
struct GivenImage
{
    QString name; ///< of a file or dataset, as given
    std::optional<double> height;
};

/// "FILE=HEIGHT" where there is no file of that very name.
GivenImage splitHeight(const QString &given)
{
    const qsizetype sign = given.lastIndexOf(QLatin1Char('='));
    bool isNumber = false;
    const double height = given.mid(sign + 1).toDouble(&isNumber);
    if (sign <= 0 || !isNumber || QFileInfo::exists(given))
        return {given, {}};
    return {given.left(sign), height};
}

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

Images entriesOf(const GivenImage &given)
{
    const DatasetName name = parsedName(given.name);
    const QString path = QFileInfo(name.file).absoluteFilePath();
    if (name.file.isEmpty())
        return told(dico_label("MESS_SNAP_NO_FILE", "no such file"), given.name);
    if (const auto image = geodata::readRasterSummary(path); !image)
        return told(
            dico_label("MESS_ERR_OPEN_RASTERDS", "This file can't be open as a raster dataset"),
            name.file);
    if (given.height)
        return QList<FileEntry>{FileEntry(absoluteDatasetName(given.name), *given.height,
                                          FileEntry::Metres, {}, true, {})};
    QList<FileEntry> entries;
    const QFileInfo file(path);
    const auto beside =
        buildings::findTextures(DataStructure::SameFolder, file.absolutePath(), file.suffix(), {});
    for (const FileEntry &entry : *beside) {
        const bool isIt = name.before.isEmpty()
                              ? entry.fileName() == file.fileName()
                              : entry.file.filePath() == absoluteDatasetName(given.name);
        if (isIt)
            entries << entry;
    }
    const bool isWithout = std::any_of(entries.cbegin(), entries.cend(),
                                       [](const FileEntry &entry) { return entry.height == 0; });
    if (isWithout || entries.isEmpty())
        return told(dico_label("MESS_CLI_TEXTURE_HEIGHT",
                               "for which height is this image? --texture FILE=HEIGHT tells"),
                    given.name);
    return entries;
}

Images givenImages(const QStringList &files)
{
    QList<FileEntry> all;
    for (const QString &file : files) {
        Images entries = entriesOf(splitHeight(file));
        if (!entries)
            return entries;
        all += entries.value();
    }
    return all;
}

/// Those that the wizard's list shows with this filter.
QList<FileEntry> filtered(QList<FileEntry> images, const QString &filter)
{
    for (FileEntry &image : images)
        image.used = false;
    buildings::FileListModel list;
    list.setEntries(std::move(images));
    list.setFilter(filter);
    QModelIndexList rows;
    for (int row = 0; row < list.rowCount(); ++row)
        rows << list.index(row, buildings::FileListModel::UseColumn);
    list.setUsed(rows, true);
    QList<FileEntry> shown;
    std::copy_if(list.entries().begin(), list.entries().end(), std::back_inserter(shown),
                 [](const FileEntry &image) { return image.used; });
    return shown;
}

Images foundImages(const TextureChoice &choice, bool quiet)
{
    const QFileInfo file(choice.templateFile);
    if (!file.isFile())
        return told(dico_label("MESS_SNAP_NO_FILE", "no such file"), choice.templateFile);
    ProgressLine line(dico_label("MESS_LOOKING_FOR_IMAGES", "Looking for images..."), !quiet);
    const auto found = buildings::findTextures(choice.structure, file.absolutePath(), file.suffix(),
                                               [&line](double share) {
                                                   line.show(share);
                                                   return true;
                                               });
    const QList<FileEntry> images = filtered(*found, choice.filter);
    if (images.isEmpty())
        return told(dico_label("MESS_CLI_NO_TEXTURES", "no image is found by it"),
                    choice.templateFile);
    return images;
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

Result<QList<FileEntry>> readTextures(const TextureChoice &choice, bool quiet)
{
    return choice.files.isEmpty() ? foundImages(choice, quiet) : givenImages(choice.files);
}

} // namespace vlt::batch
