#pragma once

#include <QString>

namespace vlt::tables {

/// A text that the readers of tables gave (a problem of a row or of a table, the reason why a file
/// is refused) in the user's language, with the values out of his file as they are. Any other text
/// comes back as it is.
QString tableText(const QString &english);

/// Whether a reader refused a file because there is nothing in it, or a header without rows.
bool isEmptyTable(const QString &reason);

} // namespace vlt::tables
