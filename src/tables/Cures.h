#pragma once

#include "contract/ColumnMapping.h"
#include "geodata/LayerProblems.h"

#include <QList>
#include <QString>

/// What the user may state about a table at the press of a button, because the reader of the table
/// found a mistake; and what he has stated so, which another button undoes.
namespace vlt::tables {

/// A statement about a table, in the user's language.
struct Cure
{
    QString text;                    ///< the mistake, or what is stated already
    QString action;                  ///< text of the button; empty if there is nothing to press
    contract::ColumnMapping mapping; ///< after it is pressed
};

/// What the coordinates of a table are, for the texts about them.
enum class CoordinateKind { Geographic, Projected };

/// What is stated and can be undone.
QList<Cure> appliedCures(const contract::ColumnMapping &mapping, CoordinateKind kind);

/// The cures of the mistakes that were found; none for mistakes without one, except that a system
/// which is only assumed is stated.
QList<Cure> proposedCures(const contract::ColumnMapping &mapping,
                          const QList<geodata::PositionFinding> &findings, CoordinateKind kind);

/// A mapping with the cures of all mistakes that were found, as far as they have one.
contract::ColumnMapping withCures(contract::ColumnMapping mapping,
                                  const QList<geodata::PositionFinding> &findings);

} // namespace vlt::tables
