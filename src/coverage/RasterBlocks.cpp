#include "coverage/RasterBlocks.h"

#include "coverage/RasterRange.h"
#include "localfiles/NoNetwork.h"

#include <cpl_error.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vlt::coverage {

namespace {

constexpr int BlockSide = 256;
constexpr std::size_t MaxBlocks = 256; ///< 128 MiB

std::optional<double> declaredNoData(GDALRasterBand &band)
{
    int isDeclared = FALSE;
    double value = 0;
    if (band.GetRasterDataType() == GDT_Int64)
        value = static_cast<double>(band.GetNoDataValueAsInt64(&isDeclared));
    else if (band.GetRasterDataType() == GDT_UInt64)
        value = static_cast<double>(band.GetNoDataValueAsUInt64(&isDeclared));
    else
        value = band.GetNoDataValue(&isDeclared);
    return isDeclared ? std::optional(value) : std::nullopt;
}

/// The value after rounding to the band's data type.
double stored(const GDALRasterBand &band, double value)
{
    const bool isSingle = const_cast<GDALRasterBand &>(band).GetRasterDataType() == GDT_Float32;
    return isSingle && std::abs(value) <= std::numeric_limits<float>::max()
               ? static_cast<double>(static_cast<float>(value))
               : value;
}

} // namespace

RasterBlocks::RasterBlocks(GDALRasterBand &band, std::optional<double> noData) : m_band(band)
{
    for (const std::optional<double> &value : {declaredNoData(band), noData}) {
        if (value)
            m_noData.push_back(stored(band, *value));
    }
    m_scale = band.GetScale();
    m_offset = band.GetOffset();
}

void RasterBlocks::applyMask(int left, int top, int width, int height, std::vector<double> &values)
{
    if ((m_band.GetMaskFlags() & GMF_PER_DATASET) == 0)
        return;
    std::vector<std::uint8_t> mask(values.size());
    if (m_band.GetMaskBand()->RasterIO(GF_Read, left, top, width, height, mask.data(), width,
                                       height, GDT_Byte, 0, 0, nullptr) != CE_None)
        return;
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = mask[i] == 0 ? std::numeric_limits<double>::quiet_NaN() : values[i];
}

void RasterBlocks::readWindow(int left, int top, int width, int height, std::vector<double> &values)
{
    constexpr double None = std::numeric_limits<double>::quiet_NaN();
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler); // damaged parts have no values
    const localfiles::NoNetwork offline;
    values.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    if (m_band.RasterIO(GF_Read, left, top, width, height, values.data(), width, height,
                        GDT_Float64, 0, 0, nullptr) != CE_None)
        std::fill(values.begin(), values.end(), None);
    applyMask(left, top, width, height, values);
    for (double &value : values) {
        const bool isNone = std::find(m_noData.begin(), m_noData.end(), value) != m_noData.end();
        const double scaled = value * m_scale + m_offset;
        value = isNone || !std::isfinite(scaled) ? None : scaled;
    }
}

const RasterBlocks::Block &RasterBlocks::block(int column, int row)
{
    const std::int64_t number =
        static_cast<std::int64_t>(row / BlockSide) << 32 | column / BlockSide;
    const auto found = m_blocks.find(number);
    if (found != m_blocks.end()) {
        m_recent.splice(m_recent.begin(), m_recent, found->second.place);
        return found->second;
    }
    if (m_blocks.size() >= MaxBlocks) {
        m_blocks.erase(m_recent.back());
        m_recent.pop_back();
    }
    const int left = column / BlockSide * BlockSide;
    const int top = row / BlockSide * BlockSide;
    Block made;
    made.width = std::min(BlockSide, columns() - left);
    readWindow(left, top, made.width, std::min(BlockSide, rows() - top), made.values);
    m_recent.push_front(number);
    made.place = m_recent.begin();
    return m_blocks.emplace(number, std::move(made)).first->second;
}

void RasterBlocks::read(int row, int begin, int end,
                        const std::function<void(std::span<const double>)> &use)
{
    for (int column = begin; column < end;) {
        const Block &from = block(column, row);
        const int inBlock = column % BlockSide;
        const int count = std::min(end - column, from.width - inBlock);
        const auto at =
            static_cast<std::size_t>(row % BlockSide) * static_cast<std::size_t>(from.width) +
            static_cast<std::size_t>(inBlock);
        use(std::span(from.values).subspan(at, static_cast<std::size_t>(count)));
        column += count;
    }
}

bool RasterBlocks::forEachPiece(const Progress &progress,
                                const std::function<void(std::span<const double>)> &use)
{
    std::vector<double> values;
    return forEachWindow(columns(), rows(), progress, [&](const RasterWindow &part) {
        readWindow(part.left, part.top, part.width, part.height, values);
        use(values);
    });
}

std::optional<ValueRange> RasterBlocks::range(const Progress &progress)
{
    if (hasStoredRange(m_band)) {
        auto range = storedRange(m_band, m_noData, progress);
        if (!range)
            return std::nullopt;
        const auto [low, high] =
            std::minmax({range->minimum * m_scale + m_offset, range->maximum * m_scale + m_offset});
        if (std::isfinite(low) && std::isfinite(high))
            return ValueRange{low, high};
    }
    std::optional<ValueRange> range;
    const auto widen = [&range](std::span<const double> values) {
        for (const double value : values) {
            if (std::isnan(value))
                continue;
            if (!range)
                range = ValueRange{value, value};
            range->minimum = std::min(range->minimum, value);
            range->maximum = std::max(range->maximum, value);
        }
    };
    return forEachPiece(progress, widen) ? range : std::nullopt;
}

} // namespace vlt::coverage
