#pragma once

#include "sites/SiteColumnSet.h"
#include "tables/TableFileInfo.h"

namespace vlt::sites {

/// Properties of the site table that the user picked.
struct SiteFileInfo : tables::TableFileInfo
{
    SiteColumnSet columns; ///< the recognised columns
};

/// Opens `path` as a site table, reads its properties and suggests coordinate systems for it in the
/// project.
///
/// @par Errors  MESS_ERR_OPEN_SITE or MESS_ERR_EMPTY_SITE, as tables::readTableFile()
Result<SiteFileInfo> readSiteFileInfo(const QString &path, const project::ProjectContext &project);

/// The same for a table that is read with the user's options.
Result<SiteFileInfo> readSiteFileInfoAs(const QString &path, const project::ProjectContext &project,
                                        const tables::TableReading &reading);

/// The column with the site names in the exports of a tool: "Site name", "NAME", "SITE ID" or "Site
/// ID".
QString siteNameField(const QString &format);

/// A warning about a table without the column of site names; none if it has the column.
std::optional<Problem> missingNameField(const SiteFileInfo &info);

} // namespace vlt::sites
