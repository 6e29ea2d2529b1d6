#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace vlt::benchmarks {

/// One cell for any writer: a number as its shortest decimal text, a text in UTF-8.
struct Cell
{
    std::string text;
    bool isNumber = false;
};

constexpr int TransmittersPerSite = 10;
constexpr int ColumnCount = 5 + 4 * TransmittersPerSite;
using Row = std::array<Cell, ColumnCount>;

/// Header of a wide site table: id, name, longitude, latitude and terrain height of the site, then
/// sector id, height, azimuth and tilt of ten transmitters.
Row siteHeader();

/// The row of the site with this number (from 1). It depends on nothing else.
Row siteRow(std::int64_t number);

} // namespace vlt::benchmarks
