#pragma once

#include "city/HeightText.h"
#include "contract/BuildingDocument.h"
#include "contract/CityCounts.h"
#include "contract/Progress.h"

#include <cstddef>
#include <vector>

namespace vlt::city {

/// How many features have a height, by its origin, and why the others have none.
///
/// The sum of all is the number of features. Roofs above sea level are not compared with the
/// ground.
struct HeightCounts
{
    std::size_t fromField = 0;
    std::size_t fromElseField = 0;
    std::size_t byDefault = 0;
    contract::LeftOut leftOut; ///< missingHeight, notPositive and tooHigh

    bool operator==(const HeightCounts &) const = default;
};

/// The values of both fields of heights, read once and without the shapes, to be counted by one
/// rule after the other.
class HeightValues
{
public:
    /// @param path    absolute path of the footprints, in place of source.file
    /// @param source  its layer, filter, field of heights and second field
    /// @throws BadLayer, Stopped  as readFootprints()
    HeightValues(const std::string &path, const contract::BuildingFootprints &source,
                 const Progress &progress);

    /// Counts the features by a rule; its fields do not matter.
    HeightCounts count(const contract::BuildingHeights &rule) const;

private:
    struct Values
    {
        std::optional<ReadHeight> field;
        std::optional<ReadHeight> other;
    };
    std::vector<Values> m_features;
};

} // namespace vlt::city
