#pragma once

#include "plugins/tables/doctor/Finding.h"
#include "plugins/tables/doctor/SurveyedPositions.h"

#include <optional>
#include <vector>

namespace vlt::driver {

/// An area in the system of the table, in its unit.
struct CoordinateBox
{
    double minX = 0;
    double minY = 0;
    double maxX = 0;
    double maxY = 0;

    bool holds(double x, double y) const
    {
        return x >= minX && x <= maxX && y >= minY && y <= maxY;
    }
};

/// What is known about the system of a table.
struct SystemFacts
{
    bool isKnown = false;
    /// 180 degrees in the unit of the system if that is geographic; else 0.
    double halfTurn = 0;
    double metresPerUnit = 1;             ///< of a system that is not geographic
    std::optional<CoordinateBox> area;    ///< area of use; nothing for the whole world
    std::optional<CoordinateBox> terrain; ///< of the project

    bool isGeographic() const { return halfTurn > 0; }
    /// Whether coordinates can be those of a position.
    bool arePossible(double x, double y) const;
};

/// Finds what is wrong with the positions of a table as a whole. Takes time for sorting them at
/// most. Errors of single positions are found only beside several others.
std::vector<Finding> diagnose(const std::vector<SurveyedPosition> &positions,
                              const SystemFacts &system);

} // namespace vlt::driver
