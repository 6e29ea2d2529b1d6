#include "plugins/tables/table/ColumnStatistics.h"

#include "plugins/tables/table/HeaderWords.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace vlt::driver {

namespace {

constexpr std::size_t MaxSampleSize = 100; ///< characters; no coordinate is longer
constexpr double MaxExactWhole = 1e15;
constexpr double Largest32 = std::numeric_limits<int32_t>::max();

} // namespace

std::string sampleText(const Cell &cell)
{
    return cell.text.empty() || isOverlong(cell)
               ? cellText(cell)
               : std::string(firstCharacters(trimmed(cell.text), MaxSampleSize));
}

bool isMissingWord(std::string_view text)
{
    static constexpr std::array Words = {"na", "n/a", "-", "--", "null", "nan", "#n/a", "none"};
    return text.size() <= 4 &&
           std::find(Words.begin(), Words.end(), lowerCase(text)) != Words.end();
}

void ColumnStatistics::add(const Cell &cell, std::size_t samplesKept)
{
    ++m_filled;
    const std::string_view text = trimmed(cell.text);
    if (m_samples.size() < samplesKept)
        m_samples.push_back(sampleText(cell));
    if (cell.kind == Cell::Kind::Number && text.empty()) {
        ++m_numbers;
        const bool whole =
            std::floor(cell.number) == cell.number && std::abs(cell.number) < MaxExactWhole;
        m_fractions += whole ? 0 : 1;
        m_beyond32 = m_beyond32 || std::abs(cell.number) > Largest32;
        return;
    }
    if (cell.kind == Cell::Kind::Error)
        return;
    NumberShape shape;
    if (cell.kind == Cell::Kind::Number || cell.kind == Cell::Kind::Text)
        shape = numberShape(text);
    if (cell.kind == Cell::Kind::Number && !shape.isNumber) // 1E5 is a number if the cell is one
    {
        shape.isNumber = parseNumber(text).has_value();
        shape.usesPoint = true;
    }
    if (!shape.isNumber || shape.isIdentifier) {
        m_texts += isMissingWord(text) ? 0 : 1;
        return;
    }
    ++m_numbers;
    m_fractions += shape.isWhole ? 0 : 1;
    m_commas += shape.usesComma ? 1 : 0;
    m_points += shape.usesPoint ? 1 : 0;
    if (shape.isWhole && text.size() > 9)
        m_beyond32 = m_beyond32 || std::abs(parseNumber(text).value_or(0)) > Largest32;
}

FieldType ColumnStatistics::type(bool allRows) const
{
    if (m_texts > 0 || m_numbers == 0 || (m_commas > 0 && m_points > 0))
        return FieldType::Text;
    if (m_fractions > 0 || !allRows)
        return FieldType::Real;
    return m_beyond32 ? FieldType::Integer64 : FieldType::Integer;
}

} // namespace vlt::driver
