#pragma once

#include "links/LinkColumnSet.h"
#include "platform/Result.h"

namespace vlt::links {

/// The HTML page that shows a link: the installation's template for the language ("fr", English
/// otherwise) with the table's recognised columns as field references, a column name in square
/// brackets, and their units.
///
/// @param connection        table connection; if it cannot be opened, no column is recognised
/// @param projectDirectory  base of a relative path in the connection
/// @par Errors   MESS_MISSING_CONF_FILE with the template's path.
Result<QString> buildLinkInfoHtml(const QString &connection, const QString &language,
                                  const QString &installDir, const QString &projectDirectory);

/// The same with known columns: no table is opened.
///
/// @par Errors   as above.
Result<QString> buildLinkInfoHtml(const LinkColumnSet &columns, const QString &language,
                                  const QString &installDir);

/// The template with the columns filled in.
QString fillLinkInfoPage(const QString &pageTemplate, const QString &language,
                         const LinkColumnSet &columns);

} // namespace vlt::links
