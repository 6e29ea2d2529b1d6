#include "city/HeightRule.h"

#include <cmath>

namespace vlt::city {

namespace {

using contract::BuildingHeights;
using contract::HeightReference;
using contract::HeightUnit;
using contract::LeftOutReason;
using Resolution = std::variant<ResolvedHeight, LeftOutReason>;

constexpr double FootM = 0.3048;

double metresIn(HeightUnit unit, const BuildingHeights &rule)
{
    switch (unit) {
    case HeightUnit::Feet:
        return FootM;
    case HeightUnit::Levels:
        return rule.levelHeightM;
    default:
        return 1;
    }
}

/// The height for a number whose unit is `unit` unless it names one itself.
Resolution resolveNumber(const BuildingHeights &rule, const std::optional<ReadHeight> &read,
                         HeightUnit unit, double factor, HeightSource source)
{
    if (!read)
        return LeftOutReason::MissingHeight;
    const HeightUnit own = read->unit.value_or(unit);
    const double valueM = read->number * metresIn(own, rule) * (read->unit ? 1 : factor);
    const bool isAboveSea = rule.reference == HeightReference::Sea && own != HeightUnit::Levels;
    // As the number that is kept: one that is too small for it is no height.
    if (!isAboveSea && !(static_cast<float>(valueM) > 0))
        return LeftOutReason::NotPositive;
    if (std::abs(valueM) > MaxBuildingHeightM)
        return LeftOutReason::TooHigh;
    return ResolvedHeight{valueM, isAboveSea, source};
}

} // namespace

std::optional<ReadHeight> heightAt(const OGRFeature &feature, int field)
{
    if (field < 0 || !feature.IsFieldSetAndNotNull(field))
        return std::nullopt;
    if (feature.GetFieldDefnRef(field)->GetType() == OFTString)
        return readHeight(feature.GetFieldAsString(field));
    const double number = feature.GetFieldAsDouble(field);
    return std::isfinite(number) ? std::optional(ReadHeight{number, {}, false}) : std::nullopt;
}

Resolution resolveHeight(const BuildingHeights &rule, const std::optional<ReadHeight> &field,
                         const std::optional<ReadHeight> &other)
{
    const Resolution first =
        resolveNumber(rule, field, rule.unit, rule.factor, HeightSource::Field);
    if (std::holds_alternative<ResolvedHeight>(first))
        return first;
    const Resolution second = resolveNumber(rule, other, rule.elseUnit, 1, HeightSource::ElseField);
    if (std::holds_alternative<ResolvedHeight>(second))
        return second;
    if (rule.defaultM)
        return ResolvedHeight{*rule.defaultM, false, HeightSource::Default};
    return first;
}

} // namespace vlt::city
