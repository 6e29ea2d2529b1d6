#include "sites/SiteFileInfo.h"

#include "geodata/LayerInfo.h"
#include "language/VltLanguageManager.h"

namespace vlt::sites {

namespace {

tables::TableFileType siteTable()
{
    return {contract::TableKind::Sites,
            {QStringLiteral("MESS_ERR_OPEN_SITE"),
             QStringLiteral("This file can't be open as a site file"),
             {}},
            {QStringLiteral("MESS_ERR_EMPTY_SITE"), QStringLiteral("This site file is empty"), {}}};
}

/// Whether the only coordinates of a table are those of both ends of links. Such a table could be
/// read as sites at one of the ends.
bool isLinkTable(const SiteFileInfo &info)
{
    return info.columns.x.isEmpty() && info.columns.y.isEmpty() &&
           geodata::readLayerInfo(
               info.reading.connection(contract::TableKind::Links, info.filePath), 0)
               .ok();
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
    if (info.hasNameField)
        return std::nullopt;
    Problem problem;
    problem.column = info.nameField;
    problem.text = dico_label("MESS_CLI_NO_NAME_FIELD", "the table has no such column: its sites "
                                                        "have no name in the layer");
    return problem;
}

Result<SiteFileInfo> readSiteFileInfo(const QString &path, const project::ProjectContext &project)
{
    return readSiteFileInfoAs(path, project, {});
}

Result<SiteFileInfo> readSiteFileInfoAs(const QString &path, const project::ProjectContext &project,
                                        const tables::TableReading &reading)
{
    const Result<tables::TableFile> table =
        tables::readTableFile(siteTable(), path, project, reading);
    if (!table)
        return table.error();
    const QStringList &fields = table.value().fields;
    SiteFileInfo info{table.value().info, recogniseSiteColumns(fields)};
    if (isLinkTable(info)) {
        const Error unreadable = siteTable().unreadable;
        return Error{unreadable.key, unreadable.text, path,
                     dico_label("MESS_LINKS_NOT_SITES",
                                "this is a table of links, not of sites: its coordinates are "
                                "those of both ends of links")};
    }
    info.nameField = siteNameField(info.format);
    // The geodata library finds fields without regard to case.
    info.hasNameField = fields.contains(info.nameField, Qt::CaseInsensitive);
    return info;
}

} // namespace vlt::sites
