#pragma once

#include "platform/Result.h"
#include "sites/SiteColumnSet.h"

namespace vlt::sites {

/// The HTML page that shows a site: the installation's template for the language ("fr", English
/// otherwise) with the table's recognised columns as field references, a column name in square
/// brackets.
///
/// @param connection        table connection; if it cannot be opened, no column is recognised
/// @param projectDirectory  base of a relative path in the connection
/// @par Errors   MESS_MISSING_CONF_FILE with the template's path.
Result<QString> buildSiteInfoHtml(const QString &connection, const QString &language,
                                  const QString &installDir, const QString &projectDirectory);

/// The same with known columns: no table is opened.
///
/// @par Errors   as above.
Result<QString> buildSiteInfoHtml(const SiteColumnSet &columns, const QString &language,
                                  const QString &installDir);

/// The template with the columns filled in.
QString fillSiteInfoPage(const QString &pageTemplate, const QString &language,
                         const SiteColumnSet &columns);

} // namespace vlt::sites
