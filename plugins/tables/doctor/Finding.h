#pragma once

#include "contract/PositionCorrection.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vlt::driver {

/// What is wrong with the positions of a table as a whole.
enum class FindingKind {
    Swapped,        ///< the axes of all positions are exchanged
    SwappedRows,    ///< those of some
    Sign,           ///< a minus sign or a hemisphere is lost
    Decimal,        ///< a decimal mark is misplaced
    Thousands,      ///< a separator of thousands was read as decimal mark
    UnitSystem,     ///< metres with a system in degrees, or the reverse
    Undeclared,     ///< metres without a system
    Outlier,        ///< far from all others
    Stacked,        ///< many sites are one point
    DuplicateId,    ///< several sites have one id
    OutsideTerrain, ///< outside the project's terrain
};

/// The word for a kind in the metadata domain "doctor".
std::string_view findingWord(FindingKind kind);

struct Correction;

/// A wrong position, and what makes it right.
struct StrayPosition
{
    int64_t row = 0;
    double x = 0; ///< as in the survey
    double y = 0;
    const Correction *correction = nullptr; ///< one of corrections()
};

/// A finding about the positions of a table.
struct Finding
{
    static constexpr std::size_t MaxRows = 10;

    FindingKind kind = FindingKind::Swapped;
    std::size_t count = 0;     ///< positions that it concerns
    std::vector<int64_t> rows; ///< the first ones of their rows, if it does not concern all
    std::string cure;          ///< "swapAxes", "sourceSrs=EPSG:n" or empty
    std::string text;          ///< English, from contract/TableTexts.h
    /// Cures the whole table; `strays` the rows that are wrong, unless these are more than a
    /// mapping can state.
    std::optional<contract::PositionCorrection> correction = {};
    std::vector<StrayPosition> strays = {};
};

} // namespace vlt::driver
