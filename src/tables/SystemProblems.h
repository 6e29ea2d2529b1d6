#pragma once

#include "geodata/SystemCheck.h"
#include "platform/Problem.h"

#include <QList>
#include <QString>

namespace vlt::tables {

/// Contradictions between a table, its coordinate systems and its positions, one warning each, in
/// the user's language: a unit that does not fit the table's system, a system that cannot give
/// points a position on a map, positions outside the area of use.
///
/// @param unit  of the table: "METERS", "DMS", else decimal degrees
QList<Problem> systemProblems(const QString &unit, const geodata::SystemPair &systems,
                              const geodata::SystemCheck &check);

/// Why one of two systems cannot give points a position on a map, with the system's text as path;
/// none if both can.
std::optional<Error> systemRefusal(const geodata::SystemPair &systems);

} // namespace vlt::tables
