#include "SiteRows.h"

#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <iterator>

namespace vlt::benchmarks {

namespace {

/// Small generator of pseudo-random numbers (SplitMix64) with the same results on every machine.
class Dice
{
public:
    explicit Dice(std::uint64_t seed) : m_state(seed * 0xD1B54A32D192ED03ULL) {}

    /// A number in low .. high.
    std::int64_t between(std::int64_t low, std::int64_t high)
    {
        m_state += 0x9E3779B97F4A7C15ULL;
        std::uint64_t mixed = m_state;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9ULL;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBULL;
        mixed ^= mixed >> 31;
        return low + static_cast<std::int64_t>(mixed % static_cast<std::uint64_t>(high - low + 1));
    }

private:
    std::uint64_t m_state;
};

/// The number scaled / 10^decimals without trailing zeros, as a spreadsheet shows and stores it.
Cell number(std::int64_t scaled, int decimals)
{
    std::int64_t scale = 1;
    for (int place = 0; place < decimals; ++place)
        scale *= 10;
    const std::int64_t magnitude = std::abs(scaled);
    std::string text = scaled < 0 ? "-" : "";
    text += std::to_string(magnitude / scale);
    if (std::int64_t rest = magnitude % scale; rest > 0) {
        text += '.';
        for (; rest > 0; rest %= scale) {
            scale /= 10;
            text += static_cast<char>('0' + rest / scale);
        }
    }
    return {text, true};
}

std::string siteName(Dice &dice)
{
    static constexpr const char *Places[] = {
        "Beaumont",    "Clairval",   "Les Fontaines", "Forêt Noire", "Grand Pré",
        "Hautecôte",   "La Chênaie", "Montclair",     "Moulin Vert", "Neuville",
        "Pierrefitte", "Rochebrune", "Saint-Éloi",    "Val d'Orée",  "Villeneuve"};
    static constexpr const char *Parts[] = {"Nord", "Sud",    "Est",           "Ouest", "Centre",
                                            "Gare", "Église", "Château d'eau", "Stade", "Mairie"};
    std::string name = Places[dice.between(0, std::size(Places) - 1)];
    // One name in ten holds the delimiter of a CSV file, so its cell has to be quoted.
    name += dice.between(1, 10) == 1 ? ", " : " ";
    name += Parts[dice.between(0, std::size(Parts) - 1)];
    return name + " " + std::to_string(dice.between(1, 999));
}

std::string siteId(std::int64_t number)
{
    char text[24];
    std::snprintf(text, sizeof text, "S%06lld", static_cast<long long>(number));
    return text;
}

constexpr int TransmittersPerSite = 10;
constexpr int CellsPerSite = 6;
constexpr int SectorsPerSite = 3;

Row texts(std::initializer_list<const char *> names)
{
    Row row;
    for (const char *name : names)
        row.push_back({name, false});
    return row;
}

Row wideHeader()
{
    Row row = texts(
        {"Site ID", "Site name", "Longitude", "Latitude", "Transmitter-1 Terrain Height (m)"});
    for (int i = 1; i <= TransmittersPerSite; ++i) {
        for (const char *name : {"Sector ID", "height (m)", "Azimuth (°)", "tilt (°)"})
            row.push_back({"Transmitter-" + std::to_string(i) + " " + name, false});
    }
    return row;
}

/// Id, name, longitude, latitude and terrain height of a site.
Row siteCells(std::int64_t siteNumber, Dice &dice)
{
    Row row;
    row.push_back({siteId(siteNumber), false});
    row.push_back({siteName(dice), false});
    row.push_back(number(dice.between(-1'500'000, 7'500'000), 6));
    row.push_back(number(dice.between(43'000'000, 50'500'000), 6));
    row.push_back(number(dice.between(0, 15'000), 1));
    return row;
}

Row siteRow(std::int64_t siteNumber)
{
    Dice dice(static_cast<std::uint64_t>(siteNumber));
    return siteCells(siteNumber, dice);
}

Row wideRow(std::int64_t siteNumber)
{
    Dice dice(static_cast<std::uint64_t>(siteNumber));
    Row row = siteCells(siteNumber, dice);
    const std::string id = row.front().text;
    const std::int64_t firstAzimuth = dice.between(0, 119);
    for (int i = 1; i <= TransmittersPerSite; ++i) {
        row.push_back({id + "_" + std::to_string(i), false});
        row.push_back(number(dice.between(120, 600), 1));
        row.push_back(number((firstAzimuth + 120 * (i - 1)) % 360, 0));
        row.push_back(number(dice.between(0, 12), 0));
    }
    return row;
}

std::int64_t siteOfCell(std::int64_t cellNumber)
{
    return (cellNumber - 1) / CellsPerSite + 1;
}

/// Id, technology, band, height, azimuth, mechanical and electrical tilt of a cell.
Row transmitterCells(std::int64_t cellNumber)
{
    Dice dice(static_cast<std::uint64_t>(cellNumber));
    const std::int64_t ofSite = (cellNumber - 1) % CellsPerSite;
    const std::int64_t sector = ofSite % SectorsPerSite;
    const bool isUpper = ofSite >= SectorsPerSite;
    Row row;
    row.push_back({siteId(siteOfCell(cellNumber)) + "_" + std::to_string(ofSite + 1), false});
    row.push_back({isUpper ? "5G" : "4G", false});
    row.push_back({isUpper ? "3500" : "800", true});
    row.push_back(number(dice.between(120, 600), 1));
    row.push_back(number(120 * sector + dice.between(0, 119), 0));
    row.push_back(number(dice.between(0, 12), 0));
    row.push_back(number(dice.between(0, 80), 1));
    return row;
}

Row cellRow(std::int64_t cellNumber)
{
    Row row = transmitterCells(cellNumber);
    row.insert(row.begin() + 1, {siteId(siteOfCell(cellNumber)), false});
    return row;
}

Row tallRow(std::int64_t cellNumber)
{
    Row row = siteRow(siteOfCell(cellNumber));
    const Row transmitter = transmitterCells(cellNumber);
    row.insert(row.end(), transmitter.begin(), transmitter.end());
    return row;
}

} // namespace

std::vector<TableShape> tablesOfShape(const std::string &name)
{
    const Row site = texts({"Site ID", "Site name", "Longitude", "Latitude", "Ground height (m)"});
    const Row cell = texts({"Cell", "Site ID", "Technology", "Band (MHz)", "Height (m)",
                            "Azimuth (°)", "Mechanical tilt (°)", "Electrical tilt (°)"});
    const TableShape sites{"Sites", site, siteRow, 1};
    const TableShape cells{"Cells", cell, cellRow, CellsPerSite};
    if (name == "wide")
        return {{"Sites", wideHeader(), wideRow, 1}};
    if (name == "sites")
        return {sites};
    if (name == "cells")
        return {cells};
    if (name == "joined")
        return {sites, cells};
    if (name != "tall")
        return {};
    Row both = site;
    for (const Cell &column : cell) {
        if (column.text != "Site ID")
            both.push_back(column);
    }
    return {{"Cells", both, tallRow, CellsPerSite}};
}

} // namespace vlt::benchmarks
