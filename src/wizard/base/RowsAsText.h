#pragma once

#include <QString>

class QTableView;

namespace vlt::wizard {

/// The selected rows of a table, or all rows if none is selected, in the order of the table: lines
/// of tab-separated texts below a line with the headers. A ticked cell without a text is an "x";
/// decimals are written in the table's language.
QString rowsAsText(const QTableView &table);

} // namespace vlt::wizard
