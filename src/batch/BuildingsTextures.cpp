#include "batch/BuildingsTextures.h"

#include "batch/DatasetNames.h"
#include "batch/ProgressLine.h"
#include "buildings/TextureFilter.h"
#include "geodata/RasterSource.h"
#include "language/VltLanguageManager.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace vlt::batch {

namespace {

using buildings::DataStructure;
using buildings::FileEntry;
using Images = Result<QList<FileEntry>>;

/// An image with the height given for it.
struct GivenImage
{
    QString name; ///< name of a file or dataset, as given
    std::optional<double> height;
};

Error badHeight(const QString &image)
{
    return Error::asIs(dico_label("MESS_CLI_BAD_HEIGHT", "the height is not a number"), image);
}

/// Splits "FILE=HEIGHT", unless a file has this whole name.
GivenImage splitHeight(const QString &given)
{
    const qsizetype sign = given.lastIndexOf(QLatin1Char('='));
    bool isNumber = false;
    const double height = given.mid(sign + 1).toDouble(&isNumber);
    if (sign <= 0 || !isNumber || QFileInfo::exists(given))
        return {given, {}};
    return {given.left(sign), height};
}

Images entriesOf(const GivenImage &given)
{
    const QFileInfo file(fileOfDataset(given.name));
    const qsizetype sign = given.name.lastIndexOf(QLatin1Char('='));
    if (file.filePath().isEmpty() && sign > 0 && QFileInfo(given.name.left(sign)).isFile())
        return badHeight(given.name);
    if (file.filePath().isEmpty())
        return Error::asIs(dico_label("MESS_SNAP_NO_FILE", "no such file"), given.name);
    const QString path = file.absoluteFilePath();
    const QString name = absoluteDatasetName(given.name);
    const bool isPart = name != path;
    if (const auto image = geodata::readRasterSummary(path, isPart ? name : QString()); !image)
        return image.error().withPath(given.name);
    if (given.height && !std::isfinite(*given.height))
        return badHeight(given.name);
    if (given.height)
        return QList<FileEntry>{FileEntry(name, *given.height, FileEntry::Metres, {}, true, {})};
    QList<FileEntry> entries;
    const auto beside =
        buildings::findTextures(DataStructure::SameFolder, file.absolutePath(), file.suffix(), {});
    for (const FileEntry &entry : *beside) {
        const bool isIt =
            isPart ? entry.file.filePath() == name : entry.fileName() == file.fileName();
        if (isIt)
            entries << entry;
    }
    const bool isWithout = std::any_of(entries.cbegin(), entries.cend(),
                                       [](const FileEntry &entry) { return entry.height == 0; });
    if (isWithout || entries.isEmpty())
        return Error::asIs(
            dico_label("MESS_CLI_TEXTURE_HEIGHT",
                       "the height of this image is not known: give --texture FILE=HEIGHT"),
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

Images foundImages(const TextureChoice &choice, bool quiet)
{
    const QFileInfo file(choice.templateFile);
    if (!file.isFile())
        return Error::asIs(dico_label("MESS_SNAP_NO_FILE", "no such file"), choice.templateFile);
    ProgressLine line(dico_label("MESS_LOOKING_FOR_IMAGES", "Looking for images..."), !quiet);
    const auto found = buildings::findTextures(choice.structure, file.absolutePath(), file.suffix(),
                                               line.progress());
    QList<FileEntry> images;
    for (const int place : buildings::matchingTextures(*found, choice.filter))
        images << found->at(place);
    if (images.isEmpty())
        return Error::asIs(dico_label("MESS_CLI_NO_TEXTURES", "no image of its set was found"),
                           choice.templateFile);
    return images;
}

} // namespace

Result<QList<FileEntry>> readTextures(const TextureChoice &choice, bool quiet)
{
    return choice.files.isEmpty() ? foundImages(choice, quiet) : givenImages(choice.files);
}

} // namespace vlt::batch
