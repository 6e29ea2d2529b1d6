#include "sites/PylonQuery.h"

#include "contract/Installation.h"
#include "contract/ParametricKeys.h"
#include "sites/Demonstration.h"
#include "text/Numbers.h"
#include "text/Templates.h"

#include <QFileInfo>

#include <array>

namespace vlt::sites {

namespace {

namespace keys = contract::query;

/// An antenna of the demonstration.
struct DemoAntenna
{
    double heightM;
    const char *azimuthAndTiltDeg;
};

/// Three antennas above three others.
constexpr auto DemoAntennas = std::to_array<DemoAntenna>({
    {contract::DefaultAntennaHeightM, "0 0"},
    {contract::DefaultAntennaHeightM, "120 0"},
    {contract::DefaultAntennaHeightM, "240 -5"},
    {20, "20 0"},
    {20, "140 +5"},
    {20, "260 0"},
});

/// "key=value,", or an empty text for an empty value.
QString option(const char *key, const QString &value)
{
    return value.isEmpty() ? QString()
                           : QLatin1String(key) + QLatin1Char('=') + value + QLatin1Char(',');
}

QString systemsPart(const PylonQuery &query)
{
    return option(keys::SourceSystem, query.sourceSrs) +
           option(keys::TargetSystem, query.targetSrs);
}

/// The part after the sectors: the parameters of links, then the options of the table.
QString extraPart(const PylonQuery &query)
{
    QStringList parts = {query.extra, query.reading.parameters()};
    parts.removeAll(QString());
    return parts.isEmpty() ? QString() : parts.join(QLatin1Char(',')) + QLatin1Char(',');
}

/// The prefix of connections of a kind.
QString prefix(contract::TableKind kind)
{
    return QLatin1String(contract::connectionPrefix(kind).data());
}

/// A query with placeholders, which are filled in this order.
QString queryTemplate()
{
    return QStringLiteral("%1%2") + option(keys::DataFolder, QStringLiteral("%3")) +
           option(keys::PylonType, QStringLiteral("%4")) +
           option(keys::PylonWidth, QStringLiteral("%5")) +
           option(keys::SectorColors, QStringLiteral("%6")) +
           option(keys::SectorProperties, QStringLiteral("%7 %8 %9")) + QStringLiteral("%10") +
           option(keys::TransmitterScale, QStringLiteral("%11")) +
           option(keys::Lods, QStringLiteral("%12 %13")) + QStringLiteral("%14%15");
}

QString terrainPart(const PylonQuery &query, const project::ProjectContext &project)
{
    if (query.kind != contract::TableKind::Links || project.terrainFile.isEmpty())
        return {};
    return option(keys::TerrainFile, project.relativePath(project.terrainFile));
}

} // namespace

QString buildPylonQuery(const PylonQuery &query, const SiteRepresentation &representation,
                        const SiteCatalogues &catalogues, const project::ProjectContext &project)
{
    const PylonType *pylon = chosenPylonType(representation, catalogues);
    const SectorColorSet *colors = chosenColorSet(representation, catalogues);
    if (!pylon || !colors)
        return {};

    const QStringList values =
        QStringList{prefix(query.kind),
                    systemsPart(query),
                    QLatin1String(contract::PylonFolder),
                    pylon->type,
                    text::g6(representation.pylonWidthM),
                    colorSetText(*colors, representation.transparencyPercent)} +
        sectorProperties(representation) +
        QStringList{extraPart(query),
                    QString::number(representation.antennaScalePercent),
                    QString::number(representation.symbolicDistanceM),
                    QString::number(representation.realisticDistanceM),
                    terrainPart(query, project),
                    project.relativePath(query.dataFile)};
    return text::fillSlots(queryTemplate(), values);
}

QString placingConnection(const PylonQuery &query)
{
    return query.reading.connection(query.kind, QFileInfo(query.dataFile).absoluteFilePath(),
                                    systemsPart(query));
}

QStringList sectorProperties(const SiteRepresentation &representation)
{
    return {QString::number(static_cast<qint64>(representation.sectorRadiusM)),
            text::g6(representation.sectorHeightM), text::g6(representation.sectorSpacingM)};
}

QString buildPreviewPylonUrl(const SiteRepresentation &representation,
                             const SiteCatalogues &catalogues, const QString &installDir)
{
    const PylonType *pylon = chosenPylonType(representation, catalogues);
    const SectorColorSet *colors = chosenColorSet(representation, catalogues);
    if (!pylon || !colors)
        return {};

    Demonstration shown{contract::parametric::ObjectPylon, {pylonItem(representation)}};
    for (int i = 0; const DemoAntenna &antenna : DemoAntennas)
        shown.pylons << queryItem(contract::parametric::Transmitter,
                                  {text::g6(antenna.heightM),
                                   QLatin1String(antenna.azimuthAndTiltDeg), QStringLiteral("0 0"),
                                   colorText(*colors, i++, representation.transparencyPercent)});
    return demonstrationUrl(shown, representation, *pylon, installDir);
}

} // namespace vlt::sites
