#pragma once

#include "buildings/CountedBuildings.h"

#include <optional>

namespace vlt::buildings {

/// The counts in one line, in the language in use: "Buildings: 246, left out: 31, default height:
/// 12". Counts of 0 are not in it, except that of the buildings.
QString countsText(const contract::CityCounts &counts);

/// The counts and their reasons as HTML for the description of a layer; empty if all buildings are
/// drawn as they are.
QString countsInfoText(const CountedBuildings &counted);

/// The counts in one line and, in a second one, their reasons; the same language.
QString countsLines(const CountedBuildings &counted);

/// How many of all buildings are drawn, if not all are; empty otherwise.
QString drawnText(qint64 drawn, qint64 all);

/// The text with a capital letter at its start.
QString asSentence(const QString &text);

/// Why a document has no building to draw; nothing if it has one.
std::optional<QString> nothingDrawnText(const CountedBuildings &counted);

} // namespace vlt::buildings
