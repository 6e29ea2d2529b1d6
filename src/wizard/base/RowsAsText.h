#pragma once

#include <QString>

class QTableView;

namespace vlt::wizard {

/// The selected rows of a table, or all of them where none is selected, in the order of the table:
/// lines of tab-separated texts below a line with the headers. A ticked cell without a text is an
/// "x"; decimals are written as the table's language writes them.
QString rowsAsText(const QTableView &table);

} // namespace vlt::wizard
