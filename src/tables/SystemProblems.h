#pragma once

#include "geodata/LayerProblems.h"
#include "platform/Problem.h"
#include "tables/TableFileInfo.h"

#include <QList>
#include <QString>

namespace vlt::tables {

/// Contradictions between a table, its coordinate systems and its positions, one warning each, in
/// the user's language: a system that is assumed or not known, a unit that does not fit the table's
/// system, a system that cannot give points a position on a map, positions outside the area of use.
QList<Problem> systemProblems(const TableFileInfo &file, const geodata::SystemPair &systems,
                              const geodata::SystemCheck &check);

/// The system that is assumed for a table without one, and the systems that it may have instead, as
/// findings in the user's language with their cures.
QList<geodata::PositionFinding> systemFindings(const TableFileInfo &file,
                                               const geodata::SystemPair &systems,
                                               const geodata::SystemCheck &check);

/// What the reader of a table reported, without what systemProblems() has.
geodata::LayerProblems otherProblems(const TableFileInfo &file, const geodata::SystemPair &systems,
                                     const geodata::SystemCheck &check,
                                     geodata::LayerProblems ofRows);

/// Why one of two systems cannot give points a position on a map, with the system's text as path;
/// none if both can.
std::optional<Error> systemRefusal(const geodata::SystemPair &systems);

} // namespace vlt::tables
