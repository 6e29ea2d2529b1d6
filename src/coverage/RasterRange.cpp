#include "coverage/RasterRange.h"

#include "localfiles/NoNetwork.h"

#include <cpl_error.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

namespace vlt::coverage {

namespace {

/// Finds the range of values of a data type. Every sixteenth value goes to the same lane, and there
/// are no branches, so that the compiler makes the loops work on several values at once.
template<typename Value>
class StoredRange
{
public:
    explicit StoredRange(std::span<const double> noData)
    {
        // Of a number that the data type does not have, no pixel is excluded.
        std::size_t used = 0;
        for (const double value : noData) {
            if (used < m_noData.size() && value >= static_cast<double>(Limits::lowest()) &&
                value <= static_cast<double>(Limits::max()) &&
                static_cast<double>(static_cast<Value>(value)) == value)
                m_noData[used++] = static_cast<Value>(value);
        }
        m_count = used;
    }

    void add(const std::vector<Value> &values)
    {
        switch (m_count) {
        case 0:
            return widen(values, [](Value) { return true; });
        case 1:
            return widen(values, [none = m_noData[0]](Value value) { return value != none; });
        default:
            return widen(values, [none = m_noData](Value value) {
                return (value != none[0]) & (value != none[1]);
            });
        }
    }

    std::optional<ValueRange> range() const
    {
        const Value minimum = *std::min_element(m_minima.begin(), m_minima.end());
        const Value maximum = *std::max_element(m_maxima.begin(), m_maxima.end());
        if (minimum > maximum)
            return std::nullopt;
        return ValueRange{static_cast<double>(minimum), static_cast<double>(maximum)};
    }

private:
    using Limits = std::numeric_limits<Value>;
    static constexpr std::size_t LaneCount = 16;
    using Lanes = std::array<Value, LaneCount>;

    static Lanes lanesOf(Value value)
    {
        Lanes lanes;
        lanes.fill(value);
        return lanes;
    }

    static bool isFinite(Value value)
    {
        if constexpr (std::is_floating_point_v<Value>)
            return std::abs(value) <= Limits::max(); // false for NaN
        else
            return true;
    }

    template<typename Test>
    void widen(const std::vector<Value> &values, const Test &isValue)
    {
        Lanes minima = m_minima;
        Lanes maxima = m_maxima;
        const auto take = [&](Value value, std::size_t lane) {
            const bool counts = isValue(value) & isFinite(value);
            const Value low = counts ? value : Limits::max();
            const Value high = counts ? value : Limits::lowest();
            minima[lane] = low < minima[lane] ? low : minima[lane];
            maxima[lane] = high > maxima[lane] ? high : maxima[lane];
        };
        const std::size_t whole = values.size() / LaneCount * LaneCount;
        for (std::size_t i = 0; i < whole; i += LaneCount) {
            for (std::size_t lane = 0; lane < LaneCount; ++lane)
                take(values[i + lane], lane);
        }
        for (std::size_t i = whole; i < values.size(); ++i)
            take(values[i], 0);
        m_minima = minima;
        m_maxima = maxima;
    }

    std::array<Value, 2> m_noData{};
    std::size_t m_count = 0;
    Lanes m_minima = lanesOf(Limits::max());
    Lanes m_maxima = lanesOf(Limits::lowest());
};

template<typename Value>
std::optional<ValueRange> rangeOf(GDALRasterBand &band, std::span<const double> noData,
                                  const Progress &progress)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler); // damaged parts have no values
    const localfiles::NoNetwork offline;
    StoredRange<Value> range(noData);
    std::vector<Value> values;
    const auto read = [&](const RasterWindow &part) {
        values.resize(static_cast<std::size_t>(part.width) * static_cast<std::size_t>(part.height));
        if (band.RasterIO(GF_Read, part.left, part.top, part.width, part.height, values.data(),
                          part.width, part.height, band.GetRasterDataType(), 0, 0,
                          nullptr) == CE_None)
            range.add(values);
    };
    return forEachWindow(band.GetXSize(), band.GetYSize(), progress, read) ? range.range()
                                                                           : std::nullopt;
}

using RangeReader = std::optional<ValueRange> (*)(GDALRasterBand &, std::span<const double>,
                                                  const Progress &);

/// Null for data types that are read as double.
RangeReader readerOf(GDALDataType type)
{
    switch (type) {
    case GDT_Byte:
        return rangeOf<std::uint8_t>;
    case GDT_Int16:
        return rangeOf<std::int16_t>;
    case GDT_UInt16:
        return rangeOf<std::uint16_t>;
    case GDT_Int32:
        return rangeOf<std::int32_t>;
    case GDT_UInt32:
        return rangeOf<std::uint32_t>;
    case GDT_Float32:
        return rangeOf<float>;
    case GDT_Float64:
        return rangeOf<double>;
    default:
        return nullptr;
    }
}

} // namespace

bool hasStoredRange(GDALRasterBand &band)
{
    return readerOf(band.GetRasterDataType()) && (band.GetMaskFlags() & GMF_PER_DATASET) == 0;
}

std::optional<ValueRange> storedRange(GDALRasterBand &band, std::span<const double> noData,
                                      const Progress &progress)
{
    return readerOf(band.GetRasterDataType())(band, noData, progress);
}

} // namespace vlt::coverage
