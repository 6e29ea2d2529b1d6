#pragma once

#include "geodata/SystemCheck.h"
#include "platform/Problem.h"

#include <QList>
#include <QString>

namespace vlt::tables {

/// What does not fit between a table, the systems by which it is placed and its positions, one
/// warning each, in the user's language: a unit that the table's system does not count in, a system
/// that cannot place points, positions outside the area of use.
///
/// @param unit  of the table: "METERS", "DMS", else decimal degrees
QList<Problem> systemProblems(const QString &unit, const geodata::SystemPair &systems,
                              const geodata::SystemCheck &check);

/// Why one of two systems cannot place points on a map, with the system's text as path; none where
/// both can.
std::optional<Error> systemRefusal(const geodata::SystemPair &systems);

} // namespace vlt::tables
