#include "plugins/tables/table/SitesByValues.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/Numbers.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>

namespace vlt::driver {

namespace {

constexpr std::size_t MinRows = 3;
constexpr std::size_t PreciseDecimals = 4; ///< of a position: about ten metres
constexpr std::size_t VeryPreciseDecimals = 5;

std::size_t decimalsOf(std::string_view number)
{
    const std::size_t mark = number.find_first_of(".,");
    return mark == std::string_view::npos ? 0 : number.size() - mark - 1;
}

bool holdsLetter(std::string_view text)
{
    return std::any_of(text.begin(), text.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c & 0x80) != 0;
    });
}

bool holdsDigit(std::string_view text)
{
    return text.find_first_of("0123456789") != std::string_view::npos;
}

/// Whether a text of degrees and minutes has one of the letters for its hemisphere.
bool hasHemisphere(std::string_view text, std::string_view letters)
{
    return text.find('\'') != std::string_view::npos && holdsDigit(text) &&
           text.find("\u00B0") != std::string_view::npos &&
           text.find_first_of(letters) != std::string_view::npos;
}

/// Whether a text is a latitude and a longitude, or the reverse, in decimal degrees.
bool isDecimalPair(std::string_view text)
{
    constexpr double MaxLatitude = 90;
    constexpr double MaxLongitude = 180;
    const std::size_t cut = text.find_first_of(",; ");
    if (cut == std::string_view::npos)
        return false;
    const std::string_view first = text.substr(0, cut);
    const std::string_view second = trimmed(text.substr(cut + 1));
    const std::optional<double> a = parseNumber(first);
    const std::optional<double> b = parseNumber(second);
    return a && b && decimalsOf(first) >= PreciseDecimals - 1 &&
           decimalsOf(second) >= PreciseDecimals - 1 &&
           std::min(std::abs(*a), std::abs(*b)) <= MaxLatitude &&
           std::max(std::abs(*a), std::abs(*b)) <= MaxLongitude;
}

/// What the values of a column are like.
struct Values
{
    std::size_t filled = 0;
    std::size_t latitudes = 0; ///< in degrees and minutes with a hemisphere
    std::size_t longitudes = 0;
    std::size_t pairs = 0;
    std::size_t precise = 0; ///< numbers with the decimals of a position
    std::size_t veryPrecise = 0;
    std::size_t withLetters = 0;
    std::size_t withDigits = 0;
    std::size_t withBlanks = 0;
    std::vector<double> numbers;
    std::set<std::string_view> distinct;
    bool areWhole = true;

    bool areNumbers() const { return filled > 0 && numbers.size() == filled; }
    double minimum() const { return *std::min_element(numbers.begin(), numbers.end()); }
    double maximum() const { return *std::max_element(numbers.begin(), numbers.end()); }
};

Values valuesOf(const std::vector<std::string> &cells, const Vocabulary &vocabulary)
{
    Values values;
    for (const std::string &text : cells) {
        if (text.empty() || vocabulary.isMissing(text))
            continue;
        ++values.filled;
        values.distinct.insert(text);
        values.withLetters += holdsLetter(text) ? 1 : 0;
        values.withDigits += holdsDigit(text) ? 1 : 0;
        values.withBlanks += text.find(' ') != std::string::npos ? 1 : 0;
        const bool north = hasHemisphere(text, "NS");
        const bool east = hasHemisphere(text, "EWO");
        values.pairs += (north && east) || isDecimalPair(text) ? 1 : 0;
        values.latitudes += north && !east ? 1 : 0;
        values.longitudes += east && !north ? 1 : 0;
        if (const std::optional<double> number = parseEitherNumber(text)) {
            values.numbers.push_back(*number);
            values.areWhole = values.areWhole && std::floor(*number) == *number;
            values.precise += decimalsOf(text) >= PreciseDecimals ? 1 : 0;
            values.veryPrecise += decimalsOf(text) >= VeryPreciseDecimals ? 1 : 0;
        }
    }
    return values;
}

/// Whether the values lie near each other in proportion to their size, as those of a network do.
bool areConcentrated(const Values &values)
{
    constexpr double MaxSpan = 20;
    constexpr double MaxDeviation = 0.4; ///< in proportion to the mean
    if (values.maximum() - values.minimum() <= MaxSpan)
        return true;
    const auto count = static_cast<double>(values.numbers.size());
    double sum = 0;
    double squares = 0;
    for (const double number : values.numbers) {
        sum += number;
        squares += number * number;
    }
    const double mean = sum / count;
    return std::sqrt(std::max(0.0, squares / count - mean * mean)) <= MaxDeviation * std::abs(mean);
}

/// Whether two columns can be the latitudes and longitudes of a network in inhabited places.
bool canBePosition(const Values &latitudes, const Values &longitudes)
{
    constexpr double MaxLatitude = 85;
    constexpr double MaxLongitude = 180;
    constexpr double MinDistance = 2; ///< from the point 0, 0, where shares and ratios lie
    const auto farthest = [](const Values &values) {
        return std::max(std::abs(values.minimum()), std::abs(values.maximum()));
    };
    const auto holdsZero = [](const Values &values) {
        return values.minimum() <= 0 && values.maximum() >= 0;
    };
    return farthest(latitudes) <= MaxLatitude && farthest(longitudes) <= MaxLongitude &&
           std::max(farthest(latitudes), farthest(longitudes)) >= MinDistance &&
           !(holdsZero(latitudes) && holdsZero(longitudes)) && latitudes.distinct.size() > 1 &&
           longitudes.distinct.size() > 1 && areConcentrated(latitudes) &&
           areConcentrated(longitudes);
}

class Recognition
{
public:
    Recognition(const std::vector<std::vector<std::string>> &columns, const Vocabulary &vocabulary)
        : m_columns(columns)
        , m_rowCount(columns.empty() ? 0 : columns.front().size())
    {
        for (const std::vector<std::string> &column : columns) {
            m_values.push_back(valuesOf(column, vocabulary));
            m_isFirstOfData = m_isFirstOfData ||
                              (m_values.back().areNumbers() && parseEitherNumber(column.front()));
        }
    }

    std::map<int, std::string> names()
    {
        if (m_rowCount < MinRows || !findPosition())
            return {};
        findAzimuth();
        findNames();
        for (std::size_t column = 0; column < m_values.size(); ++column)
            m_names.try_emplace(static_cast<int>(column));
        return std::move(m_names);
    }

private:
    /// Whether nearly all rows have such a value, among them the first, which would hold a name;
    /// unless it has a number in a column of numbers, so that it holds no names.
    bool isCommon(std::size_t count, const Values &values, std::size_t column) const
    {
        return (m_isFirstOfData || !m_columns[column].front().empty()) && count == values.filled &&
               values.filled * 10 >= m_rowCount * 9;
    }

    /// The columns with nothing but values that are counted by a member.
    std::vector<std::size_t> columnsOf(std::size_t Values::*member) const
    {
        std::vector<std::size_t> columns;
        for (std::size_t i = 0; i < m_values.size(); ++i) {
            if (isCommon(m_values[i].*member, m_values[i], i))
                columns.push_back(i);
        }
        return columns;
    }

    /// The columns of numbers, most of which have as many decimals as positions.
    std::vector<std::size_t> decimalColumns() const
    {
        std::vector<std::size_t> columns;
        for (std::size_t i = 0; i < m_values.size(); ++i) {
            const Values &values = m_values[i];
            if (isCommon(values.numbers.size(), values, i) &&
                values.precise * 10 >= values.filled * 8)
                columns.push_back(i);
        }
        return columns;
    }

    void name(std::size_t column, const char *as) { m_names[static_cast<int>(column)] = as; }

    bool findPosition()
    {
        const std::vector<std::size_t> latitudes = columnsOf(&Values::latitudes);
        const std::vector<std::size_t> longitudes = columnsOf(&Values::longitudes);
        const std::vector<std::size_t> pairs = columnsOf(&Values::pairs);
        if (latitudes.size() == 1 && longitudes.size() == 1) {
            name(latitudes.front(), "Latitude");
            name(longitudes.front(), "Longitude");
            return true;
        }
        if (pairs.size() == 1) {
            name(pairs.front(), "Coordinates");
            return true;
        }
        return findDecimals();
    }

    /// Latitudes come first, unless the values can only be read the other way round.
    bool findDecimals()
    {
        const std::vector<std::size_t> decimals = decimalColumns();
        if (decimals.size() != 2 || decimals[0] + 1 != decimals[1])
            return false;
        const Values &first = m_values[decimals[0]];
        const Values &second = m_values[decimals[1]];
        const bool hasTexts = std::any_of(m_values.begin(), m_values.end(),
                                          [](const Values &of) { return of.withLetters > 0; });
        const bool areVeryPrecise = first.veryPrecise * 10 >= first.filled * 8 &&
                                    second.veryPrecise * 10 >= second.filled * 8;
        if (!hasTexts && !areVeryPrecise) // numbers alone can be anything
            return false;
        const bool inOrder = canBePosition(first, second);
        if (!inOrder && !canBePosition(second, first))
            return false;
        name(decimals[inOrder ? 0 : 1], "Latitude");
        name(decimals[inOrder ? 1 : 0], "Longitude");
        return true;
    }

    /// Directions are whole numbers up to a turn, most of them multiples of five. Of other whole
    /// numbers, or if there are two such columns, nothing is known.
    void findAzimuth()
    {
        std::vector<std::size_t> found;
        for (std::size_t i = 0; i < m_values.size(); ++i) {
            const Values &values = m_values[i];
            if (!isCommon(values.numbers.size(), values, i) || !values.areWhole ||
                values.distinct.size() < MinRows || values.minimum() < 0 ||
                values.maximum() > 360 || values.maximum() < 180)
                continue;
            const auto rounded =
                std::count_if(values.numbers.begin(), values.numbers.end(),
                              [](double number) { return std::fmod(number, 5) == 0; });
            if (static_cast<std::size_t>(rounded) * 10 >= values.filled * 8)
                found.push_back(i);
        }
        if (found.size() != 1)
            return;
        name(found.front(), "Azimuth");
        findHeight(found.front());
    }

    /// Heights are numbers in a column beside the directions, if only one can hold them.
    void findHeight(std::size_t azimuth)
    {
        constexpr double MinimumM = 5; // tilts are less
        constexpr double MaximumM = 150;
        std::vector<std::size_t> found;
        for (const std::size_t column : {azimuth - 1, azimuth + 1}) {
            if (column >= m_values.size() || m_names.contains(static_cast<int>(column)))
                continue;
            const Values &values = m_values[column];
            if (isCommon(values.numbers.size(), values, column) && values.distinct.size() > 1 &&
                values.minimum() >= MinimumM && values.maximum() <= MaximumM)
                found.push_back(column);
        }
        if (found.size() == 1)
            name(found.front(), "Antenna Height");
    }

    /// The first column of texts names the sites: by a code, if its texts have digits and no
    /// blanks; the next column may then hold names.
    void findNames()
    {
        std::size_t column = nextTexts(0);
        if (column >= m_values.size())
            return;
        const Values &values = m_values[column];
        const bool isCode = values.withDigits == values.filled && values.withBlanks == 0;
        name(column, isCode ? "Site ID" : "Site Name");
        if (!isCode)
            return;
        column = nextTexts(column + 1);
        if (column < m_values.size() &&
            m_values[column].distinct.size() * 10 >= values.distinct.size() * 8)
            name(column, "Site Name");
    }

    /// The next column of different texts that has no name yet.
    std::size_t nextTexts(std::size_t first) const
    {
        std::size_t column = first;
        while (column < m_values.size() &&
               (m_names.contains(static_cast<int>(column)) ||
                m_values[column].distinct.size() < 2 ||
                !isCommon(m_values[column].withLetters, m_values[column], column)))
            ++column;
        return column;
    }

    const std::vector<std::vector<std::string>> &m_columns;
    std::size_t m_rowCount;
    bool m_isFirstOfData = false;
    std::vector<Values> m_values;
    std::map<int, std::string> m_names;
};

} // namespace

std::map<int, std::string> siteColumnsByValues(const std::vector<std::vector<std::string>> &columns,
                                               const Vocabulary &vocabulary)
{
    return Recognition(columns, vocabulary).names();
}

} // namespace vlt::driver
