#pragma once

#include "platform/Result.h"
#include "text/Templates.h"

#include <optional>

namespace vlt::tables {

/// A finished layer that shows a table.
struct TableLayer
{
    QString text;
    /// MESS_MISSING_CONF_FILE if the information page's template is missing; the layer then has no
    /// page.
    std::optional<Error> warning;
};

/// Fills a template of the pylons' folder with values; the result is the text of a layer file.
///
/// @param values  placeholders and their texts, except that of the page
/// @param page    HTML page of the picked object; if it has an error, the layer has a warning
/// @par Errors    MESS_MISSING_CONF_FILE with the template's path.
Result<TableLayer> fillLayer(const QString &installDir, const QString &templateName,
                             std::vector<text::Replacement> values, const Result<QString> &page);

} // namespace vlt::tables
