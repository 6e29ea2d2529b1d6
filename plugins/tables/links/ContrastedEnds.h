#pragma once

#include "plugins/tables/links/EndColumns.h"

namespace vlt::driver {

/// Finds the ends of a table of links whose column names do not say which end is meant, if it has
/// exactly two positions that differ: their names have different words ("BBU Latitude", "RRH
/// Latitude"), one of them has no further word ("Latitude", "Client Latitude"), or the names occur
/// twice. The first position is that of A. A column with the same difference belongs to that end.
FoundEnds findContrastedEnds(const TableProfile &table, const Vocabulary &vocabulary);

} // namespace vlt::driver
