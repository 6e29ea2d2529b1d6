#pragma once

#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/table/Table.h"
#include "plugins/tables/values/Hemisphere.h"

#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// The meaning of a column name for coordinates.
struct CoordinateName
{
    enum class Family { None, Geographic, Projected, Bare };

    Family family = Family::None;
    Axis axis = Axis::X;
    CoordinatePart part = CoordinatePart::Whole;
    int strength = 0; ///< higher for a name with fewer other words
    std::string rest; ///< the other words, which are the same for both coordinates of a position
};

/// The words in the name of each field of a table; nothing for a field that is not considered.
using FieldWords = std::vector<std::optional<std::vector<std::string>>>;

CoordinateName readCoordinateName(const std::vector<std::string> &words,
                                  const Vocabulary &vocabulary);

/// Takes columns for the minutes and seconds of a coordinate by the columns beside them, if the
/// values can be: Lat D, Lat M, Lat S; Lat Deg, Min, Sec.
///
/// @param names  of all fields; those of such parts are changed
void readNeighbouringParts(std::vector<CoordinateName> &names, const FieldWords &words,
                           const std::vector<Field> &fields, const Vocabulary &vocabulary);

/// Whether a column has samples, all of them whole numbers between -limit and limit.
bool areWholeNumbersBelow(double limit, const Field &field);

} // namespace vlt::driver
