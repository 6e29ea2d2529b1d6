#pragma once

#include "plugins/tables/roles/Vocabulary.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vlt::driver {

/// The texts of the cells in the sampled rows of a table, by field and row; empty for empty cells.
using SampledColumns = std::vector<std::vector<std::string>>;

/// What the sampled values of a column are like.
struct ColumnFacts
{
    std::size_t filled = 0;      ///< cells with a value
    std::size_t lists = 0;       ///< cells with several numbers, such as 0/120/240
    std::size_t omni = 0;        ///< cells with a word for all directions
    std::size_t compass = 0;     ///< cells with points of the compass: SSW, N/SE
    std::vector<double> numbers; ///< of all cells, with those in lists and with a unit
    std::size_t numeric = 0;     ///< cells with numbers
    std::size_t distinct = 0;    ///< different values
    bool areWhole = true;        ///< all numbers are whole
    double minimum = 0;
    double maximum = 0;
};

ColumnFacts factsOf(const std::vector<std::string> &cells, const Vocabulary &vocabulary);

/// How well values fit a role: 1 if all do, 0 if the column cannot have the role.
///
/// @param unit  metres or degrees per unit of the numbers
double fitOf(Role role, const ColumnFacts &facts, double unit = 1);

/// How the values of a column go with the positions of their rows.
enum class Level {
    Unknown, ///< too few rows, or no position occurs in two of them
    Site,    ///< one value per position
    Sector,  ///< several values at the same position
    Area,    ///< one value for several positions
};

/// @param places  the texts of the position in each sampled row; empty for none
Level levelOf(const std::vector<std::string> &cells, const std::vector<std::string> &places);

} // namespace vlt::driver
