#pragma once

#include "contract/BuildingDocument.h"
#include "contract/Progress.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace vlt::city {

/// A text of a field and the number of features that have it.
struct FieldText
{
    std::string text;
    std::size_t features = 0;
};

/// The values of a field of the footprints.
struct FieldValues
{
    static constexpr std::uint32_t NoText = std::numeric_limits<std::uint32_t>::max();

    // One of these has an element for each feature that was read, see Footprints::Feature::row.
    std::vector<double> numbers;      ///< NaN: none
    std::vector<std::uint32_t> texts; ///< in `distinct`; NoText: none

    std::vector<FieldText> distinct; ///< the most frequent ones first, else in their order

    bool hasValue(std::size_t row) const
    {
        return row < texts.size() ? texts[row] != NoText
                                  : row < numbers.size() && !std::isnan(numbers[row]);
    }
};

/// What the values of a field are taken as.
enum class FieldKind { Numbers, Texts };

/// Reads the values of a field, without the shapes. Texts may be numbers, with a point or a comma,
/// and numbers may be texts.
///
/// @param path    absolute path of the footprints, in place of source.file
/// @param source  their layer and filter
/// @throws BadLayer, Stopped  as readFootprints()
FieldValues readFieldValues(const std::string &path, const contract::BuildingFootprints &source,
                            const std::string &field, FieldKind kind, const Progress &progress);

/// Reads the values of the field that colours the buildings of a document.
///
/// @param directories  searched for relative paths, in this order
/// @throws BadLayer, Stopped  as readFootprints()
FieldValues readColorField(const contract::BuildingDocument &document,
                           const std::vector<std::string> &directories, const Progress &progress);

} // namespace vlt::city
