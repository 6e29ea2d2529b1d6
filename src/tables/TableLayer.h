#pragma once

#include "platform/Result.h"
#include "text/Templates.h"

#include <optional>

namespace vlt::tables {

/// A finished layer of a table.
struct TableLayer
{
    QString text;
    /// MESS_MISSING_CONF_FILE where the information page's template is missing: the layer has no
    /// page then.
    std::optional<Error> warning;
};

/// The text of a layer file out of a template of the pylons' folder.
///
/// @param values  placeholders and their texts, but for the page's
/// @param page    HTML page of the picked object; without it the layer comes with a warning
/// @par Errors    MESS_MISSING_CONF_FILE with the template's path.
Result<TableLayer> fillLayer(const QString &installDir, const QString &templateName,
                             std::vector<text::Replacement> values, const Result<QString> &page);

} // namespace vlt::tables
