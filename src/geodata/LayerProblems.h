#pragma once

#include "contract/PositionCorrection.h"
#include "geodata/LayerPlacement.h"
#include "geodata/SystemCheck.h"
#include "platform/Result.h"

#include <QList>

#include <vector>

class OGRLayer;

namespace vlt::geodata {

/// A mistake in all positions of a table together, or in those of several rows.
struct PositionFinding
{
    QString kind; ///< as the table driver names it: "swapped", "unitSystem" ...
    /// "swapAxes", "sourceSrs=EPSG:n", the names of the changes that `corrections` make, or empty.
    QString cure;
    QString text; ///< English
    std::vector<contract::PositionCorrection> corrections = {};
};

/// Rows and values that a table's driver skipped or repaired.
struct LayerProblems
{
    qint64 count = 0;                ///< all of them
    QList<Problem> listed;           ///< the first of them; a driver may list only a limited number
    QList<PositionFinding> findings; ///< also among the problems
};

/// Result of reading all rows of a site table.
struct SiteCheck
{
    LayerProblems problems;
    LayerPlacement placement;
    SystemCheck systems;
};

/// Reads layer 0 of a table connection once, from its first row to its last: the number of features
/// with a position, and the "problems" metadata domain (contract/TableMetadata.h). A layer without
/// the domain has no problems; a dataset without layers gives an empty value.
///
/// @param progress  may be empty; called about fifty times per second. It is not called while a
///                  table is opened for the first time, nor while the texts of a large XLSX file
///                  are read.
/// @param systems   the positions are compared with the areas of these systems
/// @par Errors   the driver's reason as detail.
Stoppable<SiteCheck> readSiteCheck(const QString &connection, const Progress &progress,
                                   const SystemPair &systems = {});

/// The problems that a layer's driver found; complete only after all its features have been read.
LayerProblems problemsOf(OGRLayer &layer);

/// Parses one item of the problems domain. Row and column may be empty; the text may contain bars.
Problem parseProblem(const QString &item);

} // namespace vlt::geodata
