#pragma once

#include "contract/ChosenNumber.h"

#include <optional>
#include <string>

namespace vlt::contract {

/// The unit of the numbers in a field of heights.
enum class HeightUnit { Metres, Feet, Levels };
inline constexpr const char *HeightUnitWords[] = {"m", "ft", "levels"};

/// The level from which heights are measured.
enum class HeightReference { Ground, Sea };
inline constexpr const char *HeightReferenceWords[] = {"ground", "sea"};

/// The ground height on which a building stands: from the terrain heights under its vertices, from
/// a field of the footprints, or 0.
enum class BaseRule { Mean, Minimum, Maximum, Field, Zero };
inline constexpr const char *BaseRuleWords[] = {"mean", "minimum", "maximum", "field", "zero"};

inline constexpr ChosenNumber<double> HeightFactor{0.001, 1000, 1};
inline constexpr ChosenNumber<double> LevelHeightM{1, 20, 3};
inline constexpr ChosenNumber<double> DefaultHeightM{0.1, 10000, 6};

/// How the heights of buildings are taken from the fields of their footprints. The defaults are the
/// meaning of a document without these values.
struct BuildingHeights
{
    HeightUnit unit = HeightUnit::Metres;  ///< of the field of heights; a unit in a text goes first
    double factor = HeightFactor.firstRun; ///< of the numbers in the field of heights
    double levelHeightM = LevelHeightM.firstRun;
    std::string elseField; ///< for buildings without a height in the field of heights; empty: none
    HeightUnit elseUnit = HeightUnit::Metres;
    std::optional<double> defaultM; ///< of buildings without any height; nothing: they are left out
    HeightReference reference = HeightReference::Ground; ///< of both fields
    BaseRule base = BaseRule::Mean;
    std::string baseField;   ///< ground height in metres above sea level, for BaseRule::Field
    std::string bottomField; ///< height of the underside above the base; empty: none

    bool operator==(const BuildingHeights &) const = default;
};

} // namespace vlt::contract
