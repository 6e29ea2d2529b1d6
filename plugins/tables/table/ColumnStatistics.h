#pragma once

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/Numbers.h"

#include <string>
#include <vector>

namespace vlt::driver {

/// How the values of a column are kept.
enum class FieldType {
    Text,
    Integer, ///< 32 bits
    Integer64,
    Real,
};

/// What the sampled cells of a column are.
class ColumnStatistics
{
public:
    /// Of the first `samplesKept` cells the text is kept.
    void add(const Cell &cell, std::size_t samplesKept);

    /// The type that every sampled cell fits. `allRows` tells that no row was left out; otherwise
    /// whole numbers become Real, so that a fraction further down is not cut off.
    FieldType type(bool allRows) const;
    /// Whether a text was met that is no number: further ones change nothing.
    bool isText() const { return m_texts > 0; }
    DecimalMark mark() const { return m_commas > 0 ? DecimalMark::Comma : DecimalMark::Point; }
    std::size_t filled() const { return m_filled; }
    /// Some of the texts of the column, as many as decide a question about it.
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

/// Whether a text says that there is no value: NA, N/A, -, --, null, nan, #N/A.
bool isMissingWord(std::string_view text);

} // namespace vlt::driver
