#include "SiteRows.h"

#include <cstdio>
#include <cstdlib>
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

} // namespace

Row siteHeader()
{
    Row row;
    const char *site[] = {"Site ID", "Site name", "Longitude", "Latitude",
                          "Transmitter-1 Terrain Height (m)"};
    std::size_t column = 0;
    for (const char *name : site)
        row[column++].text = name;
    for (int i = 1; i <= TransmittersPerSite; ++i) {
        for (const char *name : {"Sector ID", "height (m)", "Azimuth (°)", "tilt (°)"})
            row[column++].text = "Transmitter-" + std::to_string(i) + " " + name;
    }
    return row;
}

Row siteRow(std::int64_t siteNumber)
{
    Dice dice(static_cast<std::uint64_t>(siteNumber));
    const std::string id = siteId(siteNumber);
    Row row;
    std::size_t column = 0;
    row[column++].text = id;
    row[column++].text = siteName(dice);
    row[column++] = number(dice.between(-1'500'000, 7'500'000), 6);
    row[column++] = number(dice.between(43'000'000, 50'500'000), 6);
    row[column++] = number(dice.between(0, 15'000), 1);
    const std::int64_t firstAzimuth = dice.between(0, 119);
    for (int i = 1; i <= TransmittersPerSite; ++i) {
        row[column++].text = id + "_" + std::to_string(i);
        row[column++] = number(dice.between(120, 600), 1);
        row[column++] = number((firstAzimuth + 120 * (i - 1)) % 360, 0);
        row[column++] = number(dice.between(0, 12), 0);
    }
    return row;
}

} // namespace vlt::benchmarks
