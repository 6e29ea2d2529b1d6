#include "geodata/LinkCheck.h"

#include "contract/LinkEnds.h"
#include "contract/SceneTexts.h"
#include "geodata/LayerWalk.h"
#include "geodata/TableDataset.h"
#include "linkpath/LinkEndReader.h"
#include "platform/TextDecoding.h"

#include <QFile>

namespace vlt::geodata {

namespace {

constexpr std::string_view OtherFormat = contract::SceneTextId("MESS_SCENE_NO_FORMAT").text().key;

QString text(const std::string &bytes)
{
    return platform::decodeText(QByteArray::fromStdString(bytes));
}

/// A reason without the name of the file, which the error has as its path.
std::string withoutName(const std::string &reason)
{
    const auto known = contract::recognised(reason);
    const bool isOtherFormat = known && std::string_view(known->text->key) == OtherFormat;
    return isOtherFormat ? contract::formatted("MESS_TERRAIN_NO_RASTER") : reason;
}

Result<std::shared_ptr<linkpath::TerrainRaster>> openTerrain(const QString &file)
{
    auto terrain = linkpath::TerrainRaster::open(QFile::encodeName(file).toStdString());
    if (!terrain.file)
        return Error{QStringLiteral("MESS_TERRAIN_UNREADABLE"),
                     QStringLiteral("the terrain file cannot be read as a georeferenced raster"),
                     file, text(withoutName(terrain.reason))};
    return std::shared_ptr(std::move(terrain.file));
}

/// The terrain of an input; null, with the problem in `check`, if it cannot be used.
std::shared_ptr<linkpath::TerrainRaster> terrainOf(const LinkCheckInput &input, LinkCheck &check)
{
    if (input.terrainFile.isEmpty())
        return nullptr;
    auto terrain = openTerrain(input.terrainFile);
    if (terrain)
        return std::move(terrain).value();
    check.terrainProblem = terrain.error();
    return nullptr;
}

QString wktOf(const OGRSpatialReference *system)
{
    char *wkt = nullptr;
    if (system)
        system->exportToWkt(&wkt);
    const QString text = QString::fromUtf8(wkt);
    CPLFree(wkt);
    return text;
}

Error noTransformationTo(const QString &terrainFile)
{
    return {QStringLiteral("MESS_TERRAIN_ELSEWHERE"),
            QStringLiteral("there is no transformation from the coordinate system of the links to "
                           "that of the terrain"),
            terrainFile};
}

/// Computes length and clearance of each link that is read, and keeps the reports.
class LinkCollector
{
public:
    LinkCollector(const linkpath::ClearanceRule &rule, const linkpath::PathProfiler &profiler)
        : m_rule(rule)
        , m_profiler(profiler)
    {}

    void add(const std::optional<linkpath::PairedLink> &link)
    {
        if (!link)
            return;
        LinkReport report;
        report.row = link->row;
        report.name = text(link->name);
        report.endA = text(link->ends[0].site);
        report.endB = text(link->ends[1].site);
        report.lengthM = link->lengthM;
        report.frequencyMHz = link->frequencyMHz();
        report.isPlaced = link->isPlaced();
        if (report.isPlaced) {
            ++m_placed;
            report.ends = {link->ends[0].place, link->ends[1].place};
            report.clearance = m_profiler.check(link->ends[0].place, link->ends[1].place,
                                                report.frequencyMHz.value_or(0), m_rule);
        }
        m_links << report;
    }

    LayerPlacement placement() const { return {m_links.size(), m_placed}; }
    QList<LinkReport> takeLinks() { return std::move(m_links); }

private:
    linkpath::ClearanceRule m_rule;
    const linkpath::PathProfiler &m_profiler;
    QList<LinkReport> m_links;
    qint64 m_placed = 0;
};

} // namespace

std::optional<Error> terrainProblem(const QString &terrainFile)
{
    const auto terrain = openTerrain(terrainFile);
    return terrain ? std::nullopt : std::optional(terrain.error());
}

Stoppable<LinkCheck> readLinkCheck(const QString &connection, const LinkCheckInput &input,
                                   const Progress &progress, const SystemPair &systems)
{
    const ErrorCollector errors;
    const auto dataset = openTable(connection, errors);
    if (!dataset)
        return dataset.error();
    LinkCheck check;
    OGRLayer *links = dataset.value()->GetLayer(contract::LinkLayerIndex);
    OGRLayer *ends = dataset.value()->GetLayer(contract::LinkEndLayerIndex);
    if (!links || !ends)
        return check;

    const auto terrain = terrainOf(input, check);
    const linkpath::PathProfiler profiler(terrain, ends->GetSpatialRef());
    if (terrain && !profiler.hasTerrain())
        check.terrainProblem = noTransformationTo(input.terrainFile);
    linkpath::LinkEndReader reader(*ends->GetLayerDefn(), contract::LinkEndSiteField);
    LinkCollector collector(input.rule, profiler);
    SystemChecker positions(systems, ends->GetSpatialRef());
    const Stoppable<qint64> walked =
        walkFeatures(*ends, progress, errors, [&](const OGRFeature &feature) {
            collector.add(reader.add(feature));
            if (const OGRGeometry *place = feature.GetGeometryRef())
                positions.add(*place);
        });
    if (!walked)
        return std::nullopt;
    if (!*walked)
        return walked->error();
    collector.add(reader.finish());
    check.placement = collector.placement();
    check.links = collector.takeLinks();
    check.problems = problemsOf(*links);
    check.systems = positions.result();
    check.endSystem = wktOf(ends->GetSpatialRef());
    return check;
}

} // namespace vlt::geodata
