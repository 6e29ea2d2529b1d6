#include "buildings/RasterRanges.h"

#include "coverage/RasterStamp.h"
#include "geodata/ErrorCollector.h"

#include <QFile>

#include <algorithm>
#include <mutex>
#include <vector>

namespace vlt::buildings {

namespace {

using contract::KnownRasterRange;
using coverage::CoverageRaster;

/// The ranges that this process has read, with the state of the files at that time.
class RangeTable
{
public:
    std::optional<KnownRasterRange> find(const RasterColoring &coloring)
    {
        const std::scoped_lock lock(m_mutex);
        const auto found = entryOf(coloring);
        return found == m_entries.end() ? std::nullopt : std::optional(found->range);
    }

    void insert(const RasterColoring &coloring, const KnownRasterRange &range)
    {
        const std::scoped_lock lock(m_mutex);
        if (const auto found = entryOf(coloring); found != m_entries.end())
            found->range = range;
        else
            m_entries.push_back({coloring.rasterFile, coloring.noData, coloring.band, range});
    }

private:
    struct Entry
    {
        QString raster;
        QString noData;
        int band = 1;
        KnownRasterRange range;
    };

    std::vector<Entry>::iterator entryOf(const RasterColoring &coloring)
    {
        return std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry &entry) {
            return entry.raster == coloring.rasterFile && entry.noData == coloring.noData &&
                   entry.band == coloring.band;
        });
    }

    std::mutex m_mutex;
    std::vector<Entry> m_entries;
};

RangeTable &rangeTable()
{
    static RangeTable table;
    return table;
}

RasterRange withKnown(const CoverageRaster &raster, const coverage::ValueRange &values,
                      const std::optional<KnownRasterRange> &known)
{
    return {values, raster.pixelCount() >= LargeRasterPixels ? known : std::nullopt};
}

} // namespace

Result<std::shared_ptr<CoverageRaster>> openRaster(const RasterColoring &coloring)
{
    const geodata::ErrorCollector errors; // errors are returned as reasons, not printed
    auto opened = CoverageRaster::open(QFile::encodeName(coloring.rasterFile).toStdString(),
                                       coloring.noData.toStdString(), coloring.band);
    if (!opened)
        return Error{QStringLiteral("MESS_ERR_OPEN_RASTERDS"),
                     QStringLiteral("This file can't be open as a raster dataset"),
                     coloring.rasterFile, QString::fromLocal8Bit(opened.reason.c_str())};
    return std::shared_ptr(std::move(opened.file));
}

Stoppable<RasterRange> readRange(const RasterColoring &coloring, const Progress &progress)
{
    const auto opened = openRaster(coloring);
    if (!opened)
        return opened.error();
    CoverageRaster &raster = *opened.value();
    if (const auto known = rangeTable().find(coloring); known && isUpToDate(*known, raster))
        return Result(withKnown(raster, {known->minimum, known->maximum}, known));

    const geodata::ErrorCollector errors;
    const auto before = coverage::stamped(raster, {});
    bool isStopped = false;
    const std::optional<coverage::ValueRange> range = raster.range([&](double share) {
        isStopped = progress && !progress(share);
        return !isStopped;
    });
    if (isStopped)
        return std::nullopt;
    if (!range)
        return Result(RasterRange());
    std::optional<KnownRasterRange> known = before;
    if (known) {
        known->minimum = range->minimum;
        known->maximum = range->maximum;
        rangeTable().insert(coloring, *known);
    }
    return Result(withKnown(raster, *range, known));
}

} // namespace vlt::buildings
