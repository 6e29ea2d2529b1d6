#include "sites/PylonQuery.h"

#include "contract/Installation.h"
#include "text/Numbers.h"
#include "text/Templates.h"

#include <QDir>
#include <QFileInfo>

namespace vlt::sites {

namespace {

constexpr int PreviewTransmitters = 6;

QString systemsPart(const PylonQuery &query)
{
    QString part;
    if (!query.sourceSrs.isEmpty())
        part = QStringLiteral("s_srs=") + query.sourceSrs;
    if (!query.targetSrs.isEmpty()) {
        if (!part.isEmpty())
            part += QLatin1Char(',');
        part += QStringLiteral("t_srs=") + query.targetSrs;
    }
    return part.isEmpty() ? part : part + QLatin1Char(',');
}

/// What stands behind the sectors: the links' own parameters, then how the table is read.
QString extraPart(const PylonQuery &query)
{
    QStringList parts = {query.extra, query.reading.parameters()};
    parts.removeAll(QString());
    return parts.isEmpty() ? QString() : parts.join(QLatin1Char(',')) + QLatin1Char(',');
}

QString terrainPart(const PylonQuery &query, const project::ProjectContext &project)
{
    if (query.kind != QLatin1String("link") || project.terrainFile.isEmpty())
        return {};
    return QStringLiteral("dem_file=") + project.relativePath(project.terrainFile) +
           QLatin1Char(',');
}

} // namespace

QString buildPylonQuery(const PylonQuery &query, const SiteRepresentation &representation,
                        const SiteCatalogues &catalogues, const project::ProjectContext &project)
{
    const PylonType *pylon = chosenPylonType(representation, catalogues);
    const SectorColorSet *colors = chosenColorSet(representation, catalogues);
    if (!pylon || !colors)
        return {};

    const QStringList values = QStringList{query.kind,
                                           systemsPart(query),
                                           QLatin1String(contract::PylonFolder),
                                           pylon->type,
                                           text::g6(representation.pylonWidth),
                                           colorSetText(*colors, representation.transparency)} +
                               sectorProperties(representation) +
                               QStringList{extraPart(query),
                                           QString::number(representation.antennaSize),
                                           QString::number(representation.symbolicDistance),
                                           QString::number(representation.realisticDistance),
                                           terrainPart(query, project),
                                           project.relativePath(query.dataFile)};
    return text::fillSlots(
        QStringLiteral("%1:%2data_folder=%3,pylon_type=%4,pylon_width=%5,sector_colors=%6,"
                       "sector_properties=%7 %8 %9,%10transmitter_scale=%11,lods=%12 %13,%14%15"),
        values);
}

QString placingConnection(const PylonQuery &query)
{
    return query.reading.connection(query.kind + QLatin1Char(':') + systemsPart(query),
                                    QFileInfo(query.dataFile).absoluteFilePath());
}

QStringList sectorProperties(const SiteRepresentation &representation)
{
    return {QString::number(static_cast<qint64>(representation.sectorRadius)),
            text::g6(representation.sectorHeight), text::g6(representation.sectorSpacing)};
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
                          pylon->type, text::g6(representation.pylonWidth)};
    values << sectorProperties(representation);
    for (int i = 0; i < PreviewTransmitters; ++i)
        values << colorText(*colors, i, representation.transparency);
    values << QString::number(representation.antennaSize)
           << QString::number(representation.symbolicDistance)
           << QString::number(representation.realisticDistance);
    return text::fillSlots(
        QStringLiteral("inline://parametric/query?object=pylon&data_folder=%1&pylon_type=%2"
                       "&pylon=0 0 0 25 %3 %4 %5 %6&transmitter=23 0 0 0 0 %7"
                       "&transmitter=23 120 0 0 0 %8&transmitter=23 240 -5 0 0 %9"
                       "&transmitter=20 20 0 0 0 %10&transmitter=20 140 +5 0 0 %11"
                       "&transmitter=20 260 0 0 0 %12&transmitter_scale=%13"
                       "&lod=%14 %15.inlinepylonurl"),
        values);
}

} // namespace vlt::sites
