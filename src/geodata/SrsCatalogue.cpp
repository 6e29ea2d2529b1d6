#include "geodata/SrsCatalogue.h"

#include "geodata/ErrorCollector.h"

#include <QHash>

#include <cpl_conv.h>
#include <ogr_spatialref.h>
#include <ogr_srs_api.h>

#include <algorithm>
#include <memory>
#include <tuple>

namespace vlt::geodata {

namespace {

struct ListRelease
{
    void operator()(OSRCRSInfo **list) const { OSRDestroyCRSInfoList(list); }
};

SrsKind kindOf(OSRCRSType type)
{
    switch (type) {
    case OSR_CRS_TYPE_GEOGRAPHIC_2D:
        return SrsKind::Geographic2D;
    case OSR_CRS_TYPE_GEOGRAPHIC_3D:
        return SrsKind::Geographic3D;
    case OSR_CRS_TYPE_PROJECTED:
        return SrsKind::Projected;
    case OSR_CRS_TYPE_COMPOUND:
        return SrsKind::Compound;
    default:
        return SrsKind::Other;
    }
}

/// Newer databases list every country of the world in the area, so a search for any country would
/// find WGS 84.
QString areaOf(const char *name)
{
    const QString area = QString::fromUtf8(name);
    return area.startsWith(QLatin1String("World: ")) ? QStringLiteral("World.") : area;
}

SrsRecord recordOf(const OSRCRSInfo &info)
{
    SrsRecord record;
    record.authority = QString::fromUtf8(info.pszAuthName);
    record.code = QString::fromUtf8(info.pszCode);
    record.name = QString::fromUtf8(info.pszName);
    record.kind = kindOf(info.eType);
    record.isDeprecated = info.bDeprecated != 0;
    record.area = areaOf(info.pszAreaName);
    record.projectionMethod = QString::fromUtf8(info.pszProjectionMethod);
    if (info.bBboxValid) {
        record.bounds = SrsBounds{info.dfWestLongitudeDeg, info.dfSouthLatitudeDeg,
                                  info.dfEastLongitudeDeg, info.dfNorthLatitudeDeg};
    }
    return record;
}

/// The database lists a system once for each of its areas.
void addArea(SrsRecord &record, const SrsRecord &again)
{
    if (!again.area.isEmpty() && again.area != record.area)
        record.area += QLatin1String("; ") + again.area;
    if (!record.bounds || !again.bounds)
        return;
    SrsBounds &all = *record.bounds;
    const SrsBounds &more = *again.bounds;
    if (all.west > all.east || more.west > more.east) {
        record.bounds.reset();
        return;
    }
    all = {std::min(all.west, more.west), std::min(all.south, more.south),
           std::max(all.east, more.east), std::max(all.north, more.north)};
}

/// EPSG is first. Numeric codes are sorted by value, before the other codes.
auto sortKey(const SrsRecord &record)
{
    bool isNumber = false;
    const int number = record.code.toInt(&isNumber);
    return std::tuple(record.authority != QLatin1String("EPSG"), record.authority, !isNumber,
                      number, record.code);
}

} // namespace

Result<QList<SrsRecord>> readSrsCatalogue()
{
    const ErrorCollector errors;
    int count = 0;
    const std::unique_ptr<OSRCRSInfo *[], ListRelease> list(
        OSRGetCRSInfoListFromDatabase(nullptr, nullptr, &count));
    if (!list || count == 0)
        return Error::asIs(QStringLiteral("no coordinate systems"), {}, errors.failure({}));

    QList<SrsRecord> records;
    records.reserve(count);
    QHash<QString, qsizetype> indexOfKey;
    for (int i = 0; i < count; ++i) {
        const OSRCRSInfo &info = *list[i];
        if (info.eType == OSR_CRS_TYPE_VERTICAL || info.eType == OSR_CRS_TYPE_GEOCENTRIC)
            continue;
        SrsRecord record = recordOf(info);
        const auto known = indexOfKey.constFind(record.key());
        if (known != indexOfKey.constEnd()) {
            addArea(records[*known], record);
            continue;
        }
        indexOfKey.insert(record.key(), records.size());
        records.append(std::move(record));
    }
    std::sort(records.begin(), records.end(),
              [](const SrsRecord &a, const SrsRecord &b) { return sortKey(a) < sortKey(b); });
    return records;
}

QString srsDefinitionText(const QString &codeOrDefinition)
{
    const ErrorCollector quiet;
    OGRSpatialReference system;
    if (codeOrDefinition.isEmpty() ||
        system.SetFromUserInput(codeOrDefinition.toUtf8().constData(),
                                OGRSpatialReference::SET_FROM_USER_INPUT_LIMITATIONS_get()) !=
            OGRERR_NONE)
        return {};

    constexpr const char *const Options[] = {"FORMAT=WKT2_2019", "MULTILINE=YES", nullptr};
    char *text = nullptr;
    const OGRErr outcome = system.exportToWkt(&text, Options);
    QString wkt = outcome == OGRERR_NONE ? QString::fromUtf8(text) : QString();
    CPLFree(text);
    return wkt;
}

} // namespace vlt::geodata
