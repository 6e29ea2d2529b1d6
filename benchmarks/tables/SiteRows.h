#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vlt::benchmarks {

/// One cell for any writer: a number as its shortest decimal text, a text in UTF-8.
struct Cell
{
    std::string text;
    bool isNumber = false;
};

using Row = std::vector<Cell>;

/// One table in a file: its header and its rows, which depend on nothing but their number (from 1).
struct TableShape
{
    std::string sheet; ///< name of the sheet in a workbook
    Row header;
    Row (*row)(std::int64_t number);
    std::int64_t rowsPerSite; ///< number of rows of one site
};

/// The tables of a shape.
///
/// - "wide": a row per site with its id, name, longitude, latitude and terrain height, then sector
///   id, height, azimuth and tilt of ten transmitters
/// - "tall": a row per cell, six cells of each site one after the other: site, cell, technology,
///   band, height, azimuth and tilts
/// - "sites": a row per site without its cells
/// - "cells": a row per cell with nothing of its site but the id
/// - "joined": "sites" and then "cells"
///
/// @return  none for any other name
std::vector<TableShape> tablesOfShape(const std::string &name);

} // namespace vlt::benchmarks
