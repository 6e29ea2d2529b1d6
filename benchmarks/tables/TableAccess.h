#pragma once

#include "Measurement.h"

#include <string>
#include <vector>

namespace vlt::benchmarks {

/// A table and how to open it.
struct TableSource
{
    std::string connection;           ///< argument of GDALDataset::Open()
    std::vector<std::string> drivers; ///< allowed drivers; empty allows all
    std::vector<std::string> options; ///< open options, "KEY=VALUE"
};

/// Opens the table, reads the definitions of all fields and requests the exact feature count. The
/// checksum is the sum of the lengths of the field names. Closing is not timed.
/// @par Errors   std::runtime_error with GDAL's message when there is no layer.
Measurement openAndCount(const TableSource &source);

/// Opens the table and reads every feature and every set field as the type of its definition. The
/// checksum is the sum of the numbers and, for texts, of the length, the first and the last byte.
/// @par Errors   as openAndCount()
Measurement readEverything(const TableSource &source);

/// openAndCount() after the same table has already been opened and closed once, untimed.
/// @par Errors   as openAndCount()
Measurement openAgain(const TableSource &source);

} // namespace vlt::benchmarks
