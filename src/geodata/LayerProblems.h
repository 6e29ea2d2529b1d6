#pragma once

#include "platform/Result.h"

#include <QList>

namespace vlt::geodata {

/// What a table's driver skipped or mended.
struct LayerProblems
{
    qint64 count = 0; ///< all of them
    QList<Problem>
        listed; ///< the first of them: a driver may stop listing when there are very many
};

/// Reads the "problems" metadata domain of layer 0: an item COUNT and items PROBLEM_1, PROBLEM_2
/// ... of the form row|column|severity|text. A layer without the domain has no problems.
///
/// @par Errors   no key; the text is the driver's reason.
Result<LayerProblems> readProblems(const QString &connection);

/// One item of the domain. Row and column may be empty; the text may hold further bars.
Problem parseProblem(const QString &item);

} // namespace vlt::geodata
