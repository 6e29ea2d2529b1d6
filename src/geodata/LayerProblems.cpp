#include "geodata/LayerProblems.h"

#include "contract/TableMetadata.h"
#include "geodata/LayerWalk.h"
#include "geodata/TableDataset.h"
#include "platform/TextDecoding.h"

#include <cpl_string.h>

namespace vlt::geodata {

namespace {

/// Only geometries are needed, so a driver may leave out the attributes. The fields are marked one
/// by one, because SetIgnoredFields() compares each name with all fields, and a table may have
/// thousands.
void ignoreAttributes(OGRLayer &layer)
{
    if (!layer.TestCapability(OLCIgnoreFields))
        return;
    OGRFeatureDefn *definition = layer.GetLayerDefn();
    for (int i = 0; i < definition->GetFieldCount(); ++i)
        definition->GetFieldDefn(i)->SetIgnored(TRUE);
}

} // namespace

Problem parseProblem(const QString &item)
{
    const QLatin1Char bar(contract::metadata::ProblemSeparator);
    Problem problem;
    problem.row = item.section(bar, 0, 0).toInt();
    problem.column = item.section(bar, 1, 1);
    problem.severity = item.section(bar, 2, 2) == QLatin1String(contract::metadata::ErrorSeverity)
                           ? Problem::Severity::Error
                           : Problem::Severity::Warning;
    problem.text = item.section(bar, 3);
    return problem;
}

LayerProblems problemsOf(OGRLayer &layer)
{
    LayerProblems problems;
    char **items = layer.GetMetadata(contract::metadata::ProblemsDomain);
    for (char **item = items; item && *item; ++item) {
        const QByteArray text(*item);
        if (text.startsWith(contract::metadata::ProblemPrefix))
            problems.listed << parseProblem(platform::decodeText(text.mid(text.indexOf('=') + 1)));
    }
    const qint64 declared =
        QByteArray(CSLFetchNameValueDef(items, contract::metadata::ProblemCount, "0")).toLongLong();
    items = layer.GetMetadata(contract::metadata::DoctorDomain);
    for (char **item = items; item && *item; ++item) {
        const QString text = platform::decodeText(*item);
        const QString finding = text.section(QLatin1Char('='), 1);
        if (text.startsWith(QLatin1String(contract::metadata::CorrectionPrefix)) &&
            !problems.findings.isEmpty()) // it follows its finding
            problems.findings.last().corrections = contract::readCorrections(finding.toStdString());
        if (text.startsWith(QLatin1String(contract::metadata::FindingPrefix)))
            problems.findings << PositionFinding{finding.section(QLatin1Char('|'), 0, 0),
                                                 finding.section(QLatin1Char('|'), 1, 1),
                                                 finding.section(QLatin1Char('|'), 2)};
    }
    problems.count = qMax<qint64>(declared, problems.listed.size());
    return problems;
}

Stoppable<SiteCheck> readSiteCheck(const QString &connection, const Progress &progress,
                                   const SystemPair &systems)
{
    const ErrorCollector errors;
    const auto dataset = openTable(connection, errors);
    if (!dataset)
        return dataset.error();
    SiteCheck check;
    OGRLayer *layer = dataset.value()->GetLayer(0);
    if (!layer)
        return check;

    ignoreAttributes(*layer);
    SystemChecker positions(systems, layer->GetSpatialRef());
    const auto count = [&](const OGRFeature &feature) {
        const OGRGeometry *geometry = feature.GetGeometryRef();
        if (!geometry || geometry->IsEmpty())
            return;
        ++check.placement.placed;
        positions.add(*geometry);
    };
    const Stoppable<qint64> walked = walkFeatures(*layer, progress, errors, count);
    if (!walked)
        return std::nullopt;
    if (!*walked)
        return walked->error();
    check.placement.features = walked->value();
    check.problems = problemsOf(*layer);
    check.systems = positions.result();
    return check;
}

} // namespace vlt::geodata
