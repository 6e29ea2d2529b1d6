#include "geodata/LayerWalk.h"

#include "platform/TextDecoding.h"

#include <QElapsedTimer>

namespace vlt::geodata {

namespace {

constexpr qint64 FeaturesPerClockReading = 16; ///< per reading of the clock; wide rows are slow
constexpr qint64 MillisecondsPerReport = 20;

/// Removes the layer's name, which a driver puts before the reason for an early end of the rows.
QString withoutName(const QString &reason, OGRLayer &layer)
{
    const QString name = platform::decodeText(layer.GetDescription()) + QStringLiteral(": ");
    return reason.startsWith(name) ? reason.mid(name.size()) : reason;
}

} // namespace

Stoppable<qint64> walkFeatures(OGRLayer &layer, const Progress &progress,
                               const ErrorCollector &errors,
                               const std::function<void(const OGRFeature &)> &visit)
{
    if (progress && !progress(0))
        return std::nullopt;

    const qint64 expected = layer.GetFeatureCount(TRUE);
    qint64 visited = 0;
    QElapsedTimer sinceReport;
    sinceReport.start();
    for (const OGRFeatureUniquePtr &feature : layer) {
        visit(*feature);
        if (++visited % FeaturesPerClockReading != 0 || !progress ||
            !sinceReport.hasExpired(MillisecondsPerReport))
            continue;
        if (!progress(static_cast<double>(visited) / static_cast<double>(expected)))
            return std::nullopt;
        sinceReport.start();
    }
    if (visited < expected && !errors.failure({}).isEmpty())
        return Error::fromLibrary(withoutName(errors.failure({}), layer));
    return visited;
}

} // namespace vlt::geodata
