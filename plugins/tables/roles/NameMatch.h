#pragma once

#include "plugins/tables/roles/Vocabulary.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vlt::driver {

/// A role that the name of a column can mean.
struct NameMatch
{
    Role role = Role::None;
    /// 100 for a name that says nothing else, less for each word that is not understood.
    int strength = 0;
    int sector = 0; ///< number of the sector in the name, from 0; -1 for none
    int band = 0;   ///< MHz, of a frequency band in the name of a value of transmitters; 0 for none
    CoordinatePart part = CoordinatePart::Whole;
    /// The other words, without those of sectors and units: the same for both coordinates of a
    /// position.
    std::string rest;
};

/// The words of a name; those that are written together are separated if the vocabulary knows all
/// of them: "rxlat" gives rx, lat.
std::vector<std::string> separatedWords(std::string_view name, const Vocabulary &vocabulary);

/// The roles that a name can mean, each once with its best match.
std::vector<NameMatch> matchName(const std::vector<std::string> &words,
                                 const Vocabulary &vocabulary);

/// The role of a name that only says what the rows are, such as "Mast" or "Sector": it is the
/// column of their names.
std::optional<NameMatch> matchKindOfRows(const std::vector<std::string> &words,
                                         const Vocabulary &vocabulary);

/// The size of the unit in a name: the first word that is a unit of that kind.
std::optional<double> unitOfName(const std::vector<std::string> &words,
                                 std::optional<double> WordMeaning::*unit,
                                 const Vocabulary &vocabulary);

/// Whether the name of a column of tilts says that negative ones point below the horizon.
bool saysDownIsNegative(const std::vector<std::string> &words, const Vocabulary &vocabulary);

/// Metres per unit in a cell that holds nothing else; nothing for other texts.
std::optional<double> metresOfUnit(std::string_view text, const Vocabulary &vocabulary);

/// Metres or degrees per unit in the name of a column with a role; 1 if it has none.
double unitOfColumn(Role role, const std::vector<std::string> &words, const Vocabulary &vocabulary);

} // namespace vlt::driver
