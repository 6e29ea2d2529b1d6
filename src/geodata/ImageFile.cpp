#include "geodata/ImageFile.h"

#include "coverage/LocalRaster.h"
#include "geodata/ErrorCollector.h"
#include "geodata/PlainTiff.h"
#include "localfiles/LocalFormats.h"
#include "localfiles/NoNetwork.h"

#include <QFile>

#include <cpl_conv.h>
#include <gdal_priv.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace vlt::geodata {

namespace {

/// Only these formats may be tried first: no other format accepts a file that starts with the same
/// bytes.
constexpr std::array FormatsOfOwnFiles = {"GTiff", "PNG", "JPEG", "BMP", "GIF", "WEBP", "HFA"};

QByteArray startOf(const QByteArray &name)
{
    return name.left(name.indexOf('.', 1));
}

/// Sets an option of the geodata library on this thread as long as it exists.
class ThreadOption
{
public:
    ThreadOption(const char *name, const char *value) : m_name(name)
    {
        if (const char *before = CPLGetThreadLocalConfigOption(name, nullptr))
            m_before = before;
        CPLSetThreadLocalConfigOption(name, value);
    }
    ~ThreadOption()
    {
        CPLSetThreadLocalConfigOption(m_name, m_before ? m_before->c_str() : nullptr);
    }
    ThreadOption(const ThreadOption &) = delete;
    ThreadOption &operator=(const ThreadOption &) = delete;

private:
    const char *m_name;
    std::optional<std::string> m_before;
};

GDALDatasetUniquePtr open(const char *path, const char *const *formats,
                          const char *const *siblings = nullptr)
{
    return GDALDatasetUniquePtr(
        GDALDataset::Open(path, GDAL_OF_RASTER | GDAL_OF_READONLY, formats, nullptr, siblings));
}

GDALDatasetUniquePtr openAs(const QByteArray &format, const char *path,
                            const char *const *siblings = nullptr)
{
    const std::array<const char *, 2> formats = {format.constData(), nullptr};
    return open(path, formats.data(), siblings);
}

std::optional<double> statedHeight(GDALDataset &dataset)
{
    const char *text = dataset.GetMetadataItem("HEIGHT");
    if (!text)
        return std::nullopt;
    bool isNumber = false;
    const double height = QByteArray(text).toDouble(&isNumber);
    return isNumber && std::isfinite(height) ? std::optional(height) : std::nullopt;
}

ImageFile described(GDALDataset &dataset)
{
    ImageFile image;
    image.height = statedHeight(dataset);
    for (const Subdataset &subdataset : subdatasets(dataset)) {
        const GDALDatasetUniquePtr part =
            coverage::openListedPart(QFile::encodeName(subdataset.name).toStdString());
        image.parts += ImageFile::Part{subdataset, part ? statedHeight(*part) : std::nullopt};
    }
    return image;
}

} // namespace

FolderNames::FolderNames(const QList<QByteArray> &names)
{
    m_starts.reserve(names.size());
    for (const QByteArray &name : names)
        ++m_starts[startOf(name)];
}

bool FolderNames::isAlone(const QByteArray &name) const
{
    return m_starts.value(startOf(name)) <= 1;
}

ImageFileReader::ImageFileReader(const FolderNames &names) : m_names(names) {}

ImageFile ImageFileReader::read(const QString &path)
{
    const QByteArray file = QFile::encodeName(path);
    if (!localfiles::isLocalFile(file.toStdString()))
        return {};
    const QByteArray name = file.mid(file.lastIndexOf('/') + 1);
    const bool isAlone = m_names.isAlone(name);
    if (isAlone && m_lastFormat == "GTiff" && isPlainTiff(path))
        return {};
    const localfiles::NoNetwork offline;
    const ErrorCollector errors;
    // The folder is not listed, so side files are tested one by one; the georeference is not
    // needed.
    const ThreadOption unlisted("GDAL_DISABLE_READDIR_ON_OPEN", "TRUE");
    const ThreadOption unplaced("GDAL_GEOREF_SOURCES", "PAM");

    GDALDatasetUniquePtr dataset;
    if (!m_lastFormat.isEmpty()) {
        // With its own name as the only one of the folder, no side file is tested at all.
        const std::array<const char *, 2> itself = {name.constData(), nullptr};
        dataset = openAs(m_lastFormat, file.constData(), isAlone ? itself.data() : nullptr);
    }
    if (!dataset)
        dataset = open(file.constData(), localfiles::localRasterFormats());
    if (!dataset)
        return {};
    const QByteArray format = dataset->GetDriverName();
    const bool isOwn = std::find(FormatsOfOwnFiles.cbegin(), FormatsOfOwnFiles.cend(), format) !=
                       FormatsOfOwnFiles.cend();
    m_lastFormat = isOwn ? format : QByteArray();
    return described(*dataset);
}

} // namespace vlt::geodata
