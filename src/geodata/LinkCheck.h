#pragma once

#include "geodata/LayerPlacement.h"
#include "geodata/LayerProblems.h"
#include "linkpath/PathProfiler.h"

#include <QList>
#include <QString>

#include <array>
#include <optional>

namespace vlt::geodata {

/// One link of a table with its length and its clearance.
struct LinkReport
{
    qint64 row = 0; ///< in the file, from 1
    QString name;
    QString endA;
    QString endB;
    bool isPlaced = false;
    std::array<linkpath::LinkEnd, 2> ends; ///< A, B; valid only if `isPlaced`
    std::optional<double> lengthM;
    std::optional<double> frequencyMHz;
    linkpath::Clearance clearance;
};

/// Terrain and rule for the clearance of links.
struct LinkCheckInput
{
    QString terrainFile; ///< absolute path; if empty, no clearance is computed
    linkpath::ClearanceRule rule;
};

/// Result of reading all rows of a link table.
struct LinkCheck
{
    LayerProblems problems;
    LayerPlacement placement;            ///< of the links
    QList<LinkReport> links;             ///< in the order of the file
    SystemCheck systems;                 ///< of the positions of the ends
    QString endSystem;                   ///< of the positions in `links`, WKT; empty if unknown
    std::optional<Error> terrainProblem; ///< why the terrain file cannot be used
};

/// Why a file cannot be used as terrain; nothing if it can.
std::optional<Error> terrainProblem(const QString &terrainFile);

/// Reads a link table once, from its first row to its last.
///
/// @param progress  as for readSiteCheck()
/// @param systems   the positions are compared with the areas of these systems
/// @par Errors   the driver's reason as detail.
Stoppable<LinkCheck> readLinkCheck(const QString &connection, const LinkCheckInput &input,
                                   const Progress &progress, const SystemPair &systems = {});

} // namespace vlt::geodata
