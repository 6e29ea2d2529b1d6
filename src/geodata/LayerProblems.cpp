#include "geodata/LayerProblems.h"

#include "geodata/TableDataset.h"
#include "platform/TextDecoding.h"

#include <QElapsedTimer>

#include <cpl_string.h>

#include <vector>

namespace vlt::geodata {

namespace {

constexpr qint64 FeaturesPerLook = 16; ///< at the clock: rows of thousands of columns take long
constexpr qint64 MillisecondsPerReport = 20;

/// Only geometries are asked for; a driver that can leave out the attributes may do so.
void ignoreAttributes(OGRLayer &layer)
{
    if (!layer.TestCapability(OLCIgnoreFields))
        return;
    const OGRFeatureDefn *definition = layer.GetLayerDefn();
    std::vector<const char *> names;
    names.reserve(static_cast<std::size_t>(definition->GetFieldCount()) + 1);
    for (int i = 0; i < definition->GetFieldCount(); ++i)
        names.push_back(definition->GetFieldDefn(i)->GetNameRef());
    names.push_back(nullptr);
    layer.SetIgnoredFields(names.data());
}

Error cancelled()
{
    return Error{QString(), QStringLiteral("cancelled"), {}};
}

/// A driver names the layer before the reason why its rows end too early.
QString withoutName(const QString &reason, OGRLayer &layer)
{
    const QString name = platform::decodeText(layer.GetDescription()) + QStringLiteral(": ");
    return reason.startsWith(name) ? reason.mid(name.size()) : reason;
}

LayerProblems problemsOf(OGRLayer &layer)
{
    LayerProblems problems;
    char **items = layer.GetMetadata("problems");
    for (char **item = items; item && *item; ++item) {
        const QByteArray text(*item);
        if (text.startsWith("PROBLEM_"))
            problems.listed << parseProblem(platform::decodeText(text.mid(text.indexOf('=') + 1)));
    }
    const qint64 declared = QByteArray(CSLFetchNameValueDef(items, "COUNT", "0")).toLongLong();
    problems.count = qMax<qint64>(declared, problems.listed.size());
    return problems;
}

} // namespace

Problem parseProblem(const QString &item)
{
    const QLatin1Char bar('|');
    Problem problem;
    problem.row = item.section(bar, 0, 0).toInt();
    problem.column = item.section(bar, 1, 1);
    problem.severity = item.section(bar, 2, 2) == QLatin1String("Error")
                           ? Problem::Severity::Error
                           : Problem::Severity::Warning;
    problem.text = item.section(bar, 3);
    return problem;
}

Result<SiteCheck> readSiteCheck(const QString &connection, const Progress &progress)
{
    const ErrorCollector errors;
    const auto dataset = openTable(connection, errors);
    if (!dataset)
        return dataset.error();
    SiteCheck check;
    OGRLayer *layer = dataset.value()->GetLayer(0);
    if (!layer)
        return check;
    if (progress && !progress(0))
        return cancelled();

    const qint64 expected = layer->GetFeatureCount(TRUE);
    ignoreAttributes(*layer);
    LayerPlacement &placement = check.placement;
    QElapsedTimer sinceReport;
    sinceReport.start();
    for (const OGRFeatureUniquePtr &feature : *layer) {
        const OGRGeometry *geometry = feature->GetGeometryRef();
        placement.placed += geometry && !geometry->IsEmpty() ? 1 : 0;
        if (++placement.features % FeaturesPerLook != 0 || !progress ||
            !sinceReport.hasExpired(MillisecondsPerReport))
            continue;
        if (!progress(static_cast<double>(placement.features) / static_cast<double>(expected)))
            return cancelled();
        sinceReport.start();
    }
    if (placement.features < expected && !errors.failure({}).isEmpty())
        return Error{QString(), withoutName(errors.failure({}), *layer), {}};
    check.problems = problemsOf(*layer);
    return check;
}

} // namespace vlt::geodata
