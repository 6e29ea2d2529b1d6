#pragma once

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/Numbers.h"

#include <string>
#include <vector>

namespace vlt::driver {

/// Type of the values of a column.
enum class FieldType {
    Text,
    Integer, ///< 32 bits
    Integer64,
    Real,
};

/// Statistics of the sampled cells of a column.
class ColumnStatistics
{
public:
    /// Counts a cell and keeps its text if it is one of the first `samplesKept` cells.
    void add(const Cell &cell, std::size_t samplesKept);

    /// The type that fits every sampled cell. Without `allRows`, some rows were not sampled; whole
    /// numbers then become Real, so that fractions in these rows are kept.
    FieldType type(bool allRows) const;
    /// Whether one of the cells is a text and not a number; further cells then have no influence.
    bool isText() const { return m_texts > 0; }
    DecimalMark mark() const { return m_commas > 0 ? DecimalMark::Comma : DecimalMark::Point; }
    std::size_t filled() const { return m_filled; }
    /// Texts of the first cells.
    const std::vector<std::string> &samples() const { return m_samples; }

private:
    std::size_t m_filled = 0;
    std::size_t m_texts = 0;
    std::size_t m_numbers = 0;
    std::size_t m_fractions = 0;
    std::size_t m_commas = 0;
    std::size_t m_points = 0;
    bool m_beyond32 = false;
    std::vector<std::string> m_samples;
};

/// The start of a cell's text, for samples.
std::string sampleText(const Cell &cell);

/// Whether a text means that there is no value: NA, N/A, -, --, null, nan, #N/A.
bool isMissingWord(std::string_view text);

} // namespace vlt::driver
