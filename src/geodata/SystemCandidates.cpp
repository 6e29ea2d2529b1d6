#include "geodata/SystemCandidates.h"

#include "contract/TableMetadata.h"
#include "geodata/ErrorCollector.h"
#include "geodata/SrsDefinition.h"
#include "geodata/SrsFacts.h"
#include "geodata/TableDataset.h"

#include <ogr_geometry.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

namespace vlt::geodata {

namespace {

constexpr std::size_t PositionsRead = 200;
constexpr double MarginDeg = 0.5; ///< networks do not end at the border of an area

/// The first positions of a table in its own system.
struct Sample
{
    std::vector<double> x;
    std::vector<double> y;
    QStringList named; ///< EPSG numbers
    QStringList known;
};

void addPoint(Sample &sample, const OGRPoint &point)
{
    sample.x.push_back(point.getX());
    sample.y.push_back(point.getY());
}

void add(Sample &sample, const OGRGeometry &geometry)
{
    if (geometry.IsEmpty())
        return;
    OGRPoint point;
    if (wkbFlatten(geometry.getGeometryType()) == wkbPoint) {
        addPoint(sample, *geometry.toPoint());
    } else if (wkbFlatten(geometry.getGeometryType()) == wkbLineString) {
        geometry.toLineString()->StartPoint(&point);
        addPoint(sample, point);
    }
}

Sample readSample(const QString &connection)
{
    const ErrorCollector errors;
    const auto dataset = openTable(connection, errors);
    OGRLayer *layer = dataset ? dataset.value()->GetLayer(0) : nullptr;
    Sample sample;
    if (!layer)
        return sample;
    const auto codes = [layer](const char *item) {
        const char *text = layer->GetMetadataItem(item, contract::metadata::SystemsDomain);
        return QString::fromLatin1(text ? text : "").split(QLatin1Char(' '), Qt::SkipEmptyParts);
    };
    sample.named = codes(contract::metadata::NamedSystems);
    sample.known = codes(contract::metadata::KnownSystems);
    for (std::size_t i = 0; i < PositionsRead; ++i) {
        const OGRFeatureUniquePtr feature(layer->GetNextFeature());
        if (!feature)
            break;
        if (const OGRGeometry *geometry = feature->GetGeometryRef())
            add(sample, *geometry);
    }
    return sample;
}

double medianOf(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// A system as candidate; nothing if the positions cannot lie there.
std::optional<SystemCandidate> candidateOf(const QString &code, const Sample &sample)
{
    constexpr double NearlyAll = 0.9; // a table may have mistakes in some rows
    OGRSpatialReference system;
    if (system.SetFromUserInput(listedCode(code).toUtf8().constData(),
                                OGRSpatialReference::SET_FROM_USER_INPUT_LIMITATIONS_get()) !=
        OGRERR_NONE)
        return std::nullopt;
    const SrsFacts facts = srsFacts(system);
    if (facts.use != SrsUse::Projected || !facts.area)
        return std::nullopt;
    system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    OGRSpatialReference degrees;
    degrees.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    degrees.importFromWkt(SRS_WKT_WGS84_LAT_LONG);
    const std::unique_ptr<OGRCoordinateTransformation> way(
        OGRCreateCoordinateTransformation(&system, &degrees));
    if (!way)
        return std::nullopt;
    std::vector<double> x = sample.x;
    std::vector<double> y = sample.y;
    std::vector<int> isDone(x.size());
    way->Transform(static_cast<int>(x.size()), x.data(), y.data(), nullptr, isDone.data());
    std::size_t inside = 0;
    for (std::size_t i = 0; i < x.size(); ++i)
        inside += isDone[i] && isInside(*facts.area, x[i], y[i], MarginDeg) ? 1 : 0;
    if (static_cast<double>(inside) < NearlyAll * static_cast<double>(x.size()))
        return std::nullopt;
    SystemCandidate candidate;
    candidate.code = listedCode(code);
    candidate.name = facts.name;
    const char *area = nullptr;
    SrsBounds bounds;
    system.GetAreaOfUse(&bounds.west, &bounds.south, &bounds.east, &bounds.north, &area);
    candidate.area = QString::fromUtf8(area ? area : "");
    candidate.longitude = medianOf(x);
    candidate.latitude = medianOf(y);
    return candidate;
}

/// The zone of UTM (WGS 84) in the middle of an area.
QString zoneAt(const SrsBounds &area)
{
    constexpr double ZoneWidth = 6;
    constexpr int North = 32600;
    constexpr int South = 32700;
    const int zone =
        std::clamp(static_cast<int>(((area.west + area.east) / 2 + 180) / ZoneWidth) + 1, 1, 60);
    return QString::number((area.south + area.north < 0 ? South : North) + zone);
}

} // namespace

QList<SystemCandidate> systemCandidates(const QString &connection,
                                        const QStringList &projectSystems,
                                        const std::optional<SrsBounds> &projectArea)
{
    const ErrorCollector quiet;
    const Sample sample = readSample(connection);
    QList<SystemCandidate> candidates;
    if (sample.x.empty())
        return candidates;
    QStringList codes = sample.named + projectSystems;
    if (projectArea)
        codes << zoneAt(*projectArea);
    codes += sample.known;
    QStringList seen;
    for (const QString &code : std::as_const(codes)) {
        if (seen.contains(listedCode(code)))
            continue;
        seen << listedCode(code);
        std::optional<SystemCandidate> found = candidateOf(code, sample);
        if (!found)
            continue;
        found->isNamed = sample.named.contains(code);
        found->isNear =
            projectArea && isInside(*projectArea, found->longitude, found->latitude, MarginDeg);
        candidates << *found;
    }
    const auto rank = [](const SystemCandidate &of) { return of.isNamed ? 0 : of.isNear ? 1 : 2; };
    std::stable_sort(
        candidates.begin(), candidates.end(),
        [&](const SystemCandidate &a, const SystemCandidate &b) { return rank(a) < rank(b); });
    return candidates;
}

} // namespace vlt::geodata
