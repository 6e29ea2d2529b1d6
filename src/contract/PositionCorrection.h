#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Corrections of wrong positions in a table, which its mapping states.
namespace vlt::contract {

inline constexpr std::size_t MaxCorrections = 100;     ///< of a table
inline constexpr std::size_t MaxCorrectedRows = 10000; ///< of all its corrections together

/// What a correction does with the coordinates of a position.
enum class PositionChange { Swap, NegateX, NegateY, Negate, ScaleX, ScaleY, Scale };

/// A row with a wrong position. It is corrected only while its cells hold these texts, so that the
/// correction does not spoil a table that was corrected by its author.
struct CorrectedRow
{
    std::int64_t row = 0; ///< number in the file, from 1
    /// The texts of the cells of x and of y; those of several cells have blanks between them. A
    /// cell with both coordinates is the text of x.
    std::string x;
    std::string y;

    bool operator==(const CorrectedRow &) const = default;
};

/// A correction of positions.
struct PositionCorrection
{
    PositionChange change = PositionChange::Swap;
    double factor = 1;                   ///< of the coordinates that are scaled; not 0
    std::vector<CorrectedRow> rows = {}; ///< empty for all rows of the table

    bool operator==(const PositionCorrection &) const = default;
};

/// The name of a change in mappings: "swap", "negateX" ...
std::string_view changeName(PositionChange change);

/// Corrections as JSON in one line: the value of the entry "corrections" of a mapping.
std::string writeCorrections(const std::vector<PositionCorrection> &corrections);
/// Reads what writeCorrections() has written; nothing if a text is none.
std::vector<PositionCorrection> readCorrections(std::string_view text);

/// Adds corrections to those that are stated; false if there were too many of them.
bool addCorrections(std::vector<PositionCorrection> &stated,
                    const std::vector<PositionCorrection> &added);

} // namespace vlt::contract
