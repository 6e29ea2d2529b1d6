#include "buildings/RasterRanges.h"

#include "buildings/CountedBuildings.h"
#include "buildings/FieldColors.h"
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
    std::optional<KnownRasterRange> find(const RasterColoring &coloring, const QString &what)
    {
        const std::scoped_lock lock(m_mutex);
        const auto found = entryOf(coloring, what);
        return found == m_entries.end() ? std::nullopt : std::optional(found->range);
    }

    void insert(const RasterColoring &coloring, const QString &what, const KnownRasterRange &range)
    {
        const std::scoped_lock lock(m_mutex);
        if (const auto found = entryOf(coloring, what); found != m_entries.end())
            found->range = range;
        else
            m_entries.push_back({coloring.rasterFile, coloring.noData, what, coloring.band, range});
    }

private:
    struct Entry
    {
        QString raster;
        QString noData;
        QString what; ///< whole range or percentiles
        int band = 1;
        KnownRasterRange range;
    };

    std::vector<Entry>::iterator entryOf(const RasterColoring &coloring, const QString &what)
    {
        return std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry &entry) {
            return entry.raster == coloring.rasterFile && entry.noData == coloring.noData &&
                   entry.band == coloring.band && entry.what == what;
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

/// The whole range of the raster, or its percentiles.
Stoppable<RasterRange> rangeOfRaster(const RasterColoring &coloring, const Progress &progress)
{
    const auto opened = openRaster(coloring);
    if (!opened)
        return opened.error();
    CoverageRaster &raster = *opened.value();
    const Stretch &stretch = coloring.stretch;
    const bool isWhole = stretch.kind != Stretch::Percentile;
    const QString what = isWhole ? QString() : stretchTexts(stretch).constFirst();
    if (const auto known = rangeTable().find(coloring, what); known && isUpToDate(*known, raster))
        return Result(withKnown(raster, {known->minimum, known->maximum}, known));

    const geodata::ErrorCollector errors;
    auto known = coverage::stamped(raster, {}); // before the read, in case the raster is written
    bool isStopped = false;
    const Progress report = [&](double share) {
        isStopped = progress && !progress(share);
        return !isStopped;
    };
    const std::optional<coverage::ValueRange> range =
        isWhole ? raster.range(report) : raster.percentiles(stretch.low, stretch.high, report);
    if (isStopped)
        return std::nullopt;
    if (!range)
        return Result(RasterRange());
    if (known) {
        known->minimum = range->minimum;
        known->maximum = range->maximum;
        rangeTable().insert(coloring, what, *known);
    }
    return Result(withKnown(raster, *range, known));
}

Stoppable<RasterRange> sharedRange(const RasterColoring &coloring, const Progress &progress)
{
    RasterColoring one = coloring;
    one.stretch = {};
    RasterRange shared;
    const QStringList rasters = coloring.stretch.others + QStringList{coloring.rasterFile};
    double done = 0;
    for (const QString &raster : rasters) {
        one.rasterFile = raster;
        auto range = rangeOfRaster(one, [&](double share) {
            return !progress || progress((done + share) / static_cast<double>(rasters.size()));
        });
        if (!range || !*range)
            return range;
        ++done;
        const auto &values = range->value().values;
        if (!values)
            continue;
        if (!shared.values)
            shared.values = values;
        shared.values->minimum = std::min(shared.values->minimum, values->minimum);
        shared.values->maximum = std::max(shared.values->maximum, values->maximum);
    }
    return Result(shared);
}

Stoppable<RasterRange> rangeOfBuildings(const contract::BuildingDocument &document,
                                        const Progress &progress)
{
    bool isStopped = false;
    const Result<CountedBuildings> counted = countBuildings(document, [&](double share) {
        isStopped = progress && !progress(share);
        return !isStopped;
    });
    if (isStopped)
        return std::nullopt;
    if (!counted)
        return counted.error();
    const std::vector<double> &values = counted.value().values;
    if (values.empty())
        return Result(RasterRange());
    const auto [low, high] = std::minmax_element(values.begin(), values.end());
    return Result(RasterRange{coverage::ValueRange{*low, *high}, {}});
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

Stoppable<RasterRange> readRange(const RasterColoring &coloring,
                                 const contract::BuildingDocument &document,
                                 const Progress &progress)
{
    if (!coloring.field.isEmpty())
        return rangeOfField(coloring, document, progress);
    const Stretch &stretch = coloring.stretch;
    switch (stretch.kind) {
    case Stretch::Raster:
    case Stretch::Percentile:
        break;
    case Stretch::Buildings:
        return rangeOfBuildings(document, progress);
    case Stretch::Range:
        return Result(RasterRange{coverage::ValueRange{stretch.low, stretch.high}, {}});
    case Stretch::Shared:
        return sharedRange(coloring, progress);
    }
    return rangeOfRaster(coloring, progress);
}

} // namespace vlt::buildings
