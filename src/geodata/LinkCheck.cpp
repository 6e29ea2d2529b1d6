#include "geodata/LinkCheck.h"

#include "contract/LinkEnds.h"
#include "geodata/LayerWalk.h"
#include "geodata/TableDataset.h"
#include "linkpath/LinkEndReader.h"
#include "platform/TextDecoding.h"

#include <QFile>

namespace vlt::geodata {

namespace {

QString text(const std::string &bytes)
{
    return platform::decodeText(QByteArray::fromStdString(bytes));
}

std::shared_ptr<linkpath::TerrainRaster> openTerrain(const QString &file, QString &problem)
{
    if (file.isEmpty())
        return nullptr;
    auto terrain = linkpath::TerrainRaster::open(QFile::encodeName(file).toStdString());
    problem = platform::decodeText(QByteArray::fromStdString(terrain.reason));
    return std::move(terrain.file);
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

QString terrainProblem(const QString &terrainFile)
{
    QString problem;
    openTerrain(terrainFile, problem);
    return problem;
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

    const auto terrain = openTerrain(input.terrainFile, check.terrainProblem);
    const linkpath::PathProfiler profiler(terrain, ends->GetSpatialRef());
    if (terrain && !profiler.hasTerrain())
        check.terrainProblem = TerrainElsewhere;
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
    return check;
}

} // namespace vlt::geodata
