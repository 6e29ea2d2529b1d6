#pragma once

#include "sites/SiteColumnSet.h"
#include "tables/TableFileInfo.h"

namespace vlt::sites {

/// What the add-site page knows of the table that the user picked.
struct SiteFileInfo : tables::TableFileInfo
{
    SiteColumnSet columns; ///< those that were recognised
};

/// Opens `path` as a site table and tells what it holds and which systems go with it in the
/// project.
///
/// @par Errors  MESS_ERR_OPEN_SITE or MESS_ERR_EMPTY_SITE, as tables::readTableFile()
Result<SiteFileInfo> readSiteFileInfo(const QString &path, const project::ProjectContext &project);

/// The same for a table that is read as the user says.
Result<SiteFileInfo> readSiteFileInfoAs(const QString &path, const project::ProjectContext &project,
                                        const tables::TableReading &reading);

/// The column that names a site in the exports of a tool: "Site name", "NAME", "SITE ID" or "Site
/// ID".
QString siteNameField(const QString &format);

/// Warns of a table without the column that names its sites; none where it is there.
std::optional<Problem> missingNameField(const SiteFileInfo &info);

} // namespace vlt::sites
