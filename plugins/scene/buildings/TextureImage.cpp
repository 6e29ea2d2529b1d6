#include "plugins/scene/buildings/TextureImage.h"

#include "coverage/LocalRaster.h"
#include "localfiles/NoNetwork.h"
#include "plugins/scene/buildings/Dilatation.h"
#include "plugins/scene/reading/BadLayer.h"

#include <cpl_error.h>

#include <algorithm>
#include <cmath>

namespace vlt::scene {

namespace {

constexpr double Opaque = 255;
constexpr double MaxDilatation = 256;

/// Side of a texture in pixels, with its borders: a multiple of four, because compressed textures
/// consist of blocks of four by four pixels.
int sideFor(int pixels)
{
    constexpr int Rims = 2;
    constexpr int Block = 4;
    return (pixels + Rims + Block - 1) / Block * Block;
}

osg::ref_ptr<osg::Image> seeThrough(int width, int height)
{
    osg::ref_ptr<osg::Image> image = new osg::Image;
    image->allocateImage(width, height, 1, GL_RGBA, GL_UNSIGNED_BYTE);
    std::fill_n(image->data(), image->getTotalSizeInBytes(), std::uint8_t{0});
    return image;
}

/// The value rounded and limited to 0 .. 255; 0 for NaN.
std::uint8_t byteOf(double value)
{
    return static_cast<std::uint8_t>(std::floor(std::min(std::max(0.0, value), Opaque) + 0.5));
}

} // namespace

/// A part of the image, and the size at which it is read.
struct TextureImage::Window
{
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int readWidth = 0;
    int readHeight = 0;

    bool read(GDALRasterBand &band, Values &values) const
    {
        values.resize(static_cast<std::size_t>(readWidth) * static_cast<std::size_t>(readHeight));
        return band.RasterIO(GF_Read, left, top, width, height, values.data(), readWidth,
                             readHeight, GDT_Float32, 0, 0, nullptr) == CE_None;
    }
};

osg::Vec2 ImageCrop::coordinates(const osg::Vec2d &pixel) const
{
    const double u = 1 + (pixel.x() - corner.x()) * scale.x();
    const double v = 1 + (pixel.y() - corner.y()) * scale.y();
    if (!std::isfinite(u) || !std::isfinite(v))
        return {};
    return {static_cast<float>(u / image->s()), static_cast<float>(v / image->t())};
}

TextureImage::TextureImage(std::string name, const std::string &srs, GDALDatasetUniquePtr dataset)
    : m_name(std::move(name))
    , m_dataset(std::move(dataset))
    , m_transform(srs, m_dataset->GetSpatialRef())
{}

std::unique_ptr<TextureImage> TextureImage::open(const std::string &name, const std::string &srs,
                                                 bool isKeptOpen)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const localfiles::NoNetwork offline;
    auto [dataset, reason] = coverage::openLocalRaster(name, coverage::RasterUse::Picture);
    if (!dataset)
        throw BadLayer(LibraryWords{reason});
    std::unique_ptr<TextureImage> image(new TextureImage(name, srs, std::move(dataset)));
    image->prepare();
    if (!isKeptOpen)
        image->m_dataset.reset();
    return image;
}

void TextureImage::prepare()
{
    std::array<double, 6> toPosition{};
    if (m_dataset->GetRasterCount() < 1)
        throw BadLayer("MESS_SCENE_NO_BANDS");
    if (m_dataset->GetGeoTransform(toPosition.data()) != CE_None ||
        !GDALInvGeoTransform(toPosition.data(), m_toPixel.data()))
        throw BadLayer("MESS_SCENE_NOT_PLACED");
    if (!m_transform.isUsable())
        throw BadLayer("MESS_SCENE_NO_TRANSFORMATION_FROM");
    m_columns = m_dataset->GetRasterXSize();
    m_rows = m_dataset->GetRasterYSize();
    chooseBands();
    if (m_palette.empty())
        findLevels();
}

void TextureImage::chooseBands()
{
    const int count = m_dataset->GetRasterCount();
    m_bands = count >= 3 ? std::array{1, 2, 3} : std::array{1, 1, 1};
    for (int i = 1; i <= count; ++i) {
        const GDALColorInterp meaning = m_dataset->GetRasterBand(i)->GetColorInterpretation();
        if (meaning >= GCI_RedBand && meaning <= GCI_BlueBand && count >= 3)
            m_bands[static_cast<std::size_t>(meaning - GCI_RedBand)] = i;
        else if (meaning == GCI_AlphaBand && i > 1)
            m_opacityBand = i;
    }
    GDALColorTable *table = count <= 2 ? m_dataset->GetRasterBand(1)->GetColorTable() : nullptr;
    for (int i = 0; table && i < table->GetColorEntryCount(); ++i) {
        GDALColorEntry entry{};
        table->GetColorEntryAsRGB(i, &entry);
        m_palette.push_back(entry);
    }
}

void TextureImage::findLevels()
{
    std::array<double, 2> all{HUGE_VAL, -HUGE_VAL};
    for (const int i : m_bands) {
        GDALRasterBand *band = m_dataset->GetRasterBand(i);
        std::array<double, 2> levels{};
        if (band->GetRasterDataType() == GDT_Byte ||
            band->ComputeRasterMinMax(TRUE, levels.data()) != CE_None)
            continue;
        all = {std::min(all[0], levels[0]), std::max(all[1], levels[1])};
    }
    if (all[0] < all[1]) {
        m_black = all[0];
        m_white = all[1];
    }
}

void TextureImage::toPixels(std::vector<osg::Vec2d> &positions)
{
    const std::lock_guard lock(m_mutex);
    std::vector<contract::Place> places;
    places.reserve(positions.size());
    for (const osg::Vec2d &position : positions)
        places.push_back({position.x(), position.y()});
    m_transform.apply(places);
    std::transform(places.begin(), places.end(), positions.begin(), [this](const auto &place) {
        return osg::Vec2d(m_toPixel[0] + m_toPixel[1] * place.x + m_toPixel[2] * place.y,
                          m_toPixel[3] + m_toPixel[4] * place.x + m_toPixel[5] * place.y);
    });
}

std::optional<TextureImage::Window> TextureImage::windowOf(const std::vector<osg::Vec2d> &pixels,
                                                           double margin, int maxSide) const
{
    osg::Vec2d least(HUGE_VAL, HUGE_VAL);
    osg::Vec2d most(-HUGE_VAL, -HUGE_VAL);
    for (const osg::Vec2d &pixel : pixels) {
        if (!std::isfinite(pixel.x()) || !std::isfinite(pixel.y()))
            continue;
        least.set(std::min(least.x(), pixel.x()), std::min(least.y(), pixel.y()));
        most.set(std::max(most.x(), pixel.x()), std::max(most.y(), pixel.y()));
    }
    const auto within = [](double at, int size) {
        return static_cast<int>(std::clamp(at, 0.0, static_cast<double>(size)));
    };
    Window window;
    window.left = within(std::floor(least.x() - margin), m_columns);
    window.top = within(std::floor(least.y() - margin), m_rows);
    window.width = within(std::ceil(most.x() + margin), m_columns) - window.left;
    window.height = within(std::ceil(most.y() + margin), m_rows) - window.top;
    if (window.width <= 0 || window.height <= 0)
        return std::nullopt;
    constexpr int Rims = 2;
    window.readWidth = std::min(window.width, maxSide - Rims);
    window.readHeight = std::min(window.height, maxSide - Rims);
    return window;
}

/// The opacity of each pixel, 0 .. 255; empty if all pixels are opaque.
TextureImage::Values TextureImage::opacity(GDALDataset &dataset, const Window &window) const
{
    Values opacity;
    if (m_opacityBand > 0) {
        if (!window.read(*dataset.GetRasterBand(m_opacityBand), opacity))
            opacity.clear();
        return opacity;
    }
    // A pixel has no data only if all its components have none.
    for (const int i : m_bands) {
        GDALRasterBand &band = *dataset.GetRasterBand(i);
        Values mask;
        if ((band.GetMaskFlags() & GMF_ALL_VALID) != 0 || !window.read(*band.GetMaskBand(), mask))
            return {};
        opacity.resize(mask.size(), 0);
        for (std::size_t p = 0; p < mask.size(); ++p)
            opacity[p] = std::max(opacity[p], mask[p]);
    }
    return opacity;
}

void TextureImage::read(GDALDataset &dataset, const Window &window, osg::Image &image) const
{
    std::array<Values, 3> parts;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0 && m_bands[i] == m_bands[i - 1])
            parts[i] = parts[i - 1];
        else if (!window.read(*dataset.GetRasterBand(m_bands[i]), parts[i]))
            return;
    }
    const Values shown = opacity(dataset, window);
    const double scale = Opaque / (m_white - m_black);
    const auto imageWidth = static_cast<std::size_t>(image.s());
    for (std::size_t p = 0; p < parts.front().size(); ++p) {
        const std::size_t column = p % static_cast<std::size_t>(window.readWidth);
        const std::size_t row = p / static_cast<std::size_t>(window.readWidth);
        std::uint8_t *pixel = image.data() + 4 * ((row + 1) * imageWidth + column + 1);
        const float value = parts.front()[p];
        double alpha = std::isfinite(value) ? Opaque : 0;
        if (!m_palette.empty()) {
            const bool isEntry = value >= 0 && value < static_cast<float>(m_palette.size());
            const GDALColorEntry entry =
                isEntry ? m_palette[static_cast<std::size_t>(value)] : GDALColorEntry{};
            pixel[0] = byteOf(entry.c1);
            pixel[1] = byteOf(entry.c2);
            pixel[2] = byteOf(entry.c3);
            alpha = std::min(alpha, static_cast<double>(entry.c4));
        } else if (alpha > 0) {
            for (std::size_t i = 0; i < parts.size(); ++i)
                pixel[i] = byteOf((static_cast<double>(parts[i][p]) - m_black) * scale);
        }
        pixel[3] = byteOf(shown.empty() ? alpha : std::min(alpha, static_cast<double>(shown[p])));
    }
}

ImageCrop TextureImage::crop(const std::vector<osg::Vec2d> &pixels, double dilatation, int maxSide)
{
    constexpr double Margin = 2; // the neighbours that filters use
    const double grown = std::clamp(dilatation, 0.0, MaxDilatation);
    const std::optional<Window> window = windowOf(pixels, Margin + grown, maxSide);
    if (!window)
        return {seeThrough(sideFor(1), sideFor(1)), {}, {}};
    const osg::Vec2d scale(static_cast<double>(window->readWidth) / window->width,
                           static_cast<double>(window->readHeight) / window->height);
    ImageCrop crop{seeThrough(sideFor(window->readWidth), sideFor(window->readHeight)),
                   osg::Vec2d(window->left, window->top), scale};
    {
        const std::lock_guard lock(m_mutex);
        const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
        const localfiles::NoNetwork offline;
        const GDALDatasetUniquePtr anew =
            m_dataset ? nullptr
                      : coverage::openLocalRaster(m_name, coverage::RasterUse::Picture).file;
        if (GDALDataset *dataset = m_dataset ? m_dataset.get() : anew.get())
            read(*dataset, *window, *crop.image);
    }
    const double most = std::max(scale.x(), scale.y());
    dilate(*crop.image, static_cast<int>(std::lround(grown * most)));
    return crop;
}

} // namespace vlt::scene
