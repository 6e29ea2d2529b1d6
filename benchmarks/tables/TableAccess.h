#pragma once

#include "Measurement.h"

#include <string>
#include <vector>

namespace vlt::benchmarks {

/// What to open and how.
struct TableSource
{
    std::string connection;           ///< as GDALDataset::Open takes it
    std::vector<std::string> drivers; ///< allowed drivers; empty allows all
    std::vector<std::string> options; ///< open options, "KEY=VALUE"
};

/// Opens the table, looks at all its fields and asks for the exact feature count. The checksum sums
/// up the lengths of the field names. Closing is not timed.
/// @par Errors   std::runtime_error with GDAL's message when there is no layer to be had.
Measurement openAndCount(const TableSource &source);

/// Opens the table and reads every feature, every set field as the type it is declared with.
/// The checksum sums up numbers and, of texts, the length, the first and the last byte.
/// @par Errors   as openAndCount()
Measurement readEverything(const TableSource &source);

/// openAndCount() for the second time: a first, untimed one has opened and closed the same table.
/// @par Errors   as openAndCount()
Measurement openAgain(const TableSource &source);

} // namespace vlt::benchmarks
