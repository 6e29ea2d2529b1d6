#pragma once

#include <cstddef>
#include <cstdint>

namespace vlt::contract {

/// Features that are not drawn as buildings, by reason.
struct LeftOut
{
    std::size_t missingHeight = 0; ///< the height is missing, not a number or not finite
    std::size_t notPositive = 0;
    std::size_t tooHigh = 0;
    std::size_t belowGround = 0; ///< the roof above sea level is not above the ground
    std::size_t noShape = 0;     ///< there is no polygon with an area
    std::size_t noPosition = 0;  ///< the polygon cannot be transformed to the scene

    bool operator==(const LeftOut &) const = default;
};

/// Why a feature is not drawn, in the order of LeftOutCounts.
enum class LeftOutReason : std::uint8_t {
    MissingHeight,
    NotPositive,
    TooHigh,
    BelowGround,
    NoShape,
    NoPosition
};

/// Buildings that are drawn with a value in place of a missing one. A building may be counted
/// several times.
struct Substitutes
{
    std::size_t elseField = 0;     ///< height from the second field
    std::size_t defaultHeight = 0; ///< the height for buildings without one
    std::size_t terrainBase = 0;   ///< ground height of the terrain: their field has none
    std::size_t lowestGround = 0;  ///< no terrain height below
    std::size_t zeroGround = 0;    ///< no terrain height at all
    std::size_t raisedBottom = 0;  ///< underside not below the roof: drawn from the ground
    std::size_t noValue = 0;       ///< no value for a colour
    std::size_t transparent = 0;   ///< colour without any opacity

    bool operator==(const Substitutes &) const = default;
};

/// What became of the features of a source of footprints.
///
/// features = drawn + the sum of leftOut. Those that a filter excludes are no features.
struct CityCounts
{
    std::size_t features = 0;
    std::size_t drawn = 0;
    LeftOut leftOut;
    Substitutes substitutes;
    std::size_t coincident = 0; ///< drawn ones with the same outline as another one

    bool operator==(const CityCounts &) const = default;
};

/// The key of a count in the facts of a scene and in reports.
template<typename Counts>
struct NamedCount
{
    const char *key;
    std::size_t Counts::*count;
};

inline constexpr NamedCount<LeftOut> LeftOutCounts[] = {
    {"missingHeight", &LeftOut::missingHeight},
    {"notPositive", &LeftOut::notPositive},
    {"tooHigh", &LeftOut::tooHigh},
    {"belowGround", &LeftOut::belowGround},
    {"noShape", &LeftOut::noShape},
    {"noPosition", &LeftOut::noPosition},
};

/// The key of a reason in the same places.
constexpr const char *keyOf(LeftOutReason reason)
{
    return LeftOutCounts[static_cast<std::size_t>(reason)].key;
}

/// The number of the features with a reason.
constexpr std::size_t &countOf(LeftOutReason reason, LeftOut &leftOut)
{
    return leftOut.*LeftOutCounts[static_cast<std::size_t>(reason)].count;
}

inline constexpr NamedCount<Substitutes> SubstituteCounts[] = {
    {"elseField", &Substitutes::elseField},     {"defaultHeight", &Substitutes::defaultHeight},
    {"terrainBase", &Substitutes::terrainBase}, {"lowestGround", &Substitutes::lowestGround},
    {"zeroGround", &Substitutes::zeroGround},   {"raisedBottom", &Substitutes::raisedBottom},
    {"noValue", &Substitutes::noValue},         {"transparent", &Substitutes::transparent},
};

/// The sum of the counts of a structure.
template<typename Counts, std::size_t N>
constexpr std::size_t sumOf(const Counts &counts, const NamedCount<Counts> (&names)[N])
{
    std::size_t sum = 0;
    for (const NamedCount<Counts> &name : names)
        sum += counts.*name.count;
    return sum;
}

} // namespace vlt::contract
