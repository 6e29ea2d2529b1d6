#pragma once

#include "contract/TableKind.h"
#include "geodata/LayerInfo.h"

#include <QStringList>

namespace vlt::tables {

/// The roles that a column may have in a table of the kind, as the table driver names them, in the
/// order in which they are shown: siteId, azimuth ...; of links those of an end with A or B at the
/// end: xA, siteIdB ...
QStringList rolesOf(contract::TableKind kind);

/// A role in the chosen language: "Azimuth", "X coordinate, end A". The role as it is if it is not
/// known.
QString roleName(const QString &role);

/// The role of a column in the chosen language, with the number of its transmitter: "Azimuth 2".
QString roleText(const geodata::ColumnRole &role);

/// The title of the columns of a table that completes another one.
QString secondTitle(const geodata::SecondColumns &second);

/// These columns with their roles in a line; empty if there is no such table.
QString secondText(const geodata::SecondColumns &second);

/// Whether a table may have a column of this role for each transmitter of a site.
bool isOfTransmitter(const QString &role);

/// Whether a column of this role holds a coordinate, which may lie in several columns: degrees,
/// minutes, seconds and hemisphere.
bool isCoordinate(const QString &role);

} // namespace vlt::tables
