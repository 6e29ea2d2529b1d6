#include "tables/TableFileInfo.h"

#include "contract/TableMetadata.h"
#include "contract/TextPatterns.h"
#include "geodata/LayerInfo.h"
#include "geodata/TerrainReferenceCode.h"
#include "language/VltLanguageManager.h"
#include "text/Templates.h"
#include "wizard/project/ProjectReaders.h"

#include <QFileInfo>

namespace vlt::tables {

namespace {

namespace metadata = contract::metadata;

QString coordinateKind(const QString &unit)
{
    return unit == QLatin1String(metadata::Meters)
               ? dico_label("MESS_CR_CARTOGRAPHIQUES", "cartographic")
               : dico_label("MESS_CR_GEOGRAPHIQUES", "geographic");
}

QString unitWord(const QString &unit)
{
    if (unit == QLatin1String(metadata::Meters))
        return dico_label("MESS_METERS", "meters");
    if (unit == QLatin1String(metadata::Dms))
        return dico_label("MESS_DMS_FORM", "D/M/S form");
    return dico_label("MESS_DEC_DEGREES", "decimal degrees");
}

/// Whether a reader refused a file because it is empty or has a header but no rows.
bool isEmptyTable(const QString &reason)
{
    const std::string text = reason.toStdString();
    const auto found = contract::recognised(text);
    const QByteArray key = found ? found->text->key : "";
    return key == "MESS_TAB_EMPTY_FILE" || key == "MESS_TAB_BLANK_FILE" ||
           key == "MESS_TAB_NO_VALUE" || key == "MESS_TAB_NO_ROW";
}

KnownSystems knownSystems(const TableFileInfo &info, const project::ProjectContext &project)
{
    KnownSystems known;
    known.unit = info.unit;
    known.fileEpsg = info.epsg;
    if (!project.terrainFile.isEmpty())
        known.terrainEpsg = geodata::terrainReferenceCode(project.terrainFile);
    if (!project.projectPath.isEmpty())
        known.projectEpsg = project::referenceProjection(project.projectPath);
    return known;
}

bool isUndeclared(const TableFileInfo &info)
{
    return info.unit == QLatin1String("METERS") &&
           (info.epsg.isEmpty() || info.epsg == QLatin1String("0"));
}

/// Completes the suggested source of a table that declares no system, so that every program makes
/// the same layer from it.
void assumeSystem(TableFileInfo &info, const KnownSystems &known, const QString &connection)
{
    info.isUndeclared = true;
    info.candidates = geodata::systemCandidates(connection, info.projectSystems, info.terrainArea);
    QString &source = info.systems.source;
    if (!source.isEmpty()) {
        info.assumedFrom = AssumedFrom::Terrain;
    } else if (!info.candidates.isEmpty() && info.candidates.constFirst().isNamed) {
        info.assumedFrom = AssumedFrom::Name;
        source = info.candidates.constFirst().code;
    } else if (!known.projectEpsg.isEmpty()) {
        info.assumedFrom = AssumedFrom::Project;
        source = known.projectEpsg;
    } else if (info.candidates.size() == 1) {
        info.assumedFrom = AssumedFrom::Positions;
        source = info.candidates.constFirst().code;
    }
    if (info.systems.target.isEmpty())
        info.systems.target = source;
}

} // namespace

QString describeTableFile(const QString &format, const QString &unit)
{
    return text::replacePlaceholders(
        dico_label("MESS_INFO_SITE_FILE",
                   "File format is : %1\nCoordinates are %2 and are specified in %3"),
        {{QStringLiteral("_F_"), format},
         {QStringLiteral("_C_"), coordinateKind(unit)},
         {QStringLiteral("_U_"), unitWord(unit)}});
}

Result<TableFile> readTableFile(const TableFileType &type, const QString &path,
                                const project::ProjectContext &project, const TableReading &reading)
{
    const Result<geodata::LayerInfo> opened =
        geodata::readLayerInfo(reading.connection(type.kind, path), 0);
    if (!opened) {
        Error error = isEmptyTable(opened.error().detail) ? type.empty : type.unreadable;
        error.detail = opened.error().detail;
        return error;
    }
    const geodata::LayerInfo &layer = opened.value();
    if (!layer.present || layer.featureCount == 0)
        return type.empty.withPath(path);

    TableFileInfo info;
    info.reading = reading;
    info.filePath = path;
    info.layerName = layer.layerName;
    info.rowCount = layer.featureCount;
    info.format = layer.metadata.value(QLatin1String(metadata::Format));
    info.unit = layer.metadata.value(QLatin1String(metadata::Unit));
    info.epsg = layer.metadata.value(QLatin1String(metadata::Epsg));
    info.encoding = layer.metadata.value(QLatin1String(metadata::Encoding));
    info.shape = layer.shape;
    info.roles = layer.roles;
    info.second = layer.second;
    info.description = describeTableFile(info.format, info.unit);
    const KnownSystems known = knownSystems(info, project);
    for (const QString &system : {known.projectEpsg, known.terrainEpsg}) {
        if (!system.isEmpty())
            info.projectSystems << system;
    }
    if (!project.terrainFile.isEmpty())
        info.terrainArea = geodata::terrainArea(project.terrainFile);
    info.systems = chooseSystems(known);
    if (isUndeclared(info))
        assumeSystem(info, known, reading.connection(type.kind, path));
    return TableFile{info, layer.fields};
}

} // namespace vlt::tables
