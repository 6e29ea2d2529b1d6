#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace vlt::benchmarks {

/// One cell as every writer needs it: numbers in their shortest decimal text, texts in UTF-8.
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

/// Row of the site with this number (from 1). The same number always gives the same row.
Row siteRow(std::int64_t number);

} // namespace vlt::benchmarks
