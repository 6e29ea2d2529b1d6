#pragma once

#include "platform/Result.h"

#include <QString>

namespace vlt::geodata {

/// The text of a mapping file that states all that was understood of a table, see
/// contract/ColumnMapping.h.
///
/// @par Errors   the driver's reason as detail.
Result<QString> readTableMapping(const QString &connection);

} // namespace vlt::geodata
