#pragma once

#include "contract/PositionCorrection.h"
#include "plugins/tables/doctor/Finding.h"
#include "plugins/tables/doctor/SurveyedPositions.h"

#include <span>
#include <vector>

namespace vlt::driver {

/// A change that makes a wrong position right.
struct Correction
{
    FindingKind kind = FindingKind::Swapped;
    bool isSwap = false; ///< exchanges the coordinates
    double factorX = 1;
    double factorY = 1;

    double x(const SurveyedPosition &of) const { return factorX * (isSwap ? of.y : of.x); }
    double y(const SurveyedPosition &of) const { return factorY * (isSwap ? of.x : of.y); }
};

/// The mistakes of tables, the more frequent ones first: exchanged coordinates, lost signs,
/// misplaced decimal marks. The kind of an exchange is Swapped.
std::span<const Correction> corrections();

/// A correction as mappings state it, without rows.
contract::PositionCorrection statementOf(const Correction &correction);

/// A position with the medians of both coordinates; `positions` must not be empty.
SurveyedPosition middleOf(const std::vector<SurveyedPosition> &positions);

} // namespace vlt::driver
