#include "localfiles/RasterPicture.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace vlt::localfiles {

namespace {

constexpr double Opaque = 255;

unsigned char toByte(double value)
{
    return static_cast<unsigned char>(std::lround(std::clamp(value, 0.0, 255.0)));
}

} // namespace

RasterPicture::RasterPicture(GDALDataset &file) : m_file(file)
{
    findBands();
    findRange();
}

void RasterPicture::findBands()
{
    const int number = m_file.GetRasterCount();
    const auto bandOf = [&](GDALColorInterp meaning) {
        int band = number;
        while (band > 0 && m_file.GetRasterBand(band)->GetColorInterpretation() != meaning)
            --band;
        return band;
    };
    m_opacityBand = bandOf(GCI_AlphaBand);
    m_bands = {bandOf(GCI_RedBand), bandOf(GCI_GreenBand), bandOf(GCI_BlueBand)};
    if (std::find(m_bands.begin(), m_bands.end(), 0) == m_bands.end())
        return;
    const int colors = number - (m_opacityBand > 0 ? 1 : 0);
    m_bands = colors >= 3 ? std::vector<int>{1, 2, 3} : std::vector<int>{1};
}

/// Values that are no bytes have the range of those that occur, without the extreme hundredths.
void RasterPicture::findRange()
{
    constexpr int Samples = 256; // in a row
    if (m_file.GetRasterBand(1)->GetRasterDataType() == GDT_Byte)
        return;
    const int columns = std::min(Samples, m_file.GetRasterXSize());
    const int rows = std::min(Samples, m_file.GetRasterYSize());
    std::vector<float> values;
    if (!readReduced(m_file, m_bands,
                     {0, 0, m_file.GetRasterXSize(), m_file.GetRasterYSize(), columns, rows},
                     GRIORA_NearestNeighbour, values))
        return;
    int hasNoData = 0;
    const double noData = m_file.GetRasterBand(1)->GetNoDataValue(&hasNoData);
    std::erase_if(values, [&](float value) {
        return !std::isfinite(value) || (hasNoData && double{value} == noData);
    });
    if (values.empty())
        return;
    std::sort(values.begin(), values.end());
    const std::size_t tail = values.size() / 100;
    m_black = double{values[tail]};
    m_white = std::max(double{values[values.size() - 1 - tail]}, m_black + 1e-6);
}

std::vector<unsigned char> RasterPicture::read(const Reduction &part) const
{
    const GDALColorTable *palette =
        m_bands.size() == 1 ? m_file.GetRasterBand(1)->GetColorTable() : nullptr;
    std::vector<float> values;
    if (!readReduced(m_file, m_bands, part, palette ? GRIORA_NearestNeighbour : GRIORA_Average,
                     values))
        return {};
    const std::vector<float> opaque = opacity(part);
    const std::size_t pixels = opaque.size();
    std::vector<unsigned char> rgba(4 * pixels);
    for (std::size_t i = 0; i < pixels; ++i) {
        unsigned char *pixel = rgba.data() + 4 * i;
        pixel[3] = toByte(double{opaque[i]});
        if (palette) {
            const GDALColorEntry *entry = palette->GetColorEntry(static_cast<int>(values[i]));
            const GDALColorEntry none{0, 0, 0, 0};
            const GDALColorEntry &color = entry ? *entry : none;
            pixel[0] = toByte(color.c1);
            pixel[1] = toByte(color.c2);
            pixel[2] = toByte(color.c3);
            pixel[3] = std::min(pixel[3], toByte(color.c4));
            continue;
        }
        for (std::size_t band = 0; band < 3; ++band) {
            const float value = values[std::min(band, m_bands.size() - 1) * pixels + i];
            if (!std::isfinite(value))
                pixel[3] = 0;
            else
                pixel[band] = toByte((double{value} - m_black) / (m_white - m_black) * 255);
        }
    }
    return rgba;
}

/// [rows][columns] 0 .. 255
std::vector<float> RasterPicture::opacity(const Reduction &part) const
{
    const auto pixels =
        static_cast<std::size_t>(part.columns) * static_cast<std::size_t>(part.rows);
    std::vector<float> found(pixels, Opaque);
    GDALRasterBand &first = *m_file.GetRasterBand(m_bands.front());
    if (m_opacityBand > 0) {
        if (!readReduced(m_file, {m_opacityBand}, part, GRIORA_Average, found))
            return std::vector<float>(pixels, 0.0F);
        const double most =
            m_file.GetRasterBand(m_opacityBand)->GetRasterDataType() == GDT_UInt16 ? 65535 : 255;
        for (float &value : found)
            value = static_cast<float>(double{value} * Opaque / most);
    } else if (first.GetMaskFlags() == GMF_PER_DATASET) {
        readReduced(m_file, {MaskBand}, part, GRIORA_Average, found);
    } else if (first.GetMaskFlags() == GMF_NODATA) {
        // a pixel is empty where all bands are
        std::vector<float> values;
        int hasNoData = 0;
        const double noData = first.GetNoDataValue(&hasNoData);
        if (!readReduced(m_file, m_bands, part, GRIORA_NearestNeighbour, values))
            return found;
        for (std::size_t i = 0; i < pixels; ++i) {
            bool isEmpty = true;
            for (std::size_t band = 0; band < m_bands.size(); ++band)
                isEmpty = isEmpty && double{values[band * pixels + i]} == noData;
            found[i] = isEmpty ? 0 : found[i];
        }
    }
    return found;
}

} // namespace vlt::localfiles
