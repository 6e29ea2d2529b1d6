#pragma once

#include "geodata/LayerPlacement.h"
#include "geodata/SystemCheck.h"
#include "platform/Result.h"

#include <QList>

class OGRLayer;

namespace vlt::geodata {

/// What a table's driver skipped or mended.
struct LayerProblems
{
    qint64 count = 0; ///< all of them
    QList<Problem>
        listed; ///< the first of them: a driver may stop listing when there are very many
};

/// What all rows of a site table tell.
struct SiteCheck
{
    LayerProblems problems;
    LayerPlacement placement;
    SystemCheck systems;
};

/// Reads layer 0 of a table connection once, from its first row to its last: how many features have
/// a place, and its "problems" metadata domain, an item COUNT and items PROBLEM_1, PROBLEM_2 ... in
/// this order, of the form row|column|severity|text. A layer without the domain has no problems, a
/// dataset without layers gives an empty value.
///
/// @param progress  may be empty; asked some fifty times in a second. Opening a table that was not
///                  open before, and the texts of a large XLSX file, take their time without a
///                  question.
/// @param systems   with which the positions are compared
/// @par Errors   the driver's reason as detail.
Stoppable<SiteCheck> readSiteCheck(const QString &connection, const Progress &progress,
                                   const SystemPair &systems = {});

/// The problems that a layer's driver found; complete only after all its features were read.
LayerProblems problemsOf(OGRLayer &layer);

/// One item of the problems domain. Row and column may be empty; the text may hold further bars.
Problem parseProblem(const QString &item);

} // namespace vlt::geodata
