#pragma once

#include "plugins/tables/ogr/TableFile.h"

namespace vlt::driver {

/// A mapping that states all that is recognised or stated about a table, so that it is understood
/// in the same manner again.
contract::ColumnMapping recognisedMapping(const TableFile &file);

} // namespace vlt::driver
