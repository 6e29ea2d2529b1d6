#include "plugins/tables/roles/ColumnFacts.h"

#include "plugins/tables/cells/Bearing.h"
#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/FeetAndInches.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/cells/ValueList.h"
#include "plugins/tables/roles/HeightBase.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <set>
#include <unordered_set>
#include <utility>

namespace vlt::driver {

namespace {

constexpr std::size_t MaxUnitSize = 12; ///< bytes

/// The number at the start of a text, with at most a unit behind it.
std::optional<double> leadingNumber(std::string_view text)
{
    text = trimmed(text);
    const std::size_t end = std::min(text.find_first_not_of("0123456789.,+-"), text.size());
    if (end < text.size()) {
        if (const auto feet = parseFeetAndInches(text))
            return feet;
        if (const auto bearing = parseBearing(text))
            return bearing;
    }
    if (end == 0 || text.size() - end > MaxUnitSize)
        return std::nullopt;
    const std::string_view rest = text.substr(end);
    if (rest.find_first_of("0123456789") != std::string_view::npos)
        return std::nullopt;
    const std::string_view number = text.substr(0, end);
    const NumberShape shape = numberShape(number);
    if (!shape.isNumber)
        return std::nullopt;
    return parseNumber(number, shape.usesComma ? DecimalMark::Comma : DecimalMark::Point);
}

/// The numbers in the parts of a cell; none unless each of them is one.
std::vector<double> numbersIn(const std::vector<std::string_view> &parts)
{
    std::vector<double> numbers;
    for (const std::string_view part : parts) {
        const std::optional<double> number = leadingNumber(part);
        if (!number)
            return {};
        numbers.push_back(*number);
    }
    return numbers;
}

/// The range of values that a role can have.
std::optional<std::pair<double, double>> rangeOf(Role role)
{
    switch (role) {
    case Role::Azimuth:
        return std::pair(-360.0, 360.0);
    case Role::MechanicalTilt:
    case Role::ElectricalTilt:
    case Role::Tilt:
        return std::pair(-90.0, 90.0);
    case Role::BeamWidth:
        return std::pair(0.0, 360.0);
    case Role::AntennaHeight:
        return std::pair(0.0, 3000.0);
    case Role::GroundHeight:
    case Role::SeaLevelHeight:
        return std::pair(-500.0, 30000.0);
    case Role::Frequency:
    case Role::Length:
    case Role::Diameter:
        return std::pair(0.0, 1e12);
    case Role::OffsetX:
    case Role::OffsetY:
        return std::pair(-1e5, 1e5);
    default:
        return std::nullopt;
    }
}

/// Directions in radians, or another ratio: fractions below a turn.
bool looksLikeRadians(const ColumnFacts &facts)
{
    return !facts.areWhole && facts.distinct > 2 && facts.minimum >= -2 * std::numbers::pi &&
           facts.maximum <= 2 * std::numbers::pi;
}

} // namespace

ColumnFacts factsOf(const std::vector<std::string> &cells, const Vocabulary &vocabulary)
{
    ColumnFacts facts;
    std::unordered_set<std::string_view> different;
    std::set<std::string_view> points;
    for (const std::string &cell : cells) {
        const std::string_view text = trimmed(cell);
        if (text.empty() || vocabulary.isMissing(text))
            continue;
        ++facts.filled;
        different.insert(text);
        if (vocabulary.isOmni(text)) {
            ++facts.omni;
            continue;
        }
        const auto parts = splitList(heightAboveGround(text, vocabulary));
        if (std::all_of(parts.begin(), parts.end(), parseCompassPoint)) {
            ++facts.compass;
            facts.lists += parts.size() > 1 ? 1 : 0;
            points.insert(parts.begin(), parts.end());
            continue;
        }
        const std::vector<double> numbers = numbersIn(parts);
        facts.numeric += numbers.empty() ? 0 : 1;
        facts.lists += numbers.size() > 1 ? 1 : 0;
        for (const double number : numbers) {
            const bool isFirst = facts.numbers.empty();
            facts.minimum = isFirst ? number : std::min(facts.minimum, number);
            facts.maximum = isFirst ? number : std::max(facts.maximum, number);
            facts.areWhole = facts.areWhole && std::floor(number) == number;
            facts.numbers.push_back(number);
        }
    }
    facts.distinct = different.size();
    constexpr std::size_t MinPoints = 3; // a column with two of them holds hemispheres
    if (points.size() < MinPoints)
        facts.compass = 0;
    return facts;
}

double fitOf(Role role, const ColumnFacts &facts, double unit)
{
    constexpr double FitOfEmpty = 0.5;
    const auto range = rangeOf(role);
    if (!range)
        return 1;
    if (facts.filled == 0)
        return FitOfEmpty;
    if (role == Role::Azimuth && unit <= 1 && looksLikeRadians(facts))
        return 0;
    const double readable = static_cast<double>(facts.numeric + facts.omni +
                                                (role == Role::Azimuth ? facts.compass : 0));
    const auto inside =
        std::count_if(facts.numbers.begin(), facts.numbers.end(), [&](double number) {
            return number * unit >= range->first && number * unit <= range->second;
        });
    const double insideShare =
        facts.numbers.empty()
            ? 1
            : static_cast<double>(inside) / static_cast<double>(facts.numbers.size());
    return readable / static_cast<double>(facts.filled) * insideShare;
}

Level levelOf(const std::vector<std::string> &cells, const std::vector<std::string> &places)
{
    std::set<std::string_view> values;
    std::set<std::string_view> positions;
    std::set<std::pair<std::string_view, std::string_view>> both;
    std::size_t rows = 0;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::string_view value = trimmed(cells[i]);
        if (value.empty() || places[i].empty())
            continue;
        ++rows;
        values.insert(value);
        positions.insert(places[i]);
        both.emplace(value, places[i]);
    }
    constexpr double Much = 1.3;
    const auto exceeds = [](std::size_t a, std::size_t b) {
        return static_cast<double>(a) > Much * static_cast<double>(b);
    };
    if (exceeds(both.size(), values.size()))
        return Level::Area;
    if (rows < 2 || !exceeds(rows, positions.size()))
        return Level::Unknown;
    return exceeds(both.size(), positions.size()) ? Level::Sector : Level::Site;
}

} // namespace vlt::driver
