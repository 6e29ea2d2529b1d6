#include "geodata/LinkCheck.h"

#include "geodata/LayerWalk.h"
#include "geodata/TableDataset.h"
#include "linkpath/PathProfiler.h"
#include "platform/TextDecoding.h"

#include <QFile>

namespace vlt::geodata {

namespace {

constexpr int LinkLayer = 0;
constexpr int EndLayer = 1;

/// Where the fields of the link ends are; -1 for one that is not there.
struct EndFields
{
    explicit EndFields(const OGRFeatureDefn &definition)
        : link(definition.GetFieldIndex("Link row"))
        , name(definition.GetFieldIndex("Transmitter-1 Sector ID"))
        , height(definition.GetFieldIndex("Transmitter-1 Height (m)"))
        , end(definition.GetFieldIndex("End"))
        , frequency(definition.GetFieldIndex("Frequency (MHz)"))
        , length(definition.GetFieldIndex("Link length (m)"))
    {}

    int site = 0; ///< comes first, under the name that the export's tool gives it
    int link;
    int name;
    int height;
    int end;
    int frequency;
    int length;
};

std::optional<double> number(const OGRFeature &feature, int field)
{
    if (field < 0 || !feature.IsFieldSetAndNotNull(field))
        return std::nullopt;
    return feature.GetFieldAsDouble(field);
}

QString text(const OGRFeature &feature, int field)
{
    if (field < 0 || !feature.IsFieldSetAndNotNull(field))
        return {};
    return platform::decodeText(feature.GetFieldAsString(field));
}

std::optional<linkpath::LinkEnd> placedEnd(const OGRFeature &feature, int heightField)
{
    const OGRGeometry *geometry = feature.GetGeometryRef();
    if (!geometry || geometry->IsEmpty() || wkbFlatten(geometry->getGeometryType()) != wkbPoint)
        return std::nullopt;
    const OGRPoint *point = geometry->toPoint();
    return linkpath::LinkEnd{point->getX(), point->getY(), number(feature, heightField)};
}

std::shared_ptr<linkpath::TerrainRaster> openTerrain(const QString &file, QString &problem)
{
    if (file.isEmpty())
        return nullptr;
    std::string reason;
    std::shared_ptr<linkpath::TerrainRaster> terrain =
        linkpath::TerrainRaster::open(QFile::encodeName(file).toStdString(), &reason);
    if (!terrain)
        problem = platform::decodeText(QByteArray::fromStdString(reason));
    return terrain;
}

/// Puts the ends of a link together and judges it.
class LinkCollector
{
public:
    LinkCollector(OGRLayer &ends, const linkpath::ClearanceRule &rule,
                  const linkpath::PathProfiler &profiler)
        : m_fields(*ends.GetLayerDefn())
        , m_rule(rule)
        , m_profiler(profiler)
    {}

    void add(const OGRFeature &feature)
    {
        const qint64 row = feature.GetFieldAsInteger64(m_fields.link);
        const bool isB = text(feature, m_fields.end) == QLatin1String("B");
        if (!isB || m_links.isEmpty() || m_links.constLast().row != row)
            startLink(row, feature);
        LinkReport &link = m_links.last();
        (isB ? link.endB : link.endA) = text(feature, m_fields.site);
        const auto end = placedEnd(feature, m_fields.height);
        if (isB)
            finishLink(link, end, number(feature, m_fields.frequency));
        else
            m_endA = end;
    }

    LayerPlacement placement() const { return {m_links.size(), m_placed}; }
    QList<LinkReport> takeLinks() { return std::move(m_links); }

private:
    void startLink(qint64 row, const OGRFeature &feature)
    {
        LinkReport link;
        link.row = row;
        link.name = text(feature, m_fields.name);
        link.lengthM = number(feature, m_fields.length);
        link.frequencyMHz = number(feature, m_fields.frequency);
        m_links << link;
        m_endA.reset();
    }

    void finishLink(LinkReport &link, const std::optional<linkpath::LinkEnd> &endB,
                    std::optional<double> frequencyB)
    {
        if (!link.frequencyMHz)
            link.frequencyMHz = frequencyB;
        link.isPlaced = m_endA && endB;
        if (!link.isPlaced)
            return;
        ++m_placed;
        link.clearance = m_profiler.judge(*m_endA, *endB, link.frequencyMHz.value_or(0), m_rule);
    }

    EndFields m_fields;
    linkpath::ClearanceRule m_rule;
    const linkpath::PathProfiler &m_profiler;
    QList<LinkReport> m_links;
    std::optional<linkpath::LinkEnd> m_endA; ///< of the last link
    qint64 m_placed = 0;
};

} // namespace

QString terrainProblem(const QString &terrainFile)
{
    QString problem;
    openTerrain(terrainFile, problem);
    return problem;
}

Result<LinkCheck> readLinkCheck(const QString &connection, const LinkJudging &judging,
                                const Progress &progress, const SystemPair &systems)
{
    const ErrorCollector errors;
    const auto dataset = openTable(connection, errors);
    if (!dataset)
        return dataset.error();
    LinkCheck check;
    OGRLayer *links = dataset.value()->GetLayer(LinkLayer);
    OGRLayer *ends = dataset.value()->GetLayer(EndLayer);
    if (!links || !ends)
        return check;

    const auto terrain = openTerrain(judging.terrainFile, check.terrainProblem);
    const linkpath::PathProfiler profiler(terrain, ends->GetSpatialRef());
    if (terrain && !profiler.hasTerrain())
        check.terrainProblem = TerrainElsewhere;
    LinkCollector collector(*ends, judging.rule, profiler);
    SystemChecker positions(systems, ends->GetSpatialRef());
    const Result<qint64> walked =
        walkFeatures(*ends, progress, errors, [&collector, &positions](const OGRFeature &feature) {
            collector.add(feature);
            if (const OGRGeometry *place = feature.GetGeometryRef())
                positions.add(*place);
        });
    if (!walked)
        return walked.error();
    check.placement = collector.placement();
    check.links = collector.takeLinks();
    check.problems = problemsOf(*links);
    check.systems = positions.result();
    return check;
}

} // namespace vlt::geodata
