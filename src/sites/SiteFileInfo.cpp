#include "sites/SiteFileInfo.h"

#include "geodata/LayerInfo.h"
#include "geodata/TerrainReferenceCode.h"
#include "language/VltLanguageManager.h"
#include "sites/TableTexts.h"
#include "text/Templates.h"
#include "wizard/project/ProjectReaders.h"

#include <QFileInfo>

namespace vlt::sites {

namespace {

QString coordinateKind(const QString &unit)
{
    return unit == QLatin1String("METERS") ? dico_label("MESS_CR_CARTOGRAPHIQUES", "cartographic")
                                           : dico_label("MESS_CR_GEOGRAPHIQUES", "geographic");
}

QString unitWord(const QString &unit)
{
    if (unit == QLatin1String("METERS"))
        return dico_label("MESS_METERS", "meters");
    if (unit == QLatin1String("DMS"))
        return dico_label("MESS_DMS_FORM", "D/M/S form");
    return dico_label("MESS_DEC_DEGREES", "decimal degrees");
}

KnownSystems knownSystems(const SiteFileInfo &info, const ProjectContext &project)
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

} // namespace

QString siteNameField(const QString &format)
{
    const QString tool = format.toLower();
    if (tool.startsWith(QLatin1String("asset")))
        return QStringLiteral("Site name");
    if (tool.startsWith(QLatin1String("atoll")))
        return QStringLiteral("NAME");
    if (tool.startsWith(QLatin1String("mentum")))
        return QStringLiteral("SITE ID");
    return QStringLiteral("Site ID");
}

std::optional<Problem> missingNameField(const SiteFileInfo &info)
{
    if (!info.valid || info.hasNameField)
        return std::nullopt;
    Problem problem;
    problem.column = info.nameField;
    problem.text = dico_label("MESS_CLI_NO_NAME_FIELD", "the table has no such column: its sites "
                                                        "have no name in the layer");
    return problem;
}

QString describeSiteFile(const QString &format, const QString &unit)
{
    return text::replacePlaceholders(
        dico_label("MESS_INFO_SITE_FILE",
                   "File format is : %1\nCoordinates are %2 and are specified in %3"),
        {{QStringLiteral("_F_"), format},
         {QStringLiteral("_C_"), coordinateKind(unit)},
         {QStringLiteral("_U_"), unitWord(unit)}});
}

SiteFileInfo readSiteFileInfo(const QString &path, const ProjectContext &project)
{
    SiteFileInfo info;
    if (path.isEmpty())
        return info;

    const Result<geodata::LayerInfo> opened =
        geodata::readLayerInfo(QStringLiteral("site:") + path, 0);
    const Error isEmpty{
        QStringLiteral("MESS_ERR_EMPTY_SITE"), QStringLiteral("This site file is empty"), {}};
    if (!opened) {
        info.errorDetail = opened.error().text;
        info.error = isEmptyTable(info.errorDetail)
                         ? isEmpty
                         : Error{QStringLiteral("MESS_ERR_OPEN_SITE"),
                                 QStringLiteral("This file can't be open as a site file"),
                                 {}};
        return info;
    }

    info.fileDir = QFileInfo(path).absolutePath();
    info.filePath = path;
    const geodata::LayerInfo &layer = opened.value();
    if (!layer.present || layer.featureCount == 0) {
        info.error = isEmpty;
        return info;
    }

    info.layerName = layer.layerName;
    info.rowCount = layer.featureCount;
    info.format = layer.metadata.value(QStringLiteral("format"));
    info.unit = layer.metadata.value(QStringLiteral("unit"));
    info.epsg = layer.metadata.value(QStringLiteral("epsg"));
    info.description = describeSiteFile(info.format, info.unit);
    info.systems = chooseSystems(knownSystems(info, project));
    info.columns = recogniseSiteColumns(layer.fields);
    info.nameField = siteNameField(info.format);
    // as the geodata library looks fields up
    info.hasNameField = layer.fields.contains(info.nameField, Qt::CaseInsensitive);
    info.valid = true;
    return info;
}

} // namespace vlt::sites
