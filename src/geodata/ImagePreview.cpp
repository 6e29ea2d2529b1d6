#include "geodata/ImagePreview.h"

#include "contract/SceneTexts.h"
#include "coverage/LocalRaster.h"
#include "geodata/ErrorCollector.h"
#include "localfiles/NoNetwork.h"
#include "localfiles/RasterPicture.h"
#include "platform/TextDecoding.h"

#include <QFile>

#include <gdal_priv.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace vlt::geodata {

namespace {

constexpr double MaxPixels = 4e8; ///< beyond, the small picture would take seconds

Error refusal(QString reason, const QString &name)
{
    reason.remove(name + QStringLiteral(": "));
    return {QStringLiteral("MESS_IMAGE_UNREADABLE"), QStringLiteral("This image cannot be read"),
            name, reason};
}

Error refusal(const std::string &reason, const QString &name)
{
    return refusal(QString::fromStdString(reason), name);
}

/// The whole image, as small as it has to be and never enlarged.
localfiles::Reduction reduced(GDALDataset &file, int sidePx)
{
    const int width = file.GetRasterXSize();
    const int height = file.GetRasterYSize();
    const double scale = std::min(1.0, double(sidePx) / std::max(width, height));
    const auto side = [scale](int pixels) {
        return std::max(1, static_cast<int>(std::lround(pixels * scale)));
    };
    return {0, 0, width, height, side(width), side(height)};
}

} // namespace

Result<ImagePreview> readImagePreview(const QString &name, int sidePx)
{
    const ErrorCollector errors;
    const localfiles::NoNetwork offline;
    const auto [file, reason] = coverage::openLocalRaster(QFile::encodeName(name).toStdString(),
                                                          coverage::RasterUse::Picture);
    if (!file)
        return refusal(errors.failure(QString::fromStdString(reason)), name);
    if (file->GetRasterCount() < 1)
        return refusal(contract::formatted("MESS_SCENE_NO_BANDS"), name);
    if (GDALDataTypeIsComplex(file->GetRasterBand(1)->GetRasterDataType()))
        return refusal(contract::formatted("MESS_SCENE_COMPLEX"), name);
    const localfiles::Reduction whole = reduced(*file, sidePx);
    ImagePreview preview{rasterSummary(*file), whole.columns, whole.rows, {}};
    if (localfiles::pixelsToRead(*file, whole) > MaxPixels)
        return preview;
    const auto rgba = localfiles::RasterPicture(*file).read(whole);
    if (rgba.empty())
        return refusal(platform::decodeText(QByteArray(CPLGetLastErrorMsg())), name);
    preview.rgba = QByteArray(reinterpret_cast<const char *>(rgba.data()),
                              static_cast<qsizetype>(rgba.size()));
    return preview;
}

} // namespace vlt::geodata
