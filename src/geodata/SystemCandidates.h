#pragma once

#include "geodata/SrsBounds.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace vlt::geodata {

/// A system that may be that of a table in metres: its area of use holds the table's positions.
struct SystemCandidate
{
    QString code; ///< "EPSG:2154"
    QString name;
    QString area;         ///< name of the area of use, in English
    double longitude = 0; ///< middle of the positions in this system, degrees of WGS 84
    double latitude = 0;
    bool isNamed = false; ///< the table names it in words
    bool isNear = false;  ///< the middle lies in the project's area
};

/// Finds systems for a table in metres that declares none: those that the table names, those of the
/// project, those that the table driver knows and, near the project's area, zones of UTM. Named
/// ones come first, then those near the project's area, then those of the project. Reads the first
/// rows of the table.
///
/// @param connection      without coordinate systems
/// @param projectSystems  EPSG numbers or other codes of the project
/// @param projectArea     in degrees, if known
QList<SystemCandidate> systemCandidates(const QString &connection,
                                        const QStringList &projectSystems,
                                        const std::optional<SrsBounds> &projectArea);

} // namespace vlt::geodata
