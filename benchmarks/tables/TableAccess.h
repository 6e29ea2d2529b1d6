#pragma once

#include "Measurement.h"

#include <string>
#include <vector>

namespace vlt::benchmarks {

/// One or more tables and how to open them.
struct TableSource
{
    std::vector<std::string> connections; ///< arguments of GDALDataset::Open()
    std::vector<std::string> drivers;     ///< allowed drivers; empty allows all
    std::vector<std::string> options;     ///< open options, "KEY=VALUE"
};

/// Opens each table in turn, reads the definitions of all fields of all layers and requests the
/// exact feature counts; the numbers are sums. The checksum is the sum of the lengths of the field
/// names. Closing is not timed.
/// @par Errors   std::runtime_error with GDAL's message when there is no layer.
Measurement openAndCount(const TableSource &source);

/// Opens each table in turn and reads every feature and every set field of all layers as the type
/// of its definition. The checksum is the sum of the numbers and, for texts, of the length, the
/// first and the last byte.
/// @par Errors   as openAndCount()
Measurement readEverything(const TableSource &source);

/// openAndCount() after the same tables have already been opened and closed once, untimed.
/// @par Errors   as openAndCount()
Measurement openAgain(const TableSource &source);

} // namespace vlt::benchmarks
