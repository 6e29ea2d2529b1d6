#pragma once

#include "geodata/LinkCheck.h"

namespace vlt::batch {

/// The link with a name, or with a row: "#12". A link without a name is named after its ends:
/// "Alpha - Beta".
///
/// @par Errors   MESS_CLI_NO_SUCH_LINK with a similar name, MESS_CLI_SAME_LINKS with the rows
Result<geodata::LinkReport> linkNamed(const QString &name, const QList<geodata::LinkReport> &links);

} // namespace vlt::batch
