#pragma once

#include "plugins/tables/cells/Cell.h"

#include <string>

namespace vlt::driver {

/// The cells of a row as a line of delimited text (RFC 4180), without its end.
///
/// @param lastColumn  the line has at least the columns up to this one, from 0
std::string delimitedLine(const Row &row, char delimiter, int lastColumn);

} // namespace vlt::driver
