#pragma once

#include "links/LinkColumnSet.h"
#include "tables/TableFileInfo.h"

namespace vlt::links {

/// Properties of the link table that the user picked.
struct LinkFileInfo : tables::TableFileInfo
{
    QString endLayerName;  ///< layer of the link ends
    QString linkNameField; ///< column with the names of the links; empty for none
    LinkColumnSet columns; ///< the recognised columns
};

/// Opens `path` as a link table, reads its properties and suggests coordinate systems for it in the
/// project. `nameField` is the column of the ends' layer: "Site name", "NAME" or "Site ID".
///
/// @par Errors  MESS_ERR_OPEN_LINK or MESS_ERR_EMPTY_LINK, as tables::readTableFile()
Result<LinkFileInfo> readLinkFileInfo(const QString &path, const project::ProjectContext &project);

/// The same for a table that is read with the user's options.
Result<LinkFileInfo> readLinkFileInfoAs(const QString &path, const project::ProjectContext &project,
                                        const tables::TableReading &reading);

/// The column with the site names of link ends in a table of this format.
QString linkEndNameField(const QString &format);

} // namespace vlt::links
