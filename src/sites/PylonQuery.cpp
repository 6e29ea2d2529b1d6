#include "sites/PylonQuery.h"

#include "contract/Installation.h"
#include "text/Numbers.h"
#include "text/Templates.h"

#include <QDir>
#include <QFileInfo>

namespace vlt::sites {

namespace {

namespace keys = contract::query;

constexpr int PreviewTransmitters = 6;

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

/// The same for a demonstration: a mast with three antennas above three others.
QString previewTemplate()
{
    const QString mastM = text::g6(contract::DefaultPylonHeightM);
    const QString antennaM = text::g6(contract::DefaultAntennaHeightM);
    return QStringLiteral("inline://parametric/query?object=pylon&data_folder=%1&pylon_type=%2") +
           QStringLiteral("&pylon=0 0 0 ") + mastM + QStringLiteral(" %3 %4 %5 %6&transmitter=") +
           antennaM + QStringLiteral(" 0 0 0 0 %7&transmitter=") + antennaM +
           QStringLiteral(" 120 0 0 0 %8&transmitter=") + antennaM +
           QStringLiteral(" 240 -5 0 0 %9&transmitter=20 20 0 0 0 %10"
                          "&transmitter=20 140 +5 0 0 %11&transmitter=20 260 0 0 0 %12"
                          "&transmitter_scale=%13&lod=%14 %15.inlinepylonurl");
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

    QStringList values = {QDir(installDir).absolutePath() + QLatin1Char('/') +
                              QLatin1String(contract::PylonFolder),
                          pylon->type, text::g6(representation.pylonWidthM)};
    values << sectorProperties(representation);
    for (int i = 0; i < PreviewTransmitters; ++i)
        values << colorText(*colors, i, representation.transparencyPercent);
    values << QString::number(representation.antennaScalePercent)
           << QString::number(representation.symbolicDistanceM)
           << QString::number(representation.realisticDistanceM);
    return text::fillSlots(previewTemplate(), values);
}

} // namespace vlt::sites
