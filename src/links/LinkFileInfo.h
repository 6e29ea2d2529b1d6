#pragma once

#include "links/LinkColumnSet.h"
#include "tables/TableFileInfo.h"

namespace vlt::links {

/// What the add-link page knows of the table that the user picked.
struct LinkFileInfo : tables::TableFileInfo
{
    QString endLayerName;  ///< layer of the link ends
    QString linkNameField; ///< column whose value names a link; empty where there is none
    LinkColumnSet columns; ///< those that were recognised
};

/// Opens `path` as a link table and tells what it holds and which systems go with it in the
/// project; `nameField` is the column of the ends' layer: "Site name", "NAME" or "Site ID".
///
/// @par Errors  MESS_ERR_OPEN_LINK or MESS_ERR_EMPTY_LINK, as tables::readTableFile()
Result<LinkFileInfo> readLinkFileInfo(const QString &path, const project::ProjectContext &project);

/// The same for a table that is read as the user says.
Result<LinkFileInfo> readLinkFileInfoAs(const QString &path, const project::ProjectContext &project,
                                        const tables::TableReading &reading);

/// The column of the link ends that names a site, by the format of the table.
QString linkEndNameField(const QString &format);

} // namespace vlt::links
