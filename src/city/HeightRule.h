#pragma once

#include "city/Footprints.h"
#include "city/HeightText.h"
#include "contract/BuildingHeights.h"
#include "contract/CityCounts.h"

#include <ogr_feature.h>

#include <optional>
#include <variant>

namespace vlt::city {

/// Maximum height of a building. A larger number is taken for a mark of a missing height.
inline constexpr double MaxBuildingHeightM = 10000;

/// The number in a field, which may be of a numeric type or a text; nothing without one.
std::optional<ReadHeight> heightAt(const OGRFeature &feature, int field);

/// The height of a feature. The value is finite, at most MaxBuildingHeightM and, if it is not above
/// sea level, positive.
struct ResolvedHeight
{
    double valueM = 0;
    bool isAboveSea = false; ///< else above the base
    HeightSource source = HeightSource::Field;

    bool operator==(const ResolvedHeight &) const = default;
};

/// The height of a feature: from its field of heights, else from the second field, else the default
/// height, else none, by the field of heights for MissingHeight, NotPositive or TooHigh.
///
/// Levels and the default height are never above sea level.
std::variant<ResolvedHeight, contract::LeftOutReason>
resolveHeight(const contract::BuildingHeights &rule, const std::optional<ReadHeight> &field,
              const std::optional<ReadHeight> &other);

} // namespace vlt::city
