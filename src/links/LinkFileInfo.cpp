#include "links/LinkFileInfo.h"

#include "contract/LinkEnds.h"
#include "geodata/LayerInfo.h"
#include "sites/SiteFileInfo.h"

namespace vlt::links {

namespace {

tables::TableFileType linkTable()
{
    return {contract::TableKind::Links,
            {QStringLiteral("MESS_ERR_OPEN_LINK"),
             QStringLiteral("This file can't be open as a link file"),
             {}},
            {QStringLiteral("MESS_ERR_EMPTY_LINK"), QStringLiteral("This link file is empty"), {}}};
}

} // namespace

QString linkEndNameField(const QString &format)
{
    // In the exports of this tool the column has another name for links than for sites.
    return format.toLower().startsWith(QLatin1String("mentum")) ? QStringLiteral("Site ID")
                                                                : sites::siteNameField(format);
}

Result<LinkFileInfo> readLinkFileInfo(const QString &path, const project::ProjectContext &project)
{
    return readLinkFileInfoAs(path, project, {});
}

Result<LinkFileInfo> readLinkFileInfoAs(const QString &path, const project::ProjectContext &project,
                                        const tables::TableReading &reading)
{
    const Result<tables::TableFile> table =
        tables::readTableFile(linkTable(), path, project, reading);
    if (!table)
        return table.error();
    LinkFileInfo info{table.value().info,
                      {},
                      {},
                      recogniseLinkColumns(table.value().fields, table.value().info.roles)};
    info.linkNameField = info.columns.name;
    info.nameField = linkEndNameField(info.format);
    const Result<geodata::LayerInfo> ends = geodata::readLayerInfo(
        reading.connection(contract::TableKind::Links, path), contract::LinkEndLayerIndex);
    if (ends) {
        info.endLayerName = ends.value().layerName;
        info.hasNameField = ends.value().fields.contains(info.nameField, Qt::CaseInsensitive);
    }
    return info;
}

} // namespace vlt::links
